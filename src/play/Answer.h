#pragma once

#include <optional>
#include <string>
#include <vector>

#include "image/Color.h"
#include "window/Choosers.h"
#include "window/FileDialogs.h"
#include "window/MessageBoxes.h"
#include "window/PopupMenus.h"

// What can be asked of the user. Delete: the system's own question before it deletes files. Modal: a dialog
// of the program's own that no other kind stands for.
enum class EQuestion {
    Box,
    Open,
    Save,
    Color,
    Font,
    Menu,
    Size,
    Delete,
    Port,        // which port the phone is on
    PhoneFiles,  // which of its files
    PhoneSize,   // which of its sizes
    Print,       // the print preview, and the print dialog behind it
    Modal
};

// The name of a kind of question in scripts and messages.
const char* NameOf(EQuestion question);

// One answer that waits for its question. Which field counts depends on the question.
struct CAnswer {
    EQuestion question = EQuestion::Modal;
    // Waits for the next question of any kind but Box, and leaves it without a choice.
    bool bCancel = false;
    EBoxAnswer box = EBoxAnswer::Ok;
    std::string strPath;  // whole path
    CColor color;
    CFontChoice font;
    // Texts for the size dialog; one that is missing is not typed.
    std::optional<std::string> strWidth;
    std::optional<std::string> strHeight;
    bool bKeepRatio = false;
    bool bDelete = false;
    int nMenuId = 0;
    int nPort = 0;  // of COM1 and so on
    int nRow = 0;   // of the phone's sizes
    // What the hand does in the list of the phone's files or in the print preview, one step a piece; a step
    // that takes a number has it behind its name.
    std::vector<std::string> arrSteps;
    int nLine = 0;  // of the script that gave it, 0 for none
};

// A question other than a message box, as the program put it. Which fields count depends on the kind.
struct CAsked {
    EQuestion question = EQuestion::Modal;
    CFileDialogRequest request;
    CColor colorStart;
    CFontChoice fontStart;
    std::vector<CMenuItem> arrItems;
    int nDialog = 0;  // number of the program's own dialog, or of the panel in one of the system's
};

// What went amiss between questions and answers.
enum class EProblem {
    Missing,     // nothing waited: the question took its default
    Mismatch,    // answers waited, but none for a question of this kind: the same default
    Impossible,  // the answer cannot be given: no such button, no such menu item, or it is grey
};

struct CProblem {
    EProblem kind = EProblem::Missing;
    std::string strText;
};
