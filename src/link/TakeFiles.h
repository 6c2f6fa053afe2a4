#pragma once

#include <string>
#include <vector>

#include "link/TransferDlg.h"

// Files to be taken off the phone, and what became of the take.
struct CTake {
    std::vector<int> arrPicked;  // positions in FILE.Dat, in the order in which they are taken
    std::string strSaveFolder;   // with a closing separator; follows the user's choices
    bool bCardChanged = false;   // the card has left, and the user wants the list read again
    bool bFolderMoved = false;   // the last file went to another folder than the first was meant for
};

// Lets the library write one picked file after the other. The code with which the dialog ends.
int DoTakeFiles(CPhoneSession& session, CTransferDlg& dialog, CTake& take);
