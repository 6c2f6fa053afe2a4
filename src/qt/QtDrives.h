#pragma once

#include <string>
#include <vector>

#include "window/Drives.h"

// A volume that the system has mounted.
struct CVolume {
    std::string strPath;  // with or without a closing separator
    std::string strName;  // as the user has named it; may be empty
    std::string strType;  // of its file system
};

// The drives of a system without drive letters: C the user's home, D the root of the file system, from E on
// the volumes that a user plugs in or connects to, in the order of their paths. strSamples is a folder to be
// had as one more drive behind these; empty for none.
std::vector<CDrive> NameDrives(const std::string& strHome, std::vector<CVolume> arrVolumes,
                               const std::string& strSamples);

// The environment variable FOTARIUM_SAMPLE_DRIVE names the folder that is to appear as a drive of its own.
class CQtDrives : public CDrives {
  public:
    std::vector<CDrive> List() override;
    std::string ComputerName() override;
};
