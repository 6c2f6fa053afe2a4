#include "qt/PictureListWidget.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include "qt/Pictures.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"
#include "window/Dialog.h"

namespace {

constexpr int kWheelNotch = 120;  // what a wheel reports for one click

bool MovesRow(int nKey) {
    return nKey == Qt::Key_Up || nKey == Qt::Key_Down || nKey == Qt::Key_PageUp || nKey == Qt::Key_PageDown ||
           nKey == Qt::Key_Left || nKey == Qt::Key_Right || nKey == Qt::Key_Home || nKey == Qt::Key_End;
}

}  // namespace

void CPictureDelegate::paint(QPainter* pPainter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    const QPixmap* pPixmap = m_pictures.Find(index.data(kPictureRole).toString().toStdString(), m_nDensity);
    if (pPixmap == nullptr) return;
    pPainter->drawPixmap(option.rect.topLeft(), *pPixmap);
    if (!option.state.testFlag(QStyle::State_HasFocus)) return;
    QSize size = pPixmap->size() / m_nDensity;
    // Pictures in their selected form are light.
    const bool bSelected = option.state.testFlag(QStyle::State_Selected);
    pPainter->setPen(QPen(bSelected ? SkinColors::kInk : SkinColors::kLit, 1, Qt::DotLine));
    pPainter->drawRect(
        QRect(option.rect.topLeft(), size.boundedTo(option.rect.size())).adjusted(2, 2, -3, -3));
}

// All rows are as high as the first picture.
QSize CPictureDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QPixmap* pPixmap = m_pictures.Find(index.data(kPictureRole).toString().toStdString(), m_nDensity);
    return pPixmap == nullptr ? QStyledItemDelegate::sizeHint(option, index) : pPixmap->size() / m_nDensity;
}

void SetUpPictures(QListView& view, const CControl& control, QStandardItemModel& model,
                   CPictureDelegate& delegate) {
    const char* const szBorder = HasBorder(control)
                                     ? "border: 1px solid; border-color: #4a5458 #aab5ac #aab5ac #4a5458;"
                                     : "border: none;";
    view.setStyleSheet(
        QString("QListView { %1 background: %2; }").arg(szBorder, SkinColors::kListGround.name()) +
        kScrollBarStyle);
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.setEditTriggers(QListView::NoEditTriggers);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

CPictureListWidget::CPictureListWidget(const CControlContext& context)
    : QListView(context.pParent), m_context(context), m_delegate(context.pictures, context.nDensity) {
    SetUpPictures(*this, context.control, m_model, m_delegate);
    setVerticalScrollMode(ScrollPerItem);
    setUniformItemSizes(true);
    MirrorRows();
    connect(this, &QListView::clicked, this,
            [this] { m_context.dialog.OnNotify(m_context.control.nId, ENotice::Clicked); });
}

// Rows that stay are not made anew, so that the list keeps its place.
void CPictureListWidget::MirrorRows() {
    const QScopedValueRollback guard(m_bMirroring, true);
    const std::vector<CListItem>& arrItems = m_context.control.arrItems;
    const int nRows = static_cast<int>(arrItems.size());
    if (m_model.rowCount() > nRows) m_model.setRowCount(nRows);
    for (int nRow = 0; nRow < nRows; ++nRow) {
        const CListItem& row = arrItems[static_cast<std::size_t>(nRow)];
        if (nRow == m_model.rowCount()) m_model.appendRow(std::make_unique<QStandardItem>().release());
        QStandardItem& item = *m_model.item(nRow);
        item.setData(ToQt(row.strSpoken), Qt::AccessibleTextRole);
        const QString strName = ToQt(row.strText);
        if (item.data(CPictureDelegate::kPictureRole).toString() != strName)
            item.setData(strName, CPictureDelegate::kPictureRole);
    }
    MirrorSelection();
}

void CPictureListWidget::MirrorSelection() {
    const QScopedValueRollback guard(m_bMirroring, true);
    const QModelIndex index = m_model.index(m_context.control.nSel, 0);
    if (index.isValid())
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    else
        selectionModel()->clearSelection();
}

void CPictureListWidget::Mirror(EControlChange change) {
    if (change == EControlChange::Items) MirrorRows();
    if (change == EControlChange::Selection) MirrorSelection();
}

void CPictureListWidget::SetDensity(int nDensity) {
    m_delegate.SetDensity(nDensity);
    viewport()->update();
}

void CPictureListWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_bMirroring || selected.isEmpty()) return;
    m_context.dialog.Controls().Select(m_context.control.nId, selected.indexes().constFirst().row());
    m_context.dialog.OnNotify(m_context.control.nId, ENotice::SelectionChanged);
}

// The first key takes the row that has the rim; from there on they move.
void CPictureListWidget::keyPressEvent(QKeyEvent* pEvent) {
    if (MovesRow(pEvent->key()) && currentIndex().isValid() && !selectionModel()->hasSelection())
        return selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
    QListView::keyPressEvent(pEvent);
}

// The keys to the sides move too, as in every list of one column.
QModelIndex CPictureListWidget::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveLeft) action = MoveUp;
    if (action == MoveRight) action = MoveDown;
    return QListView::moveCursor(action, modifiers);
}

// Only the left button takes a row.
void CPictureListWidget::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) QListView::mousePressEvent(pEvent);
}
void CPictureListWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) QListView::mouseDoubleClickEvent(pEvent);
}

// The base lets a row go when Ctrl is held, and would then tell it as a new choice at the next click.
QItemSelectionModel::SelectionFlags CPictureListWidget::selectionCommand(const QModelIndex& index,
                                                                         const QEvent* pEvent) const {
    const QItemSelectionModel::SelectionFlags flags = QListView::selectionCommand(index, pEvent);
    return flags.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : flags;
}

// A press takes a row; what the hand does until it lets go changes nothing.
void CPictureListWidget::mouseMoveEvent(QMouseEvent* /*pEvent*/) {}

void CPictureListWidget::wheelEvent(QWheelEvent* pEvent) {
    m_nWheel += pEvent->angleDelta().y();
    const int nNotches = m_nWheel / kWheelNotch;
    m_nWheel -= nNotches * kWheelNotch;
    verticalScrollBar()->setValue(verticalScrollBar()->value() - nNotches);
    pEvent->accept();
}
