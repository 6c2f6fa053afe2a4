#pragma once

#include <string>
#include <vector>

#include "window/TreeModel.h"

// One drive, as the platform has it or as the window layer makes it up where there are no drive letters.
struct CDrive {
    char cLetter = 'C';      // upper case
    std::string strRoot;     // path of its top folder with a closing separator
    std::string strDisplay;  // display name, which ends in the letter: "系统 (C:)"
    ETreeIcon icon = ETreeIcon::Disk;
};

class CDrives {
  public:
    virtual ~CDrives() = default;
    // In the order of their letters, as they are at this moment.
    virtual std::vector<CDrive> List() = 0;
    // What the node above all drives is called.
    virtual std::string ComputerName() = 0;
};
