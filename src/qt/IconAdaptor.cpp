#include "qt/IconAdaptor.h"

#include "qt/Text.h"

void CIconAdaptor::Reset() {
    beginResetModel();
    endResetModel();
}

void CIconAdaptor::Changed(int nItem) {
    const QModelIndex changed = index(nItem, 0);
    emit dataChanged(changed, changed, {Qt::DecorationRole});
}

int CIconAdaptor::rowCount(const QModelIndex& parentIndex) const {
    return parentIndex.isValid() ? 0 : m_icons.Count();
}

QVariant CIconAdaptor::data(const QModelIndex& index, int nRole) const {
    if (nRole != Qt::DisplayRole || index.row() >= m_icons.Count()) return {};
    return NameToQt(m_icons.Text(index.row()));
}
