#include "qt/ProgressWidget.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

#include "qt/SkinColors.h"

namespace {

constexpr int kMostHeight = 10;

}  // namespace

CProgressWidget::CProgressWidget(const CControlContext& context)
    : QWidget(context.pParent), m_control(context.control) {}

void CProgressWidget::Mirror(EControlChange change) {
    update();
    // The work that the bar shows runs in one handler; without this the bar would stand still until its end.
    if (change == EControlChange::Position && isVisible()) repaint();
}

void CProgressWidget::paintEvent(QPaintEvent* /*pEvent*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int nHeight = std::min(height(), kMostHeight);
    const int nTop = (height() - nHeight) / 2;
    const QRectF rc = QRectF(0, nTop, width(), nHeight).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(SkinColors::kListRim);
    painter.setBrush(SkinColors::kLevel);
    painter.drawRoundedRect(rc, 3, 3);
    const int nSpan = m_control.nMax - m_control.nMin;
    const double fPart = nSpan > 0 ? static_cast<double>(m_control.nPos - m_control.nMin) / nSpan : 0.0;
    if (fPart <= 0.0) return;
    QRectF rcFill = rc.adjusted(1.5, 1.5, -1.5, -1.5);
    rcFill.setWidth(rcFill.width() * fPart);
    QLinearGradient gradient(rcFill.topLeft(), rcFill.bottomLeft());
    gradient.setColorAt(0, SkinColors::kWarm.lighter(125));
    gradient.setColorAt(1, SkinColors::kWarm.darker(112));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(rcFill, 2, 2);
}
