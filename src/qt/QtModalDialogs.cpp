#include "qt/QtModalDialogs.h"

#include <QApplication>
#include <QEventLoop>

#include "qt/ArrowCursor.h"
#include "qt/DialogView.h"
#include "qt/QtTimers.h"
#include "window/ScrollView.h"

void CloseDialog(CDialog& dialog, CQtTimers& timers) {
    dialog.OnDestroy();
    timers.Forget(dialog);
    for (const CControl& control : dialog.Controls().All()) {
        const CScrollView* pView = control.kind == EControlKind::View ? dialog.ViewOf(control.nId) : nullptr;
        if (pView != nullptr) timers.Forget(*pView);
    }
}

int CQtModalDialogs::Run(CDialog& dialog) {
    const CArrowCursor arrow;
    CDialogView view(dialog, m_pictures, QApplication::activeModalWidget());
    QEventLoop loop;
    view.SetEndHandler([&loop] { loop.quit(); });
    dialog.OnInitDialog();
    if (!dialog.HasEnded()) {
        view.Prepare();
        view.show();
        view.activateWindow();
        loop.exec();
        view.hide();
    }
    CloseDialog(dialog, m_timers);
    return dialog.HasEnded() ? dialog.EndCode() : CDialog::kDialogCancel;
}
