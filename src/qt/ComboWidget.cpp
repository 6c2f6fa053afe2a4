#include "qt/ComboWidget.h"

#include <QPainter>

#include "qt/SkinColors.h"
#include "qt/Text.h"
#include "window/Dialog.h"

namespace {

constexpr int kTextMargin = 6;
constexpr int kArrowRoom = 20;

}  // namespace

CComboWidget::CComboWidget(const CControlContext& context) : QComboBox(context.pParent), m_context(context) {
    Mirror(EControlChange::Items);
    connect(this, &QComboBox::activated, this, [this](int nRow) {
        m_context.dialog.Controls().Select(m_context.control.nId, nRow);
        m_context.dialog.OnNotify(m_context.control.nId, ENotice::SelectionChanged);
    });
}

void CComboWidget::Mirror(EControlChange change) {
    if (change == EControlChange::Items) {
        clear();
        for (const CListItem& item : m_context.control.arrItems) addItem(ToQt(item.strText));
    }
    if (change == EControlChange::Items || change == EControlChange::Selection)
        setCurrentIndex(m_context.control.nSel);
}

// The list that drops down is Qt's own.
void CComboWidget::paintEvent(QPaintEvent* /*pEvent*/) {
    QPainter painter(this);
    const QColor colorText = isEnabled() ? SkinColors::kInk : SkinColors::kPaleInk;
    painter.fillRect(rect(), SkinColors::kPaper);
    if (HasBorder(m_context.control)) {
        painter.setPen(SkinColors::kListRim);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    painter.setPen(colorText);
    painter.drawText(
        rect().adjusted(kTextMargin, 0, -kArrowRoom, 0), Qt::AlignLeft | Qt::AlignVCenter,
        fontMetrics().elidedText(currentText(), Qt::ElideRight, width() - kTextMargin - kArrowRoom));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(hasFocus() ? SkinColors::kWarm : colorText);
    const QPointF ptArrow(width() - kArrowRoom / 2.0, height() / 2.0);
    painter.drawPolygon(
        QPolygonF({ptArrow + QPointF(-4.5, -2), ptArrow + QPointF(4.5, -2), ptArrow + QPointF(0, 3)}));
}
