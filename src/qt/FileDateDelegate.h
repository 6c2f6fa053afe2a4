#pragma once

#include <QStyledItemDelegate>

// Writes the date of a file in a list the same way on every machine: 2026-01-31 09:05.
class CFileDateDelegate : public QStyledItemDelegate {
  protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override;
};
