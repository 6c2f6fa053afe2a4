#include "qt/ComboWidget.h"

#include "qt/Text.h"
#include "window/Dialog.h"

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
