#include "controls/ImageListBox.h"

#include <algorithm>
#include <utility>

void CImageListBox::SetImageList(std::vector<std::string> arrCells, CSize sizeCell) {
    m_arrCells = std::move(arrCells);
    m_nImageHeight = sizeCell.cy;
    SetItemHeight(0);
}

void CImageListBox::ReplaceCell(int nCell, const std::string& strPicture) {
    if (nCell < 0 || nCell >= static_cast<int>(m_arrCells.size())) return;
    m_arrCells[static_cast<std::size_t>(nCell)] = strPicture;
    ShowRows();
}

int CImageListBox::AddItem(int nImage, std::uint32_t dwData, std::string strSpoken) {
    if (nImage > static_cast<int>(m_arrCells.size())) return -1;
    m_arrRows.push_back({nImage, dwData, std::move(strSpoken)});
    ShowRows();
    return Count() - 1;
}

std::int64_t CImageListBox::GetItemData(int nRow) const {
    return nRow < 0 || nRow >= Count() ? -1 : std::int64_t{m_arrRows[static_cast<std::size_t>(nRow)].dwData};
}

bool CImageListBox::SetItemData(int nRow, std::uint32_t dwData) {
    if (nRow < 0 || nRow >= Count()) return false;
    m_arrRows[static_cast<std::size_t>(nRow)].dwData = dwData;
    return true;
}

// Only the low 16 bits of a height count.
void CImageListBox::SetItemHeight(int nHeight) {
    m_nItemHeight = std::max(m_nImageHeight, nHeight & 0xFFFF);
}

// The control's rows carry the name of the picture that they show.
void CImageListBox::ShowRows() {
    std::vector<CListItem> arrItems;
    for (const CRow& row : m_arrRows) {
        const bool bHasCell = row.nImage >= 0 && row.nImage < static_cast<int>(m_arrCells.size());
        arrItems.push_back({bHasCell ? m_arrCells[static_cast<std::size_t>(row.nImage)] : std::string(),
                            row.nImage, row.strSpoken});
    }
    m_controls.SetItems(m_nId, std::move(arrItems));
}
