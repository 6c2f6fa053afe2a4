#include "engines/linkset/UserSet.h"

#include <utility>

#include "engines/linkset/DataFile.h"

namespace {

constexpr char kMark[] = "UDAT";
constexpr std::size_t kLeastRecordBytes = 32;  // eight numbers, the last of them the number of sizes
constexpr std::size_t kSizeBytes = 8;

bool ReadSizes(CDataReader& reader, std::vector<CSize>& arrSizes) {
    std::uint32_t nSizes = 0;
    if (!reader.Take(nSizes) || nSizes > reader.Left() / kSizeBytes) return false;
    arrSizes.resize(nSizes);
    for (CSize& size : arrSizes)
        if (!reader.Take(size.cx) || !reader.Take(size.cy)) return false;
    return true;
}

bool ReadItems(CDataReader& reader, std::vector<CUserItem>& arrItems) {
    std::uint32_t nItems = 0;
    if (!reader.TakeCount(kLeastRecordBytes, nItems)) return false;
    arrItems.resize(nItems);
    for (CUserItem& item : arrItems) {
        if (!reader.Take(item.m_nUserId) || !reader.Take(item.m_nUserMaxFiles) ||
            !reader.Take(item.m_nUserThumbWidth) || !reader.Take(item.m_nUserThumbHeight) ||
            !reader.Take(item.m_nUserHasCard) || !reader.Take(item.m_nUserFetchOption) ||
            !reader.Take(item.m_nUserNoRestart) || !ReadSizes(reader, item.m_arrUserSizes))
            return false;
    }
    return reader.Left() == 0;
}

}  // namespace

bool CUserSet::Open() {
    Reset();
    CDataReader reader;
    std::vector<CUserItem> arrItems;
    if (!reader.Load(m_strFileName, kMark) || !ReadItems(reader, arrItems)) return false;
    m_nDataArray = std::move(arrItems);
    return true;
}

bool CUserSet::Write() const {
    CDataWriter writer;
    for (const CUserItem& item : m_nDataArray) {
        writer.Put(item.m_nUserId);
        writer.Put(item.m_nUserMaxFiles);
        writer.Put(item.m_nUserThumbWidth);
        writer.Put(item.m_nUserThumbHeight);
        writer.Put(item.m_nUserHasCard);
        writer.Put(item.m_nUserFetchOption);
        writer.Put(item.m_nUserNoRestart);
        writer.Put(static_cast<std::uint32_t>(item.m_arrUserSizes.size()));
        for (const CSize size : item.m_arrUserSizes) {
            writer.Put(size.cx);
            writer.Put(size.cy);
        }
    }
    return writer.Save(m_strFileName, kMark, m_nDataArray.size());
}
