#include "qt/QtPopupMenus.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>

#include "qt/ArrowCursor.h"
#include "qt/Text.h"

int CQtPopupMenus::Track(std::span<const CMenuItem> arrItems) {
    const CArrowCursor arrow;
    QMenu menu(QApplication::activeModalWidget());
    for (const CMenuItem& item : arrItems) {
        QAction* pAction = menu.addAction(ToQt(item.strText));
        pAction->setData(item.nId);
        pAction->setEnabled(item.bEnabled);
    }
    const QAction* pChosen = menu.exec(QCursor::pos());
    return pChosen == nullptr ? 0 : pChosen->data().toInt();
}
