#include "qt/IconListWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
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
    "QListView { border: none; background: %1; color: #ffffff; outline: none;"
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
    setStyleSheet(QString(kStyle).arg(SkinColors::kListGround.name()) + kScrollBarStyle);
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
    m_hand.Forget();
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

// Shift alone selects from one item to another and nothing else; Qt would keep what Ctrl had added before.
QItemSelectionModel::SelectionFlags CIconListWidget::selectionCommand(const QModelIndex& index,
                                                                      const QEvent* pEvent) const {
    QItemSelectionModel::SelectionFlags flags = QListView::selectionCommand(index, pEvent);
    if (pEvent == nullptr || !pEvent->isInputEvent() || !index.isValid()) return flags;
    const auto keys = static_cast<const QInputEvent*>(pEvent)->modifiers();
    const bool bShiftAlone = keys.testFlag(Qt::ShiftModifier) && !keys.testFlag(Qt::ControlModifier);
    if (bShiftAlone && flags.testFlag(QItemSelectionModel::Current)) flags |= QItemSelectionModel::Clear;
    return flags;
}

QModelIndex CIconListWidget::indexAt(const QPoint& pt) const {
    const QModelIndex index = QListView::indexAt(pt);
    return index.isValid() && CIconDelegate::Hits(visualRect(index), pt) ? index : QModelIndex();
}

int CIconListWidget::ItemAt(QPoint pt) const {
    const QModelIndex index = indexAt(pt);
    return index.isValid() ? index.row() : -1;
}

bool CIconListWidget::IsFar(QPoint pt) const {
    return (pt - m_ptPress).manhattanLength() >= QApplication::startDragDistance();
}

void CIconListWidget::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::RightButton) m_hand.OnRightPress(ItemAt(pEvent->pos()));
    if (pEvent->button() != Qt::LeftButton) return;
    m_ptPress = pEvent->pos();
    m_hand.OnPress(ItemAt(pEvent->pos()));
    // With Shift an untouched list selects from its first item on; Qt would select nothing.
    if (!currentIndex().isValid())
        selectionModel()->setCurrentIndex(model()->index(0, 0), QItemSelectionModel::NoUpdate);
    // Several that are selected stay so until the release, since they may be on their way out of the list.
    QListView::mousePressEvent(pEvent);
}

void CIconListWidget::mouseMoveEvent(QMouseEvent* pEvent) {
    m_hand.OnMove(IsFar(pEvent->pos()));
    if (!m_hand.IsOnItem()) QListView::mouseMoveEvent(pEvent);
}

void CIconListWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton) return;
    // The end of a drag leaves what is selected as it is; Qt would take it for a click beside all items.
    if (!m_hand.IsDragging()) QListView::mouseReleaseEvent(pEvent);
    m_hand.OnRelease(ItemAt(pEvent->pos()), viewport()->rect().contains(pEvent->pos()), IsFar(pEvent->pos()));
}

// It may show another folder.
void CIconListWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) m_hand.OnDoubleClick(ItemAt(pEvent->pos()));
}

void CIconListWidget::keyPressEvent(QKeyEvent* pEvent) {
    const int nKey = KeyCodeOf(pEvent->key());
    // An Enter that is held opens nothing twice.
    if (nKey == kKeyEnter && pEvent->isAutoRepeat()) return;
    const bool bShift = pEvent->modifiers().testFlag(Qt::ShiftModifier);
    if (!m_hand.OnKey({nKey, false, bShift})) QListView::keyPressEvent(pEvent);
}
