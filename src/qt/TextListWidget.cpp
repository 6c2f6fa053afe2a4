#include "qt/TextListWidget.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <memory>

#include "qt/FontMapping.h"
#include "qt/KeyCodes.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"

namespace {

constexpr char kStyle[] = R"(
QListView { border: %1; background: %2; color: %3; outline: none; }
QListView::item { height: %4px; padding-left: 4px; border: none; }
QListView::item:selected { background: %5; color: #ffffff; }
QListView:disabled { color: %6; }
)";

}  // namespace

CTextListWidget::CTextListWidget(const CControlContext& context)
    : QListView(context.pParent), m_context(context), m_hand(context.dialog, context.control.nId) {
    using namespace SkinColors;
    const QString strBorder = HasBorder(context.control) ? "1px solid " + kListRim.name() : "none";
    setStyleSheet(QString(kStyle)
                      .arg(strBorder, kPaper.name(), kInk.name())
                      .arg(CTextListHand::kRowPixels)
                      .arg(kWarm.name(), kPaleInk.name()) +
                  kScrollBarStyle);
    setFont(MapFont({}, 12));
    setModel(&m_model);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    MirrorItems();
}

void CTextListWidget::MirrorItems() {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_model.clear();
    for (const CListItem& item : m_context.control.arrItems) {
        auto pItem = std::make_unique<QStandardItem>(NameToQt(item.strText));
        if (!item.strSpoken.empty()) pItem->setData(ToQt(item.strSpoken), Qt::AccessibleTextRole);
        m_model.appendRow(pItem.release());
    }
    MirrorSelection();
}

void CTextListWidget::MirrorSelection() {
    const QScopedValueRollback guard(m_bMirroring, true);
    const QModelIndex index = m_model.index(m_context.control.nSel, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (index.isValid()) scrollTo(index);
}

void CTextListWidget::Mirror(EControlChange change) {
    if (change == EControlChange::Items) MirrorItems();
    if (change == EControlChange::Selection) MirrorSelection();
}

int CTextListWidget::RowAt(const QMouseEvent& event) const {
    return indexAt(event.pos()).row();
}

// What neither mouse nor arrow does: letters that are typed, and whoever operates the window for somebody.
void CTextListWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (!m_bMirroring && !selected.isEmpty()) m_hand.OnPress(selected.indexes().constFirst().row());
}

void CTextListWidget::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) m_hand.OnPress(RowAt(*pEvent));
}
// A press takes a row; what the hand does until it lets go changes nothing.
void CTextListWidget::mouseMoveEvent(QMouseEvent* /*pEvent*/) {}
void CTextListWidget::mouseReleaseEvent(QMouseEvent* /*pEvent*/) {}
void CTextListWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) m_hand.OnDoubleClick(RowAt(*pEvent));
}

void CTextListWidget::keyPressEvent(QKeyEvent* pEvent) {
    if (m_hand.OnKey(KeyCodeOf(pEvent->key()))) return;
    const QString strTyped = pEvent->text();
    // A blank would begin what is looked for, and no text begins with it.
    const bool bLetter = !strTyped.isEmpty() && strTyped.front().isPrint() && !strTyped.front().isSpace();
    if (!bLetter) return pEvent->ignore();
    keyboardSearch(strTyped);
}
