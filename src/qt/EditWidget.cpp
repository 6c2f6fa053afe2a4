#include "qt/EditWidget.h"

#include "qt/FontMapping.h"
#include "qt/Text.h"
#include "window/Dialog.h"

namespace {

constexpr char kBareStyle[] =
    "QLineEdit { border: none; background: #f5f7f4; color: #222a28; padding: 0 2px;"
    " selection-background-color: #e88f36; selection-color: #ffffff; }";

constexpr char kStyle[] =
    "QLineEdit { border: 1px solid #4a5458; background: #f5f7f4; color: #222a28; padding: 0 2px;"
    " selection-background-color: #e88f36; selection-color: #ffffff; }"
    "QLineEdit:focus { border-color: #e88f36; }"
    "QLineEdit:disabled { background: #c9d0ca; color: #868f8a; }";

}  // namespace

CEditWidget::CEditWidget(const CControlContext& context) : QLineEdit(context.pParent), m_context(context) {
    setStyleSheet(HasBorder(context.control) ? kStyle : kBareStyle);
    setFont(MapFont({}, context.control.rcPlace.Height() < 18 ? 12 : 13));
    if (context.control.nMaxText > 0) setMaxLength(context.control.nMaxText);
    setText(ToQt(context.control.strText));
    connect(this, &QLineEdit::textEdited, this, [this](const QString& str) {
        m_context.dialog.Controls().SetText(m_context.control.nId, FromQt(str));
        m_context.dialog.OnNotify(m_context.control.nId, ENotice::TextChanged);
    });
    connect(this, &QLineEdit::editingFinished, this, [this] {
        // The end of a dialog takes the focus away too.
        if (!m_context.dialog.HasEnded()) m_context.dialog.OnNotify(m_context.control.nId, ENotice::TextDone);
    });
}

void CEditWidget::Mirror(EControlChange change) {
    const QString str = ToQt(m_context.control.strText);
    // Setting the text that is there already would move the caret while the user types.
    if (change == EControlChange::Text && str != text()) setText(str);
}
