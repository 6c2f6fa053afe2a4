#include "qt/TreeWidget.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "qt/FontMapping.h"
#include "qt/SkinColors.h"
#include "window/Dialog.h"

namespace {

constexpr int kIndent = 17;

constexpr char kStyle[] = R"(
QTreeView { border: none; background: #ffffff; color: #222a28; padding: 3px 0 3px 2px; outline: none; }
QTreeView::item { height: 20px; padding-right: 6px; border: none; }
QTreeView::item:hover { background: #eef2ee; }
QTreeView::item:selected { background: #e88f36; color: #ffffff; }
QTreeView::item:selected:!active { background: #e88f36; }
)";

}  // namespace

CTreeWidget::CTreeWidget(const CControlContext& context)
    : QTreeView(context.pParent),
      m_tree(context.dialog.TreeOf(context.control.nId) != nullptr
                 ? *context.dialog.TreeOf(context.control.nId)
                 : m_treeNone),
      m_adaptor(m_tree) {
    setStyleSheet(QString(kStyle) + kScrollBarStyle);
    setFont(MapFont({}, 12));
    setHeaderHidden(true);
    setEditTriggers(NoEditTriggers);
    setUniformRowHeights(true);
    setIndentation(kIndent);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setModel(&m_adaptor);
    // As wide as the longest name, so that a deep one can be scrolled to, and no narrower than the view.
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    MirrorBelow(kNoTreeItem);
    OnTreeSelected(m_tree.Selected());
    connect(this, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { TellExpanded(index, true); });
    connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { TellExpanded(index, false); });
    m_tree.Attach(this);
}

CTreeWidget::~CTreeWidget() {
    m_tree.Attach(nullptr);
}

void CTreeWidget::resizeEvent(QResizeEvent* pEvent) {
    QTreeView::resizeEvent(pEvent);
    header()->setMinimumSectionSize(viewport()->width());
}

// Qt brings the row into view, but with one column only its left end. A deep item stands far to the right.
void CTreeWidget::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTreeView::scrollTo(index, hint);
    resizeColumnToContents(0);
    updateGeometries();
    const QRect rcItem = visualRect(index);
    if (!rcItem.isValid()) return;
    const int nRight = rcItem.left() + sizeHintForIndex(index).width();
    const int nLeft = rcItem.left() - indentation();
    const int nOver = std::min(nRight - viewport()->width(), nLeft);
    if (nLeft < 0 || nOver > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + (nLeft < 0 ? nLeft : nOver));
}

void CTreeWidget::MirrorBelow(CTreeItem item) {
    for (const CTreeItem child : m_tree.Children(item)) {
        if (m_tree.IsExpanded(child)) OnTreeExpanded(child, true);
        MirrorBelow(child);
    }
}

// --- from the tree ---

void CTreeWidget::OnTreeInserted(CTreeItem item) {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_adaptor.Inserted(item);
}

void CTreeWidget::OnTreeDeleting(CTreeItem item) {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_adaptor.Deleting(item);
}

// Qt selects a neighbour of what goes; the tree does not.
void CTreeWidget::OnTreeDeleted(CTreeItem /*item*/) {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_adaptor.Deleted();
    OnTreeSelected(m_tree.Selected());
}

void CTreeWidget::OnTreeMarked(CTreeItem item) {
    m_adaptor.Marked(item);
    // Qt looks anew at whether an item has children only when it lays the tree out.
    scheduleDelayedItemsLayout();
}

void CTreeWidget::OnTreeExpanded(CTreeItem item, bool bExpanded) {
    const QScopedValueRollback guard(m_bMirroring, true);
    setExpanded(m_adaptor.IndexOf(item), bExpanded);
}

void CTreeWidget::OnTreeSelected(CTreeItem item) {
    const QScopedValueRollback guard(m_bMirroring, true);
    const QModelIndex index = m_adaptor.IndexOf(item);
    if (!index.isValid()) clearSelection();
    if (index != currentIndex()) setCurrentIndex(index);
    if (index.isValid()) selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
}

// --- from the hand ---

// The view has opened the item already; the tree may find that there is nothing in it.
void CTreeWidget::TellExpanded(const QModelIndex& index, bool bExpanded) {
    if (m_bMirroring) return;
    const CTreeItem item = m_adaptor.ItemOf(index);
    if (bExpanded)
        m_tree.Expand(item, true);
    else
        m_tree.Collapse(item, true);
    if (m_tree.Exists(item)) OnTreeExpanded(item, m_tree.IsExpanded(item));
}

void CTreeWidget::TellSelected(ETreeCause cause) {
    const QModelIndexList arrSelected = selectedIndexes();
    if (!arrSelected.isEmpty()) m_tree.Select(m_adaptor.ItemOf(arrSelected.constFirst()), cause);
}

void CTreeWidget::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton) return;
    QTreeView::mousePressEvent(pEvent);
    TellSelected(ETreeCause::Mouse);
}

// A press that is drawn along selects nothing further.
void CTreeWidget::mouseMoveEvent(QMouseEvent* pEvent) {
    if (pEvent->buttons() == Qt::NoButton) QTreeView::mouseMoveEvent(pEvent);
}

void CTreeWidget::keyPressEvent(QKeyEvent* pEvent) {
    // Qt would open everything below, and a link can lead back to where it stands.
    if (pEvent->key() == Qt::Key_Asterisk) return;
    QTreeView::keyPressEvent(pEvent);
    TellSelected(ETreeCause::Keyboard);
}

QItemSelectionModel::SelectionFlags CTreeWidget::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* /*pEvent*/) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}
