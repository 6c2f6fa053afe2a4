#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A file on the phone, as FILE.Dat tells of it.
struct CFileItem {
    std::uint32_t m_nFileId = 0;    // the phone's own number of the file
    std::uint32_t m_nFileSize = 0;  // bytes
    int m_nFileMemory = 0;          // 0: inner memory, else the card
    int m_bFileClosed = 0;          // not 0: it cannot be taken; 1 shows as such in the list
    std::string m_strFileName;      // may hold a path with "/"; bytes as the phone gave them
    int m_nFileNo = 0;              // position in FILE.Dat, from 0
    bool operator==(const CFileItem&) const = default;
};

// FILE.Dat: the list of the phone's files that the phone library writes and the program reads. A file that is
// cut short, of another version or with a wrong sum holds no record. docs/data-files.md tells its form.
class CFILESet {
  public:
    std::string m_strFileName;  // full path, set before Open and Write
    std::vector<CFileItem> m_nDataArray;

    // Reads all records, numbered in the order of the file. False, and no record, if there is no such file or
    // if it is broken.
    bool Open();
    // Writes all records beside the file and puts them in its place; what was there stays if that fails.
    [[nodiscard]] bool Write() const;
    // Brings the records into the order in which they are shown, which is the order of the file.
    void Sort();
    void Reset() { m_nDataArray.clear(); }
};
