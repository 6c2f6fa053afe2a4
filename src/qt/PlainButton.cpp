#include "qt/PlainButton.h"

#include "qt/Text.h"
#include "window/Dialog.h"

CPlainButton::CPlainButton(const CControlContext& context)
    : QPushButton(context.pParent), m_context(context) {
    setText(ToQt(context.control.strText));
    connect(this, &QPushButton::clicked, this, [this] { m_context.dialog.OnCommand(m_context.control.nId); });
}

void CPlainButton::Mirror(EControlChange change) {
    if (change == EControlChange::Text) setText(ToQt(m_context.control.strText));
}
