#include "engines/linkset/FileSet.h"

#include <algorithm>
#include <utility>

#include "engines/linkset/DataFile.h"

namespace {

constexpr char kMark[] = "FDAT";
constexpr std::size_t kLeastRecordBytes = 20;  // five numbers, the last of them the length of an empty name

bool ReadItems(CDataReader& reader, std::vector<CFileItem>& arrItems) {
    std::uint32_t nItems = 0;
    if (!reader.TakeCount(kLeastRecordBytes, nItems)) return false;
    arrItems.resize(nItems);
    int nNo = 0;
    for (CFileItem& item : arrItems) {
        if (!reader.Take(item.m_nFileId) || !reader.Take(item.m_nFileSize) ||
            !reader.Take(item.m_nFileMemory) || !reader.Take(item.m_bFileClosed) ||
            !reader.Take(item.m_strFileName))
            return false;
        item.m_nFileNo = nNo++;
    }
    return reader.Left() == 0;
}

}  // namespace

bool CFILESet::Open() {
    Reset();
    CDataReader reader;
    std::vector<CFileItem> arrItems;
    if (!reader.Load(m_strFileName, kMark) || !ReadItems(reader, arrItems)) return false;
    m_nDataArray = std::move(arrItems);
    return true;
}

bool CFILESet::Write() const {
    CDataWriter writer;
    for (const CFileItem& item : m_nDataArray) {
        writer.Put(item.m_nFileId);
        writer.Put(item.m_nFileSize);
        writer.Put(item.m_nFileMemory);
        writer.Put(item.m_bFileClosed);
        writer.Put(item.m_strFileName);
    }
    return writer.Save(m_strFileName, kMark, m_nDataArray.size());
}

void CFILESet::Sort() {
    std::ranges::stable_sort(m_nDataArray, {}, &CFileItem::m_nFileNo);
}
