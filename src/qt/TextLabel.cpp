#include "qt/TextLabel.h"

#include <QPainter>
#include <algorithm>

#include "qt/FontMapping.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"

namespace {

// The largest letters, up to the usual size, that stand in a line of that height.
int FontPixels(int nHeight) {
    if (nHeight <= 12) return 11;
    return nHeight <= 15 ? 12 : 13;
}

QString WithoutTrailingBlanks(const QString& str) {
    qsizetype nLength = str.size();
    while (nLength > 0 && str[nLength - 1].isSpace()) --nLength;
    return str.left(nLength);
}

}  // namespace

CTextLabel::CTextLabel(const CControlContext& context)
    : QWidget(context.pParent), m_control(context.control) {
    setFont(MapFont({}, FontPixels(context.control.rcPlace.Height())));
    Mirror(EControlChange::Text);
    const CControlLook& look = context.control.look;
    m_colorText = look.colorText ? ToQt(*look.colorText) : palette().color(QPalette::WindowText);
    if (look.colorGround) m_colorGround = ToQt(*look.colorGround);
}

void CTextLabel::Mirror(EControlChange change) {
    if (change != EControlChange::Text) return;
    setAccessibleName(WithoutTrailingBlanks(ToQt(m_control.strText)));
    update();
}

void CTextLabel::paintEvent(QPaintEvent* /*pEvent*/) {
    QPainter painter(this);
    const QString str = ToQt(m_control.strText).replace(QChar('\n'), QChar(' '));
    const int nWidth = fontMetrics().horizontalAdvance(str);
    if (m_colorGround.isValid())
        painter.fillRect(QRect(0, 0, std::min(nWidth, width()), height()), m_colorGround);
    painter.setPen(isEnabled() ? m_colorText : SkinColors::kPaleInk);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(WithoutTrailingBlanks(str), Qt::ElideRight, width()));
}
