#pragma once

#include <QTreeView>

#include "qt/ControlWidget.h"
#include "qt/TreeAdaptor.h"

// The tree of folders, on white. The dialog's tree is what counts: the view opens, closes and selects as it
// says, and tells it what the hand has opened, closed or selected.
class CTreeWidget : public QTreeView, public CControlWidget, private CTreeObserver {
  public:
    explicit CTreeWidget(const CControlContext& context);
    ~CTreeWidget() override;

    QWidget& Widget() override { return *this; }
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;

  protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* pEvent) const override;

  private:
    void OnTreeInserted(CTreeItem item) override;
    void OnTreeDeleting(CTreeItem item) override;
    void OnTreeDeleted(CTreeItem item) override;
    void OnTreeMarked(CTreeItem item) override;
    void OnTreeExpanded(CTreeItem item, bool bExpanded) override;
    void OnTreeSelected(CTreeItem item) override;

    void MirrorBelow(CTreeItem item);
    void TellExpanded(const QModelIndex& index, bool bExpanded);
    void TellSelected(ETreeCause cause);

    CTreeModel m_treeNone;  // shown where the dialog has no tree
    CTreeModel& m_tree;
    CTreeAdaptor m_adaptor;
    bool m_bMirroring = false;  // what the view does now comes from the tree
};
