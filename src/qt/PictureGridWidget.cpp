#include "qt/PictureGridWidget.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "qt/KeyCodes.h"
#include "qt/QtGeometry.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"

namespace {

constexpr int kWheelPixels = 20;  // three of these a notch
constexpr int kRim = 2;           // of the mark, around its picture

}  // namespace

CPictureGridWidget::CPictureGridWidget(const CControlContext& context)
    : QListView(context.pParent),
      m_context(context),
      m_delegate(context.pictures, context.nDensity),
      m_hand(context.dialog, context.control.nId) {
    SetUpPictures(*this, context.control, m_model, m_delegate);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(ScrollPerPixel);
    MirrorItems();
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int nPos) { m_context.dialog.Controls().SetPosition(m_context.control.nId, nPos); });
}

// --- from the dialog ---

void CPictureGridWidget::MirrorItems() {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_model.clear();
    for (const CListItem& item : m_context.control.arrItems) {
        auto pItem = std::make_unique<QStandardItem>();
        pItem->setData(ToQt(item.strText), CPictureDelegate::kPictureRole);
        pItem->setData(ToQt(item.strSpoken), Qt::AccessibleTextRole);
        m_model.appendRow(pItem.release());
    }
    MirrorMark();
}

void CPictureGridWidget::MirrorMark() {
    const QScopedValueRollback guard(m_bMirroring, true);
    const QModelIndex index = m_model.index(m_context.control.nSel, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    viewport()->update();
}

void CPictureGridWidget::Mirror(EControlChange change) {
    if (change == EControlChange::Items) MirrorItems();
    if (change == EControlChange::Selection) MirrorMark();
    if (change == EControlChange::Position) verticalScrollBar()->setValue(m_context.control.nPos);
}

void CPictureGridWidget::SetDensity(int nDensity) {
    m_delegate.SetDensity(nDensity);
    viewport()->update();
}

// --- places ---

QRect CPictureGridWidget::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    return ToQt(Layout().PlaceOf(index.row())).translated(0, -verticalScrollBar()->value());
}

int CPictureGridWidget::ItemAt(QPoint pt) const {
    return Layout().ItemAt({pt.x(), pt.y() + verticalScrollBar()->value()}, m_model.rowCount());
}

QModelIndex CPictureGridWidget::indexAt(const QPoint& pt) const {
    return m_model.index(ItemAt(pt), 0);
}

void CPictureGridWidget::scrollTo(const QModelIndex& index, ScrollHint /*hint*/) {
    if (index.isValid() && !m_bMirroring) m_hand.BringIntoSight(index.row());
}

void CPictureGridWidget::updateGeometries() {
    QScrollBar& bar = *verticalScrollBar();
    bar.setRange(0, Layout().ScrollLimit());
    bar.setPageStep(Layout().nScrollPage);
    bar.setSingleStep(kWheelPixels);
}

void CPictureGridWidget::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

void CPictureGridWidget::paintEvent(QPaintEvent* /*pEvent*/) {
    QPainter painter(viewport());
    for (int nRow = 0; nRow < m_model.rowCount(); ++nRow) {
        const QModelIndex index = m_model.index(nRow, 0);
        const bool bMarked = nRow == m_context.control.nSel;
        QStyleOptionViewItem option;
        option.rect = visualRect(index);
        if (bMarked) {
            option.state |= QStyle::State_Selected;
            painter.fillRect(option.rect.adjusted(-kRim, -kRim, kRim, kRim), SkinColors::kWarm);
        }
        if (hasFocus() && nRow == std::max(0, m_context.control.nSel)) option.state |= QStyle::State_HasFocus;
        m_delegate.paint(&painter, option, index);
    }
}

// --- from the hand ---

// Not the mouse, nor a key: whoever operates the window for somebody who uses neither.
void CPictureGridWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_bMirroring || selected.isEmpty()) return;
    const int nItem = selected.indexes().constFirst().row();
    m_hand.OnPress(nItem);
    m_hand.OnRelease(nItem);
}

void CPictureGridWidget::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) m_hand.OnPress(ItemAt(pEvent->pos()));
}
void CPictureGridWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton || !viewport()->rect().contains(pEvent->pos())) return;
    m_hand.OnRelease(ItemAt(pEvent->pos()));
}
void CPictureGridWidget::mouseMoveEvent(QMouseEvent* /*pEvent*/) {}
void CPictureGridWidget::mouseDoubleClickEvent(QMouseEvent* /*pEvent*/) {}

void CPictureGridWidget::keyPressEvent(QKeyEvent* pEvent) {
    if (!m_hand.OnKey(KeyCodeOf(pEvent->key()))) pEvent->ignore();
}
