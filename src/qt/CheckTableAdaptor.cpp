#include "qt/CheckTableAdaptor.h"

#include "qt/Text.h"

// The table has its new rows by now; for Qt they come between these two calls.
void CCheckTableAdaptor::Reset() {
    beginResetModel();
    endResetModel();
}

void CCheckTableAdaptor::Ticked(int nRow) {
    const QModelIndex changed = index(nRow, 0);
    emit dataChanged(changed, changed, {Qt::CheckStateRole});
}

int CCheckTableAdaptor::rowCount(const QModelIndex& parentIndex) const {
    return parentIndex.isValid() ? 0 : m_table.Count();
}

int CCheckTableAdaptor::columnCount(const QModelIndex& parentIndex) const {
    return parentIndex.isValid() ? 0 : static_cast<int>(m_arrColumns.size());
}

QVariant CCheckTableAdaptor::data(const QModelIndex& index, int nRole) const {
    if (!index.isValid() || index.row() >= m_table.Count()) return {};
    const CCheckTableModel::CRow& row = m_table.Row(index.row());
    const auto nColumn = static_cast<std::size_t>(index.column());
    if (nRole == Qt::DisplayRole && nColumn < row.arrTexts.size()) return NameToQt(row.arrTexts[nColumn]);
    if (nRole == Qt::CheckStateRole && nColumn == 0)
        return static_cast<int>(row.bTicked ? Qt::Checked : Qt::Unchecked);
    return {};
}

// Not the mouse, nor a key: whoever operates the window for somebody who uses neither.
bool CCheckTableAdaptor::setData(const QModelIndex& index, const QVariant& value, int nRole) {
    if (nRole != Qt::CheckStateRole || index.column() != 0 || index.row() >= m_table.Count()) return false;
    m_table.Tick(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags CCheckTableAdaptor::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flagsOfText = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == 0 ? flagsOfText | Qt::ItemIsUserCheckable : flagsOfText;
}

QVariant CCheckTableAdaptor::headerData(int nSection, Qt::Orientation orientation, int nRole) const {
    const bool bTitle = orientation == Qt::Horizontal && nSection < columnCount({});
    if (bTitle && nRole == Qt::DisplayRole)
        return ToQt(m_arrColumns[static_cast<std::size_t>(nSection)].szTitle);
    return bTitle && nRole == Qt::TextAlignmentRole ? QVariant(Qt::AlignCenter) : QVariant();
}
