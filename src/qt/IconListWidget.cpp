#include "qt/IconListWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>
#include <vector>

#include "qt/FontMapping.h"
#include "qt/KeyCodes.h"
#include "qt/SkinColors.h"
#include "window/Dialog.h"

namespace {

constexpr int kLeftMargin = 6;
constexpr int kTopMargin = 4;
constexpr int kWheelPixels = 40;

constexpr char kStyle[] =
    "QListView { border: none; background: #6d797e; color: #ffffff; outline: none;"
    " selection-background-color: #e88f36; selection-color: #ffffff; }";

}  // namespace

CIconListWidget::CIconListWidget(const CControlContext& context)
    : QListView(context.pParent),
      m_icons(context.dialog.IconsOf(context.control.nId) != nullptr
                  ? *context.dialog.IconsOf(context.control.nId)
                  : m_iconsNone),
      m_adaptor(m_icons),
      m_delegate(m_icons) {
    SetUpLook();
    setItemDelegate(&m_delegate);
    setModel(&m_adaptor);
    OnIconsSelected();
    m_icons.Attach(this);
}

CIconListWidget::~CIconListWidget() {
    m_icons.Attach(nullptr);
}

void CIconListWidget::SetUpLook() {
    setStyleSheet(QString(kStyle) + kScrollBarStyle);
    setFont(MapFont({}, 12));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setGridSize(CIconDelegate::GridSize());
    setViewportMargins(kLeftMargin, kTopMargin, 0, 0);
    setSelectionMode(ExtendedSelection);
    setSelectionRectVisible(true);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(kWheelPixels);
}

// --- from the list ---

void CIconListWidget::OnIconsReset() {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_adaptor.Reset();
    m_press = EPress::None;
    scrollToTop();
}

void CIconListWidget::OnIconChanged(int nItem) {
    m_adaptor.Changed(nItem);
}

void CIconListWidget::OnIconsSelected() {
    const QScopedValueRollback guard(m_bMirroring, true);
    QItemSelection selection;
    const int nCount = m_icons.Count();
    for (int nBegin = 0; nBegin < nCount; ++nBegin) {
        if (!m_icons.IsSelected(nBegin)) continue;
        int nEnd = nBegin;
        while (nEnd + 1 < nCount && m_icons.IsSelected(nEnd + 1)) ++nEnd;
        selection.select(m_adaptor.index(nBegin, 0), m_adaptor.index(nEnd, 0));
        nBegin = nEnd;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

// --- from the hand ---

void CIconListWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_bMirroring) return;
    std::vector<int> arrItems;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int nRow = range.top(); nRow <= range.bottom(); ++nRow) arrItems.push_back(nRow);
    m_icons.TakeSelection(arrItems);
}

QModelIndex CIconListWidget::indexAt(const QPoint& pt) const {
    const QModelIndex index = QListView::indexAt(pt);
    return index.isValid() && CIconDelegate::Hits(visualRect(index), pt) ? index : QModelIndex();
}

int CIconListWidget::ItemAt(QPoint pt) const {
    const QModelIndex index = indexAt(pt);
    return index.isValid() ? index.row() : -1;
}

void CIconListWidget::mousePressEvent(QMouseEvent* pEvent) {
    CIconListSink* pSink = m_icons.Sink();
    if (pEvent->button() == Qt::RightButton && pSink != nullptr) pSink->OnRightPress(ItemAt(pEvent->pos()));
    if (pEvent->button() != Qt::LeftButton) return;
    if (pSink != nullptr) pSink->OnLeftPress();
    m_ptPress = pEvent->pos();
    m_press = ItemAt(pEvent->pos()) < 0 ? EPress::Ground : EPress::Item;
    // Several that are selected stay so until the release, since they may be on their way out of the list.
    QListView::mousePressEvent(pEvent);
}

// A rubber band starts on the ground only; what is drawn along from an item is on its way out of the list.
void CIconListWidget::mouseMoveEvent(QMouseEvent* pEvent) {
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnMouseMove();
    if (m_press == EPress::None || m_press == EPress::Ground) return QListView::mouseMoveEvent(pEvent);
    if ((pEvent->pos() - m_ptPress).manhattanLength() >= QApplication::startDragDistance())
        m_press = EPress::Drag;
}

// A list tracks the click of an item by itself: its logic hears of the click and not of the button's release.
void CIconListWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton) return;
    const EPress press = std::exchange(m_press, EPress::None);
    const bool bKept = press == EPress::Item;
    if (!bKept && m_icons.Sink() != nullptr && viewport()->rect().contains(pEvent->pos()))
        m_icons.Sink()->OnLeftRelease();
    QListView::mouseReleaseEvent(pEvent);
    const bool bMoved = (pEvent->pos() - m_ptPress).manhattanLength() >= QApplication::startDragDistance();
    if (bKept || (press == EPress::Ground && !bMoved)) TellClick(pEvent->pos());
}

void CIconListWidget::TellClick(QPoint pt) {
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnItemClick(ItemAt(pt));
}

void CIconListWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton) return;
    const int nItem = ItemAt(pEvent->pos());
    // Last, since it may show another folder.
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnItemDoubleClick(nItem);
}

void CIconListWidget::keyPressEvent(QKeyEvent* pEvent) {
    CIconListSink* pSink = m_icons.Sink();
    const int nKey = KeyCodeOf(pEvent->key());
    if (pSink != nullptr && nKey == kKeyEnter) {
        if (!pEvent->isAutoRepeat()) pSink->OnEnter();
        return;
    }
    if (pSink != nullptr && nKey == kKeyDelete)
        return pSink->OnKeyDown(nKey, pEvent->modifiers().testFlag(Qt::ShiftModifier));
    QListView::keyPressEvent(pEvent);
}
