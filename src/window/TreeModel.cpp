#include "window/TreeModel.h"

#include <algorithm>

namespace {

unsigned char Fold(char c) {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

// Without regard to the case of Latin letters; texts that differ in nothing else go by their bytes.
bool StandsBefore(const std::string& strA, const std::string& strB) {
    const auto [itA, itB] = std::mismatch(strA.begin(), strA.end(), strB.begin(), strB.end(),
                                          [](char a, char b) { return Fold(a) == Fold(b); });
    if (itA != strA.end() && itB != strB.end()) return Fold(*itA) < Fold(*itB);
    return strA.size() != strB.size() ? strA.size() < strB.size() : strA < strB;
}

}  // namespace

const std::vector<CTreeItem>& CTreeModel::Children(CTreeItem item) const {
    return item == kNoTreeItem ? m_arrTop : m_mapNodes.at(item).arrChildren;
}

std::vector<CTreeItem>& CTreeModel::ChildrenOf(CTreeItem item) {
    return item == kNoTreeItem ? m_arrTop : m_mapNodes.at(item).arrChildren;
}

CTreeItem CTreeModel::Insert(CTreeItem parent, std::size_t nPlace, const std::string& strText, ETreeIcon icon,
                             bool bHasChildren) {
    const CTreeItem item = m_nextItem++;
    m_mapNodes[item] = {strText, icon, parent, {}, bHasChildren, false, false};
    std::vector<CTreeItem>& arrChildren = ChildrenOf(parent);
    arrChildren.insert(arrChildren.begin() + static_cast<std::ptrdiff_t>(nPlace), item);
    if (m_pObserver != nullptr) m_pObserver->OnTreeInserted(item);
    return item;
}

CTreeItem CTreeModel::InsertLast(CTreeItem parent, const std::string& strText, ETreeIcon icon,
                                 bool bHasChildren) {
    return Insert(parent, Children(parent).size(), strText, icon, bHasChildren);
}

CTreeItem CTreeModel::InsertSorted(CTreeItem parent, const std::string& strText, ETreeIcon icon,
                                   bool bHasChildren) {
    const std::vector<CTreeItem>& arrChildren = Children(parent);
    const auto it = std::upper_bound(
        arrChildren.begin(), arrChildren.end(), strText,
        [this](const std::string& strNew, CTreeItem item) { return StandsBefore(strNew, Text(item)); });
    return Insert(parent, static_cast<std::size_t>(it - arrChildren.begin()), strText, icon, bHasChildren);
}

void CTreeModel::Forget(CTreeItem item) {
    for (const CTreeItem child : m_mapNodes.at(item).arrChildren) Forget(child);
    if (m_selected == item) m_selected = kNoTreeItem;
    m_mapNodes.erase(item);
}

void CTreeModel::Delete(CTreeItem item) {
    if (!Exists(item)) return;
    if (m_pObserver != nullptr) m_pObserver->OnTreeDeleting(item);
    std::erase(ChildrenOf(Parent(item)), item);
    Forget(item);
}

void CTreeModel::DeleteAll() {
    DeleteChildren(kNoTreeItem);
}

void CTreeModel::DeleteChildren(CTreeItem item) {
    while (!Children(item).empty()) Delete(Children(item).back());
}

void CTreeModel::SetHasChildrenMark(CTreeItem item, bool bHasChildren) {
    CNode& node = m_mapNodes.at(item);
    if (node.bHasChildren == bHasChildren) return;
    node.bHasChildren = bHasChildren;
    if (m_pObserver != nullptr) m_pObserver->OnTreeMarked(item);
}

void CTreeModel::Expand(CTreeItem item, bool bByUser) {
    if (!Exists(item)) return;
    if (m_pSink != nullptr && (bByUser || !m_mapNodes.at(item).bExpandedOnce))
        m_pSink->OnItemExpanding(item, true);
    if (!Exists(item)) return;
    CNode& node = m_mapNodes.at(item);
    node.bExpandedOnce = true;
    if (node.arrChildren.empty() || node.bExpanded) return;
    node.bExpanded = true;
    if (m_pObserver != nullptr) m_pObserver->OnTreeExpanded(item, true);
}

void CTreeModel::Collapse(CTreeItem item, bool bByUser) {
    if (!Exists(item)) return;
    if (m_pSink != nullptr && bByUser) m_pSink->OnItemExpanding(item, false);
    if (!Exists(item) || !m_mapNodes.at(item).bExpanded) return;
    m_mapNodes.at(item).bExpanded = false;
    if (m_pObserver != nullptr) m_pObserver->OnTreeExpanded(item, false);
}

void CTreeModel::Select(CTreeItem item, ETreeCause cause) {
    if (item == m_selected || (item != kNoTreeItem && !Exists(item))) return;
    for (CTreeItem above = item == kNoTreeItem ? item : Parent(item); above != kNoTreeItem;
         above = Parent(above))
        Expand(above);
    m_selected = item;
    if (m_pObserver != nullptr) m_pObserver->OnTreeSelected(item);
    if (m_pSink != nullptr) m_pSink->OnSelectionChanged(item, cause);
}
