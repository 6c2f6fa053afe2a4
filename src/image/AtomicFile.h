#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// A file that appears as a whole or not at all: the bytes go to a temporary name in the target's folder, and
// Commit puts it in the target's place. Without a Commit that worked nothing is left behind and an older file
// stays as it was. A link's target is replaced, not the link; an older file keeps its permissions.
class CAtomicFile {
  public:
    CAtomicFile() = default;
    CAtomicFile(const CAtomicFile&) = delete;
    CAtomicFile& operator=(const CAtomicFile&) = delete;
    ~CAtomicFile();

    // False if the folder does not exist or cannot be written, or if the target is no ordinary file or
    // protected.
    [[nodiscard]] bool Open(const std::string& strPath);
    // False if the disk is full or fails. Many small pieces are slow: there is no buffer here.
    [[nodiscard]] bool Write(std::span<const std::uint8_t> bytes);
    // Brings the bytes to the disk and gives the file its name.
    [[nodiscard]] bool Commit();
    // Gives it its name without waiting for the disk, for a copy of what stands elsewhere: after a loss of
    // power the file may be empty.
    [[nodiscard]] bool CommitUnsynced();

  private:
    [[nodiscard]] bool TakeOverRights(const std::string& strTarget);
    [[nodiscard]] bool PutInPlace(bool bWhole);

    int m_nFile = -1;
    std::string m_strTarget;
    std::string m_strTemporary;  // empty: nothing to remove
};
