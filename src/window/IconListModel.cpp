#include "window/IconListModel.h"

#include <algorithm>
#include <utility>

int CIconListModel::SelectedCount() const {
    return static_cast<int>(std::count_if(m_arrItems.begin(), m_arrItems.end(),
                                          [](const CItem& item) { return item.bSelected; }));
}

std::vector<int> CIconListModel::SelectedItems() const {
    std::vector<int> arrItems;
    for (int i = 0; i < Count(); ++i)
        if (IsSelected(i)) arrItems.push_back(i);
    return arrItems;
}

void CIconListModel::SetItems(const std::vector<std::string>& arrTexts) {
    m_arrItems.clear();
    m_arrItems.reserve(arrTexts.size());
    for (const std::string& strText : arrTexts) m_arrItems.push_back({strText, {}, false});
    if (m_pObserver != nullptr) m_pObserver->OnIconsReset();
}

void CIconListModel::SetPicture(int nItem, CPixels pixels) {
    m_arrItems[static_cast<std::size_t>(nItem)].pixels = std::move(pixels);
    if (m_pObserver != nullptr) m_pObserver->OnIconChanged(nItem);
}

void CIconListModel::Select(int nItem, bool bSelect) {
    CItem& item = m_arrItems[static_cast<std::size_t>(nItem)];
    if (item.bSelected == bSelect) return;
    item.bSelected = bSelect;
    if (m_pObserver != nullptr) m_pObserver->OnIconsSelected();
}

void CIconListModel::TakeSelection(const std::vector<int>& arrItems) {
    for (CItem& item : m_arrItems) item.bSelected = false;
    for (const int nItem : arrItems)
        if (nItem >= 0 && nItem < Count()) m_arrItems[static_cast<std::size_t>(nItem)].bSelected = true;
}
