#pragma once

#include <string>
#include <vector>

struct CFolderEntry {
    std::string strName;   // the bytes of the file system, be they valid text or not
    bool bFolder = false;  // a link to a folder is one
};

// The entries of a folder but for those that never appear anywhere, in no order; empty for a folder that
// cannot be read. strFolder may or may not end in a separator.
std::vector<CFolderEntry> ReadFolder(const std::string& strFolder);
// True if the folder holds at least one folder that may appear.
bool HasSubfolders(const std::string& strFolder);
