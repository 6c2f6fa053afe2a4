#include "qt/QtMessageBoxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include "qt/ArrowCursor.h"
#include "qt/Text.h"

namespace {

QMessageBox::Icon IconOf(EBoxIcon icon) {
    switch (icon) {
        case EBoxIcon::Information:
            return QMessageBox::Information;
        case EBoxIcon::Exclamation:
            return QMessageBox::Warning;
        case EBoxIcon::Stop:
            return QMessageBox::Critical;
        case EBoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

struct CBoxButton {
    QMessageBox::StandardButton button;
    const char* szCaption;
    EBoxAnswer answer;
};

constexpr CBoxButton kOk{QMessageBox::Ok, "确定", EBoxAnswer::Ok};
constexpr CBoxButton kCancel{QMessageBox::Cancel, "取消", EBoxAnswer::Cancel};
constexpr CBoxButton kYes{QMessageBox::Yes, "是", EBoxAnswer::Yes};
constexpr CBoxButton kNo{QMessageBox::No, "否", EBoxAnswer::No};

}  // namespace

EBoxAnswer CQtMessageBoxes::Show(const CMessageBox& box) {
    const CBoxButton& first = box.buttons == EBoxButtons::YesNo ? kYes : kOk;
    const CBoxButton& last = box.buttons == EBoxButtons::OkCancel ? kCancel
                             : box.buttons == EBoxButtons::YesNo  ? kNo
                                                                  : kOk;
    const CArrowCursor arrow;
    QMessageBox window(QApplication::activeModalWidget());
    window.setTextFormat(Qt::PlainText);
    window.setWindowTitle(ToQt(box.strTitle));
    window.setText(ToQt(box.strText));
    window.setIcon(IconOf(box.icon));
    window.setStandardButtons(first.button | last.button);
    for (const CBoxButton* pButton : {&first, &last})
        window.button(pButton->button)->setText(QString::fromUtf8(pButton->szCaption));
    window.setDefaultButton(first.button);
    window.setEscapeButton(last.button);
    return window.exec() == first.button ? first.answer : last.answer;
}
