#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "image/SharedBytes.h"

// The form that FILE.Dat and User.Dat share: a head with a mark, a version, the number of records, and length
// and sum of the content that follows. All numbers are little-endian. docs/data-files.md tells it byte by
// byte.

inline constexpr std::uint32_t kDataVersion = 1;
inline constexpr std::size_t kDataHeadBytes = 20;
// No honest list comes near, and nobody takes memory for more.
inline constexpr std::size_t kDataMostBytes = std::size_t{64} << 20;

// The sum of a content: the CRC-32 of PNG and ZIP (reflected polynomial 0xEDB88320).
std::uint32_t DataSum(const std::uint8_t* pBytes, std::size_t nBytes);

// Collects the content of a file and writes all of it at once.
class CDataWriter {
  public:
    void Put(std::uint32_t n);
    void Put(int n) { Put(static_cast<std::uint32_t>(n)); }
    // The length of the text in bytes, then its bytes.
    void Put(const std::string& strText);
    // Puts a file of that four-letter mark in the place of strPath. False, and nothing changed, if it cannot
    // be written or would be larger than kDataMostBytes.
    [[nodiscard]] bool Save(const std::string& strPath, std::string_view strMark, std::size_t nRecords);

  private:
    std::vector<std::uint8_t> m_arrContent;
};

// Reads a file from front to end. A Take that reaches beyond the end gives false and takes nothing.
class CDataReader {
  public:
    // False if there is no whole file of that mark and of this version, with the sum that it names.
    [[nodiscard]] bool Load(const std::string& strPath, std::string_view strMark);
    // The number of records in the head. False if so many cannot stand in the content with nRecordBytes each
    // or more: memory may be taken for those that can.
    [[nodiscard]] bool TakeCount(std::size_t nRecordBytes, std::uint32_t& nRecords) const;
    [[nodiscard]] bool Take(std::uint32_t& n);
    [[nodiscard]] bool Take(int& n);
    [[nodiscard]] bool Take(std::string& strText);
    std::size_t Left() const { return m_bytes.Size() - m_nPlace; }

  private:
    [[nodiscard]] std::uint32_t NumberAt(std::size_t nPlace) const;

    CSharedBytes m_bytes;
    std::size_t m_nPlace = 0;
};
