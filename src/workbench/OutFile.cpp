#include "workbench/OutFile.h"

#include <vector>

#include "image/AtomicFile.h"

bool WriteBytes(const std::string& strPath, std::span<const std::uint8_t> bytes) {
    CAtomicFile out;
    return out.Open(strPath) && out.Write(bytes) && out.Commit();
}

bool WriteText(const std::string& strPath, const std::string& strText) {
    return WriteBytes(strPath, std::vector<std::uint8_t>(strText.begin(), strText.end()));
}
