#pragma once

#include <QAbstractTableModel>
#include <span>

#include "window/CheckTableModel.h"
#include "window/Control.h"

// Gives Qt's views a table of rows to tick to read. Keeps nothing of it. Ticks are the first column's.
class CCheckTableAdaptor : public QAbstractTableModel {
  public:
    // The table outlives the adaptor, and so do the columns.
    CCheckTableAdaptor(CCheckTableModel& table, std::span<const CTableColumn> arrColumns)
        : m_table(table), m_arrColumns(arrColumns) {}

    // The table has new rows, or one of them another tick.
    void Reset();
    void Ticked(int nRow);

    int rowCount(const QModelIndex& parentIndex) const override;
    int columnCount(const QModelIndex& parentIndex) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int nRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

  private:
    CCheckTableModel& m_table;
    std::span<const CTableColumn> m_arrColumns;
};
