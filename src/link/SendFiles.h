#pragma once

#include <string>
#include <vector>

#include "image/Image.h"
#include "link/TransferDlg.h"

struct CSendFile {
    std::string m_strName;    // with extension; what it is called on the phone
    std::string m_strFolder;  // where it lies, with or without a closing separator
};

// What goes to the phone: files of the list, or without any the picture in the editor.
struct CSend {
    std::vector<CSendFile> arrFiles;
    CxImage image;        // as it is sent
    std::string strName;  // what it is called on the phone
};

// Brings one picture after the other into the phone's form and lets the library send it. The code with which
// the dialog ends.
int DoSendFiles(CPhoneSession& session, CTransferDlg& dialog, const CSend& send);

// The whole path of a listed file.
std::string PathOf(const CSendFile& file, char cSeparator);
