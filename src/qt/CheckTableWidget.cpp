#include "qt/CheckTableWidget.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <utility>

#include "qt/FontMapping.h"
#include "qt/KeyCodes.h"
#include "qt/MarkBox.h"
#include "qt/SkinColors.h"

namespace {

constexpr int kTextMargin = 3;
constexpr QColor kGridLine(190, 198, 191);

constexpr char kStyle[] = R"(
QTableView { border: %1; background: %2; gridline-color: %3; outline: none; }
QHeaderView { background: %4; border: none; }
QHeaderView::section { background: %4; color: %5; padding: 0; border: none;
  border-right: 1px solid %3; border-bottom: 1px solid %3; }
)";

}  // namespace

void CCheckTableDelegate::paint(QPainter* pPainter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    const bool bEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool bCurrent = option.state.testFlag(QStyle::State_Selected);
    if (bCurrent) pPainter->fillRect(option.rect, SkinColors::kWarm);
    QRect rcText = option.rect;
    if (index.column() == 0) {
        constexpr int kSide = CCheckTableHand::kBoxPixels;
        const QRect rcBox(option.rect.left() + CCheckTableHand::kBoxLeft,
                          option.rect.top() + (option.rect.height() - kSide) / 2, kSide, kSide);
        const bool bTicked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        pPainter->save();
        pPainter->setRenderHint(QPainter::Antialiasing);
        PaintCheckBox(*pPainter, QRectF(rcBox).adjusted(1.5, 1.5, -1.5, -1.5), bTicked, bEnabled);
        pPainter->restore();
        rcText.setLeft(rcBox.right() + 1);
    }
    rcText.adjust(kTextMargin, 0, -kTextMargin, 0);
    pPainter->setFont(option.font);
    pPainter->setPen(!bEnabled ? SkinColors::kPaleInk : bCurrent ? QColor(Qt::white) : SkinColors::kInk);
    pPainter->drawText(
        rcText, Qt::AlignCenter | Qt::TextSingleLine,
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, rcText.width()));
}

CCheckTableWidget::CCheckTableWidget(const CControlContext& context)
    : QTableView(context.pParent),
      m_context(context),
      m_table(context.dialog.TableOf(context.control.nId) != nullptr
                  ? *context.dialog.TableOf(context.control.nId)
                  : m_tableNone),
      m_adaptor(m_table, context.control.look.arrColumns),
      m_hand(context.dialog, context.control.nId, m_table) {
    setModel(&m_adaptor);
    setItemDelegate(&m_delegate);
    SetUpLook();
    MirrorCurrent();
    m_table.Attach(this);
}

CCheckTableWidget::~CCheckTableWidget() {
    m_table.Attach(nullptr);
}

void CCheckTableWidget::SetUpLook() {
    using namespace SkinColors;
    const QString strBorder = HasBorder(m_context.control) ? "1px solid " + kListRim.name() : "none";
    setStyleSheet(QString(kStyle).arg(strBorder, kPaper.name(), kGridLine.name(), kFace.name(), kInk.name()) +
                  kScrollBarStyle);
    setFont(MapFont({}, 12));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView& rows = *verticalHeader();
    rows.hide();
    rows.setMinimumSectionSize(CCheckTableHand::kRowPixels);
    rows.setDefaultSectionSize(CCheckTableHand::kRowPixels);
    rows.setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView& titles = *horizontalHeader();
    titles.setFont(font());
    titles.setFixedHeight(CCheckTableHand::kTitlePixels);
    titles.setMinimumSectionSize(1);
    titles.setSectionResizeMode(QHeaderView::Fixed);
    titles.setSectionsClickable(false);
    titles.setHighlightSections(false);
    int nColumn = 0;
    for (const CTableColumn& column : m_context.control.look.arrColumns)
        setColumnWidth(nColumn++, column.nWidth);
    // The last one ends where the table does, so that its texts stand in the middle of what is seen of it.
    titles.setStretchLastSection(true);
}

// --- from the dialog ---

void CCheckTableWidget::OnRowsReset() {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_adaptor.Reset();
    m_hand.OnRowsReset();
    MirrorCurrent();
}

void CCheckTableWidget::OnRowTicked(int nRow) {
    m_adaptor.Ticked(nRow);
}

void CCheckTableWidget::MirrorCurrent() {
    const QScopedValueRollback guard(m_bMirroring, true);
    selectionModel()->setCurrentIndex(m_adaptor.index(m_context.control.nSel, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CCheckTableWidget::Mirror(EControlChange change) {
    if (change == EControlChange::Selection) MirrorCurrent();
}

// --- from the hand ---

int CCheckTableWidget::RowAt(const QMouseEvent& event) const {
    return indexAt(event.pos()).row();
}

// Not the mouse, nor a key: whoever operates the window for somebody who uses neither.
void CCheckTableWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (!m_bMirroring && !selected.isEmpty()) m_hand.OnPress(selected.indexes().constFirst().row(), false);
}

void CCheckTableWidget::mousePressEvent(QMouseEvent* pEvent) {
    m_bRightDown = pEvent->button() == Qt::RightButton;
    if (pEvent->button() == Qt::LeftButton)
        m_hand.OnPress(RowAt(*pEvent), CCheckTableHand::IsOnBox(pEvent->pos().x()));
}
void CCheckTableWidget::mouseMoveEvent(QMouseEvent* /*pEvent*/) {}
void CCheckTableWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::RightButton || !std::exchange(m_bRightDown, false)) return;
    if (viewport()->rect().contains(pEvent->pos())) m_hand.OnRightClick(RowAt(*pEvent));
}
void CCheckTableWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton) m_hand.OnDoubleClick(RowAt(*pEvent));
    m_bRightDown = pEvent->button() == Qt::RightButton;
}

// The key for menus; with the mouse the button's release counts.
void CCheckTableWidget::contextMenuEvent(QContextMenuEvent* pEvent) {
    if (pEvent->reason() == QContextMenuEvent::Keyboard) m_hand.OnRightClick(-1);
}

void CCheckTableWidget::keyPressEvent(QKeyEvent* pEvent) {
    if (!m_hand.OnKey(KeyCodeOf(pEvent->key()))) pEvent->ignore();
}
