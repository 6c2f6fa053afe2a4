#include "qt/QtPopupMenus.h"

#include <QActionGroup>
#include <QApplication>
#include <QCursor>
#include <QMenu>

#include "qt/ArrowCursor.h"
#include "qt/Text.h"

int CQtPopupMenus::Track(std::span<const CMenuItem> arrItems) {
    const CArrowCursor arrow;
    QMenu menu(QApplication::activeModalWidget());
    QActionGroup group(&menu);
    for (const CMenuItem& item : arrItems) {
        QAction* pAction = menu.addAction(ToQt(item.strText));
        pAction->setData(item.nId);
        pAction->setEnabled(item.bEnabled);
        if (!item.bMarked) continue;
        // The others of its group have no mark, not an empty one.
        pAction->setActionGroup(&group);
        pAction->setCheckable(true);
        pAction->setChecked(true);
    }
    const QAction* pChosen = menu.exec(QCursor::pos());
    return pChosen == nullptr ? 0 : pChosen->data().toInt();
}
