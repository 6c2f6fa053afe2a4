#pragma once

#include <QListView>

#include "qt/ControlWidget.h"
#include "qt/IconAdaptor.h"
#include "qt/IconDelegate.h"
#include "window/IconListHand.h"

// A list of pictures side by side with their names below. The dialog's list is what counts; the hand selects
// as in any list of the system's (rubber band, Ctrl, Shift), and the list's logic hears of it and of all that
// it asks for. What the hand does with the right button is left to the logic alone.
class CIconListWidget : public QListView, public CControlWidget, private CIconListObserver {
  public:
    explicit CIconListWidget(const CControlContext& context);
    ~CIconListWidget() override;

    QWidget& Widget() override { return *this; }
    // The item below a point of the viewport; beside picture and name there is none.
    QModelIndex indexAt(const QPoint& pt) const override;

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* pEvent) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

  private:
    void OnIconsReset() override;
    void OnIconChanged(int nItem) override;
    void OnIconsSelected() override;

    void SetUpLook();
    int ItemAt(QPoint pt) const;
    // Too far from where the left button went down for a click.
    bool IsFar(QPoint pt) const;

    CIconListModel m_iconsNone;  // shown where the dialog has no list
    CIconListModel& m_icons;
    CIconAdaptor m_adaptor;
    CIconDelegate m_delegate;
    bool m_bMirroring = false;  // what the view does now comes from the list
    CIconListHand m_hand{m_icons};
    QPoint m_ptPress;
};
