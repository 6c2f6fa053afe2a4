#pragma once

#include <optional>

#include "link/PhoneSession.h"
#include "link/RunningPicture.h"

// The blocking work of a connect and of the preparations of take and send, as the window with the running
// picture carries it. Each gives the code with which that window ends.

// Finds the phone and learns what it can, from User.Dat or from the phone itself. Nothing for a phone that
// was known: the picture then runs to its end.
std::optional<int> DoConnect(CPhoneSession& session, CRunningPicture& picture);

// The head of every take and send: brings the line up. Nothing if it is up.
std::optional<int> OpenLink(CPhoneSession& session, EDirection direction, CRunningPicture& picture);

// Lets the library write the list of the phone's files; their number goes to nFiles.
int DoTakePrepare(CPhoneSession& session, CRunningPicture& picture, std::int32_t& nFiles);

// What is to be sent, for the checks before it.
struct CSendPlan {
    bool bList = false;  // files from the list, else the picture in the editor
    int nFiles = 1;
    CSize sizePicture;  // the display size of the picture in the editor
    CSize sizeWanted;   // what it would be sent as
};
// Holds the phone's limit of files and, for the picture in the editor, its sizes against the plan.
int DoSendPrepare(CPhoneSession& session, CRunningPicture& picture, const CSendPlan& plan);
