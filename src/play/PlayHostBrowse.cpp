// The hand in trees and in lists of icons.

#include <algorithm>

#include "play/PlayHost.h"

// --- trees ---

std::string CPlayHost::ReachItem(int nId, CTreeItem item, CTreeModel*& pTree) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    pTree = pControl->kind == EControlKind::Tree ? m_dialog.TreeOf(nId) : nullptr;
    if (pTree == nullptr) return "control " + std::to_string(nId) + " is no tree";
    if (!pTree->Exists(item)) return "there is no such item in the tree";
    for (CTreeItem above = pTree->Parent(item); above != kNoTreeItem; above = pTree->Parent(above))
        if (!pTree->IsExpanded(above)) return '"' + pTree->Text(item) + "\" is not in sight";
    return {};
}

std::string CPlayHost::ToggleItem(int nId, CTreeItem item, bool bOpen) {
    CTreeModel* pTree = nullptr;
    if (std::string strWhy = ReachItem(nId, item, pTree); !strWhy.empty()) return strWhy;
    const std::string strName = '"' + pTree->Text(item) + '"';
    if (pTree->IsExpanded(item) == bOpen) return strName + (bOpen ? " is open already" : " is not open");
    if (bOpen && !pTree->HasChildrenMark(item)) return strName + " has nothing to open";
    TakeFocus(nId);
    if (bOpen)
        pTree->Expand(item, true);
    else
        pTree->Collapse(item, true);
    return Done();
}

std::string CPlayHost::SelectItem(int nId, CTreeItem item) {
    CTreeModel* pTree = nullptr;
    if (std::string strWhy = ReachItem(nId, item, pTree); !strWhy.empty()) return strWhy;
    TakeFocus(nId);
    pTree->Select(item, ETreeCause::Mouse);
    return Done();
}

CTreeItem CPlayHost::FindItem(int nId, CTreeItem parent, const std::string& strText) {
    const CTreeModel* pTree = m_dialog.TreeOf(nId);
    if (pTree == nullptr || (parent != kNoTreeItem && !pTree->Exists(parent))) return kNoTreeItem;
    for (const CTreeItem child : pTree->Children(parent))
        if (pTree->Text(child) == strText) return child;
    return kNoTreeItem;
}

// --- lists of icons ---

int CPlayHost::FindIcon(int nId, const std::string& strText) {
    const CIconListModel* pIcons = IconsOf(nId);
    for (int i = 0; pIcons != nullptr && i < pIcons->Count(); ++i)
        if (pIcons->Text(i) == strText) return i;
    return -1;
}

void CPlayHost::OnIconsReset() {
    m_nAnchor = 0;
    for (auto& [pIcons, hand] : m_mapIcons) hand.Forget();
}

std::string CPlayHost::ReachIcons(int nId, int nItem, CIconListModel*& pIcons) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    pIcons = IconsOf(nId);
    if (pIcons == nullptr || pIcons->Sink() == nullptr)
        return "control " + std::to_string(nId) + " is no list of icons";
    if (nItem < -1 || nItem >= pIcons->Count())
        return "list " + std::to_string(nId) + " has no item " + std::to_string(nItem) + ", only " +
               std::to_string(pIcons->Count()) + " from 0 on";
    return {};
}

std::string CPlayHost::ClickIcon(int nId, int nItem, unsigned nKeys) {
    CIconListModel* pIcons = nullptr;
    if (std::string strWhy = ReachIcons(nId, nItem, pIcons); !strWhy.empty()) return strWhy;
    TakeFocus(nId);
    HandOf(*pIcons).OnPress(nItem);
    const bool bKeep = (nKeys & kMouseCtrl) != 0;
    std::vector<int> arrItems = bKeep ? pIcons->SelectedItems() : std::vector<int>{};
    if (nItem >= 0 && (nKeys & kMouseShift) != 0) {
        for (int i = std::min(m_nAnchor, nItem); i <= std::max(m_nAnchor, nItem); ++i) arrItems.push_back(i);
    } else if (nItem >= 0) {
        m_nAnchor = nItem;
        if (std::erase(arrItems, nItem) == 0) arrItems.push_back(nItem);
    }
    pIcons->TakeSelection(arrItems);
    HandOf(*pIcons).OnRelease(nItem, true, false);
    return Done();
}

std::string CPlayHost::DoubleClickIcon(int nId, int nItem) {
    if (std::string strWhy = ClickIcon(nId, nItem); !strWhy.empty()) return strWhy;
    CIconListModel* pIcons = nullptr;
    if (std::string strWhy = ReachIcons(nId, nItem, pIcons); !strWhy.empty()) return strWhy;
    HandOf(*pIcons).OnDoubleClick(nItem);
    // The list may be gone before the button is up again.
    if (ReachIcons(nId, -1, pIcons).empty()) HandOf(*pIcons).OnRelease(-1, true, false);
    return Done();
}

std::string CPlayHost::RightPressIcon(int nId, int nItem) {
    CIconListModel* pIcons = nullptr;
    if (std::string strWhy = ReachIcons(nId, nItem, pIcons); !strWhy.empty()) return strWhy;
    TakeFocus(nId);
    HandOf(*pIcons).OnRightPress(nItem);
    return Done();
}

// The band begins beside all items, where the press takes the old selection away, and grows over one item
// after the other.
std::string CPlayHost::BandIcons(int nId, const std::vector<int>& arrItems) {
    CIconListModel* pIcons = nullptr;
    for (const int nItem : arrItems)
        if (std::string strWhy = ReachIcons(nId, nItem, pIcons); !strWhy.empty()) return strWhy;
    if (std::string strWhy = ReachIcons(nId, -1, pIcons); !strWhy.empty()) return strWhy;
    TakeFocus(nId);
    CIconListHand& hand = HandOf(*pIcons);
    hand.OnPress(-1);
    std::vector<int> arrUnder;
    pIcons->TakeSelection(arrUnder);
    for (const int nItem : arrItems) {
        arrUnder.push_back(nItem);
        pIcons->TakeSelection(arrUnder);
        hand.OnMove(true);
    }
    hand.OnRelease(-1, true, true);
    return Done();
}

std::string CPlayHost::KeyInIcons(int nId, const CKeyEvent& event) {
    CIconListModel* pIcons = nullptr;
    if (std::string strWhy = ReachIcons(nId, -1, pIcons); !strWhy.empty()) return strWhy;
    TakeFocus(nId);
    return Key(event);
}
