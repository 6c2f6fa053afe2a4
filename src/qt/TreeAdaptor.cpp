#include "qt/TreeAdaptor.h"

#include <algorithm>

#include "qt/Text.h"

namespace {

int RowOf(const CTreeModel& tree, CTreeItem item) {
    const std::vector<CTreeItem>& arrChildren = tree.Children(tree.Parent(item));
    return static_cast<int>(std::find(arrChildren.begin(), arrChildren.end(), item) - arrChildren.begin());
}

}  // namespace

CTreeItem CTreeAdaptor::ItemOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<CTreeItem>(index.internalId()) : kNoTreeItem;
}

QModelIndex CTreeAdaptor::IndexOf(CTreeItem item) const {
    if (item == kNoTreeItem || !m_tree.Exists(item)) return {};
    return createIndex(RowOf(m_tree, item), 0, static_cast<quintptr>(item));
}

// The tree has the item by now; for Qt it comes between these two calls.
void CTreeAdaptor::Inserted(CTreeItem item) {
    const int nRow = RowOf(m_tree, item);
    beginInsertRows(IndexOf(m_tree.Parent(item)), nRow, nRow);
    endInsertRows();
}

void CTreeAdaptor::Deleting(CTreeItem item) {
    const int nRow = RowOf(m_tree, item);
    beginRemoveRows(IndexOf(m_tree.Parent(item)), nRow, nRow);
}

void CTreeAdaptor::Deleted() {
    endRemoveRows();
}

void CTreeAdaptor::Marked(CTreeItem item) {
    const QModelIndex changed = IndexOf(item);
    emit dataChanged(changed, changed);
}

QModelIndex CTreeAdaptor::index(int nRow, int nColumn, const QModelIndex& parentIndex) const {
    const std::vector<CTreeItem>& arrChildren = m_tree.Children(ItemOf(parentIndex));
    if (nRow < 0 || nRow >= static_cast<int>(arrChildren.size()) || nColumn != 0) return {};
    return createIndex(nRow, 0, static_cast<quintptr>(arrChildren[static_cast<std::size_t>(nRow)]));
}

QModelIndex CTreeAdaptor::parent(const QModelIndex& index) const {
    const CTreeItem item = ItemOf(index);
    return m_tree.Exists(item) ? IndexOf(m_tree.Parent(item)) : QModelIndex();
}

int CTreeAdaptor::rowCount(const QModelIndex& parentIndex) const {
    const CTreeItem item = ItemOf(parentIndex);
    if (item != kNoTreeItem && !m_tree.Exists(item)) return 0;
    return static_cast<int>(m_tree.Children(item).size());
}

bool CTreeAdaptor::hasChildren(const QModelIndex& parentIndex) const {
    const CTreeItem item = ItemOf(parentIndex);
    return item == kNoTreeItem ? rowCount(parentIndex) > 0
                               : m_tree.Exists(item) && m_tree.HasChildrenMark(item);
}

QVariant CTreeAdaptor::data(const QModelIndex& index, int nRole) const {
    const CTreeItem item = ItemOf(index);
    if (!m_tree.Exists(item)) return {};
    if (nRole == Qt::DisplayRole) return NameToQt(m_tree.Text(item));
    if (nRole == Qt::DecorationRole) return m_icons.Of(m_tree.Icon(item));
    return {};
}
