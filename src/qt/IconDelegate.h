#pragma once

#include <QStyledItemDelegate>

#include "window/IconListModel.h"

// Paints the cells of a list of icons: the picture, and its name below in at most two lines. All cells have
// one size.
class CIconDelegate : public QStyledItemDelegate {
  public:
    // The list outlives the delegate.
    explicit CIconDelegate(const CIconListModel& icons) : m_icons(icons) {}

    // A cell with the room around it.
    static QSize GridSize();
    // The parts of a cell that a hand can hit: the picture, and the ground below it that holds the name.
    static bool Hits(const QRect& rcCell, QPoint pt);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* pPainter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

  private:
    const CIconListModel& m_icons;
};
