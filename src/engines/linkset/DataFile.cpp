#include "engines/linkset/DataFile.h"

#include <sys/stat.h>

#include <array>

#include "image/AtomicFile.h"
#include "image/FileBytes.h"

namespace {

// Where the parts of the head stand.
constexpr std::size_t kMarkBytes = 4;
constexpr std::size_t kVersionPlace = 4;
constexpr std::size_t kCountPlace = 8;
constexpr std::size_t kLengthPlace = 12;
constexpr std::size_t kSumPlace = 16;

constexpr std::array<std::uint32_t, 256> MakeSumTable() {
    std::array<std::uint32_t, 256> arrTable{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t n = i;
        for (int nBit = 0; nBit < 8; ++nBit) n = (n & 1U) != 0 ? (n >> 1U) ^ 0xEDB88320U : n >> 1U;
        arrTable[i] = n;
    }
    return arrTable;
}
constexpr auto kSumTable = MakeSumTable();

void Append(std::vector<std::uint8_t>& arrBytes, std::uint32_t n) {
    for (unsigned nShift = 0; nShift < 32; nShift += 8)
        arrBytes.push_back(static_cast<std::uint8_t>(n >> nShift));
}

// Asked before the file is read, so that a wrong one costs no memory.
bool HasFittingSize(const std::string& strPath) {
    struct stat status {};
    if (strPath.find('\0') != std::string::npos || stat(strPath.c_str(), &status) != 0) return false;
    return S_ISREG(status.st_mode) && status.st_size >= static_cast<off_t>(kDataHeadBytes) &&
           status.st_size <= static_cast<off_t>(kDataMostBytes);
}

}  // namespace

std::uint32_t DataSum(const std::uint8_t* pBytes, std::size_t nBytes) {
    std::uint32_t nSum = 0xFFFFFFFFU;
    for (std::size_t i = 0; i < nBytes; ++i) nSum = (nSum >> 8U) ^ kSumTable[(nSum ^ pBytes[i]) & 0xFFU];
    return ~nSum;
}

void CDataWriter::Put(std::uint32_t n) {
    Append(m_arrContent, n);
}

void CDataWriter::Put(const std::string& strText) {
    Put(static_cast<std::uint32_t>(strText.size()));
    m_arrContent.insert(m_arrContent.end(), strText.begin(), strText.end());
}

bool CDataWriter::Save(const std::string& strPath, std::string_view strMark, std::size_t nRecords) {
    if (m_arrContent.size() > kDataMostBytes - kDataHeadBytes) return false;
    std::vector<std::uint8_t> arrHead(strMark.begin(), strMark.end());
    Append(arrHead, kDataVersion);
    Append(arrHead, static_cast<std::uint32_t>(nRecords));
    Append(arrHead, static_cast<std::uint32_t>(m_arrContent.size()));
    Append(arrHead, DataSum(m_arrContent.data(), m_arrContent.size()));
    CAtomicFile file;
    return file.Open(strPath) && file.Write(arrHead) && file.Write(m_arrContent) && file.Commit();
}

bool CDataReader::Load(const std::string& strPath, std::string_view strMark) {
    if (!HasFittingSize(strPath)) return false;
    m_bytes = ReadFileBytes(strPath);
    m_nPlace = kDataHeadBytes;
    // It may have changed since its size was asked for.
    if (m_bytes.Size() < kDataHeadBytes || m_bytes.Size() > kDataMostBytes) return false;
    const std::uint8_t* const pContent = m_bytes.Data() + kDataHeadBytes;
    return std::string_view(reinterpret_cast<const char*>(m_bytes.Data()), kMarkBytes) == strMark &&
           NumberAt(kVersionPlace) == kDataVersion && NumberAt(kLengthPlace) == Left() &&
           NumberAt(kSumPlace) == DataSum(pContent, Left());
}

bool CDataReader::TakeCount(std::size_t nRecordBytes, std::uint32_t& nRecords) const {
    nRecords = NumberAt(kCountPlace);
    return nRecords <= Left() / nRecordBytes;
}

bool CDataReader::Take(std::uint32_t& n) {
    if (Left() < sizeof n) return false;
    n = NumberAt(m_nPlace);
    m_nPlace += sizeof n;
    return true;
}

bool CDataReader::Take(int& n) {
    std::uint32_t nBits = 0;
    if (!Take(nBits)) return false;
    n = static_cast<int>(nBits);
    return true;
}

bool CDataReader::Take(std::string& strText) {
    std::uint32_t nBytes = 0;
    if (!Take(nBytes) || nBytes > Left()) return false;
    strText.assign(reinterpret_cast<const char*>(m_bytes.Data()) + m_nPlace, nBytes);
    m_nPlace += nBytes;
    return true;
}

std::uint32_t CDataReader::NumberAt(std::size_t nPlace) const {
    std::uint32_t n = 0;
    for (std::size_t i = 0; i < sizeof n; ++i)
        n |= static_cast<std::uint32_t>(m_bytes.Data()[nPlace + i]) << (8U * static_cast<unsigned>(i));
    return n;
}
