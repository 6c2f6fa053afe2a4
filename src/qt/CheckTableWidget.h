#pragma once

#include <QStyledItemDelegate>
#include <QTableView>

#include "qt/CheckTableAdaptor.h"
#include "qt/ControlWidget.h"
#include "window/CheckTableHand.h"

// Paints a cell of a table: its text in the middle, a long one without its own middle, and in the first
// column the box before it.
class CCheckTableDelegate : public QStyledItemDelegate {
  public:
    void paint(QPainter* pPainter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

// Rows of texts in columns below their titles, each with a box to tick. The dialog's table is what counts:
// the view shows it and tells the hand. The last column takes the room that the others leave.
class CCheckTableWidget : public QTableView, public CControlWidget, private CCheckTableObserver {
  public:
    explicit CCheckTableWidget(const CControlContext& context);
    ~CCheckTableWidget() override;

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

  private:
    void OnRowsReset() override;
    void OnRowTicked(int nRow) override;
    void SetUpLook();
    void MirrorCurrent();
    int RowAt(const QMouseEvent& event) const;

    CControlContext m_context;
    CCheckTableModel m_tableNone;  // shown where the dialog has no table
    CCheckTableModel& m_table;
    CCheckTableAdaptor m_adaptor;
    CCheckTableDelegate m_delegate;
    CCheckTableHand m_hand;
    bool m_bRightDown = false;
    bool m_bMirroring = false;  // what the view does now comes from the dialog
};
