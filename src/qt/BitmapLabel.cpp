#include "qt/BitmapLabel.h"

#include <QPainter>

#include "qt/Pictures.h"
#include "window/Dialog.h"

CBitmapLabel::CBitmapLabel(const CControlContext& context)
    : QAbstractButton(context.pParent), m_context(context) {
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QAbstractButton::clicked, this,
            [this] { m_context.dialog.OnCommand(m_context.control.nId); });
}

void CBitmapLabel::SetDensity(int nDensity) {
    m_context.nDensity = nDensity;
    update();
}

void CBitmapLabel::paintEvent(QPaintEvent* /*pEvent*/) {
    const QPixmap* pPicture = m_context.pictures.Find(m_context.control.strCaption, m_context.nDensity);
    if (pPicture == nullptr) return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, *pPicture);
}
