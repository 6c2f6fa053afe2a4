#pragma once

#include <QListView>
#include <QStandardItemModel>

#include "qt/ControlWidget.h"
#include "qt/PictureListWidget.h"
#include "window/PictureGridHand.h"

// Pictures that stand where their layout says, with a scroll bar that is always there. A list view of Qt's
// for what it tells of its items to others; places, marks and the hand are the grid's own.
class CPictureGridWidget : public QListView, public CControlWidget {
  public:
    explicit CPictureGridWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;
    void SetDensity(int nDensity) override;

    // Of the viewport, as it has scrolled.
    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& pt) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  protected:
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

  private:
    const CGridLayout& Layout() const { return *m_context.control.look.grid; }
    int ItemAt(QPoint pt) const;
    void MirrorItems();
    void MirrorMark();

    CControlContext m_context;
    QStandardItemModel m_model;
    CPictureDelegate m_delegate;
    CPictureGridHand m_hand;
    bool m_bMirroring = false;
};
