#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "image/Geometry.h"

// What is known of a phone that has been connected before.
struct CUserItem {
    std::uint32_t m_nUserId = 0;  // the phone's identity
    int m_nUserMaxFiles = -1;     // most files that it stores, -1 for no limit
    int m_nUserThumbWidth = 0;    // pixels
    int m_nUserThumbHeight = 0;
    int m_nUserHasCard = 0;  // these three 0 or 1
    int m_nUserFetchOption = 0;
    int m_nUserNoRestart = 0;
    std::vector<CSize> m_arrUserSizes;  // the picture sizes of the phone, in the library's order
    bool operator==(const CUserItem&) const = default;
};

// User.Dat: one record for each phone, in the order in which they came. A file that is cut short, of another
// version or with a wrong sum holds no record. docs/data-files.md tells its form.
class CUserSet {
  public:
    std::string m_strFileName;  // full path, set before Open and Write
    std::vector<CUserItem> m_nDataArray;

    // False, and no record, if there is no such file or if it is broken.
    bool Open();
    // Writes all records beside the file and puts them in its place; what was there stays if that fails.
    [[nodiscard]] bool Write() const;
    void Reset() { m_nDataArray.clear(); }
};
