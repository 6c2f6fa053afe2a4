#include "qt/ListWidget.h"

#include <QScopedValueRollback>
#include <QScrollBar>

#include "qt/FontMapping.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"
#include "window/Dialog.h"

namespace {

constexpr char kStyle[] =
    "QListView { border: none; background: #6d797e; color: #ffffff; selection-background-color: #e88f36;"
    " selection-color: #ffffff; }";

}  // namespace

CListWidget::CListWidget(const CControlContext& context) : QListView(context.pParent), m_context(context) {
    setStyleSheet(QString(kStyle) + kScrollBarStyle);
    setFont(MapFont({}, 12));
    setModel(&m_model);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    FillModel();
    connect(this, &QListView::clicked, this,
            [this] { m_context.dialog.OnNotify(m_context.control.nId, ENotice::Clicked); });
    connect(this, &QListView::doubleClicked, this,
            [this] { m_context.dialog.OnNotify(m_context.control.nId, ENotice::DoubleClicked); });
}

void CListWidget::FillModel() {
    const QScopedValueRollback guard(m_bMirroring, true);
    m_model.clear();
    for (const CListItem& item : m_context.control.arrItems)
        m_model.appendRow(std::make_unique<QStandardItem>(ToQt(item.strText)).release());
    MirrorSelection();
}

void CListWidget::MirrorSelection() {
    const QScopedValueRollback guard(m_bMirroring, true);
    setCurrentIndex(m_model.index(m_context.control.nSel, 0));
}

void CListWidget::Mirror(EControlChange change) {
    if (change == EControlChange::Items) FillModel();
    if (change == EControlChange::Selection) MirrorSelection();
}

void CListWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_bMirroring || selected.isEmpty()) return;
    m_context.dialog.Controls().Select(m_context.control.nId, selected.indexes().constFirst().row());
    m_context.dialog.OnNotify(m_context.control.nId, ENotice::SelectionChanged);
}
