#include "qt/BitmapButton.h"

#include <QPainter>
#include <algorithm>

#include "qt/Pictures.h"
#include "window/Dialog.h"

namespace {

std::string ToUpper(std::string str) {
    std::transform(str.begin(), str.end(), str.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return str;
}

}  // namespace

CBitmapButton::CBitmapButton(const CControlContext& context)
    : QAbstractButton(context.pParent), m_context(context), m_strRoot(ToUpper(context.control.strCaption)) {
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this,
            [this] { m_context.dialog.OnCommand(m_context.control.nId); });
}

void CBitmapButton::Mirror(EControlChange /*change*/) {
    update();
}

void CBitmapButton::SetDensity(int nDensity) {
    m_context.nDensity = nDensity;
    update();
}

char CBitmapButton::State() const {
    if (!isEnabled()) return 'X';
    if (isDown()) return 'D';
    return m_context.dialog.Controls().Focus() == m_context.control.nId ? 'F' : 'U';
}

void CBitmapButton::paintEvent(QPaintEvent* /*pEvent*/) {
    QPainter painter(this);
    const QPixmap* pPicture = m_context.pictures.Find(m_strRoot + State(), m_context.nDensity);
    if (pPicture == nullptr) pPicture = m_context.pictures.Find(m_strRoot + 'U', m_context.nDensity);
    if (pPicture != nullptr) painter.drawPixmap(0, 0, *pPicture);
}
