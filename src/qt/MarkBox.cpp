#include "qt/MarkBox.h"

#include <QPainter>
#include <QPainterPath>

#include "qt/SkinColors.h"
#include "qt/Text.h"
#include "window/Dialog.h"
#include "window/Marks.h"

namespace {

constexpr int kBoxSide = 14;
constexpr int kCaptionGap = 5;
constexpr QColor kRim(64, 74, 78);
constexpr QColor kWell(228, 233, 228);
constexpr QColor kPaleWell(186, 194, 188);
constexpr QColor kPaleMark(150, 158, 153);

void PaintCheckMark(QPainter& painter, const QRectF& rc, bool bEnabled) {
    QPainterPath path(rc.topLeft() + QPointF(2.4, 5.8));
    path.lineTo(rc.topLeft() + QPointF(4.7, 8.4));
    path.lineTo(rc.topLeft() + QPointF(8.8, 2.8));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(bEnabled ? SkinColors::kWarm.darker(110) : kPaleMark, 2.4, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

}  // namespace

void PaintCheckBox(QPainter& painter, const QRectF& rc, bool bChecked, bool bEnabled) {
    painter.setPen(QPen(kRim, 1));
    painter.setBrush(bEnabled ? kWell : kPaleWell);
    painter.drawRoundedRect(rc, 2, 2);
    if (bChecked) PaintCheckMark(painter, rc, bEnabled);
}

CMarkBox::CMarkBox(const CControlContext& context) : QAbstractButton(context.pParent), m_context(context) {
    setFocusPolicy(Qt::StrongFocus);
    setText(ToQt(context.control.strCaption));  // also sets the key that an & names
    connect(this, &QAbstractButton::clicked, this, [this] {
        ClickMark(m_context.dialog.Controls(), m_context.control.nId);
        m_context.dialog.OnCommand(m_context.control.nId);
    });
}

void CMarkBox::Mirror(EControlChange /*change*/) {
    update();
}

void CMarkBox::PaintRound(QPainter& painter, const QRectF& rc) const {
    painter.drawEllipse(rc);
    if (!m_context.control.bChecked) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? SkinColors::kWarm : kPaleMark);
    painter.drawEllipse(rc.adjusted(3, 3, -3, -3));
}

void CMarkBox::PaintSquare(QPainter& painter, const QRectF& rc) const {
    painter.drawRoundedRect(rc, 2, 2);
    if (m_context.control.bChecked) PaintCheckMark(painter, rc, isEnabled());
}

void CMarkBox::paintEvent(QPaintEvent* /*pEvent*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool bFocus = m_context.dialog.Controls().Focus() == m_context.control.nId;
    const bool bRadio = m_context.control.kind == EControlKind::Radio;
    const int nTop = (height() - kBoxSide) / 2;
    const QRectF rc = QRectF(0, nTop, kBoxSide, kBoxSide).adjusted(1.5, 1.5, -1.5, -1.5);
    if (bFocus && isEnabled()) {
        const double fRadius = bRadio ? rc.width() / 2 + 1 : 3;
        painter.setPen(QPen(SkinColors::kWarm, 1));
        painter.drawRoundedRect(rc.adjusted(-1, -1, 1, 1), fRadius, fRadius);
    }
    painter.setPen(QPen(kRim, 1));
    painter.setBrush(!isEnabled() ? kPaleWell : isDown() ? kWell.darker(112) : kWell);
    if (bRadio)
        PaintRound(painter, rc);
    else
        PaintSquare(painter, rc);
    if (text().isEmpty()) return;
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect().adjusted(kBoxSide + kCaptionGap, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
}
