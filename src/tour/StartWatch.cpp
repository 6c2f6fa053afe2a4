#include "tour/StartWatch.h"

#include <QApplication>
#include <QEvent>

#include "qt/DialogView.h"
#include "resources/Ids.h"

CStartWatch::CStartWatch() {
    QApplication::instance()->installEventFilter(this);
}

bool CStartWatch::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const bool bHide = pEvent->type() == QEvent::Hide;
    if (m_nMilliseconds >= 0 || (!bHide && pEvent->type() != QEvent::Paint)) return false;
    auto* pView = dynamic_cast<CDialogView*>(pWatched);
    if (pView == nullptr) return false;
    const int nDialog = pView->Dialog().Template().nId;
    if (bHide && nDialog == kDlgSplash) m_timer.start();
    if (!bHide && nDialog == kDlgMain && m_timer.isValid()) m_nMilliseconds = m_timer.elapsed();
    return false;
}
