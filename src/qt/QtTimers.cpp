#include "qt/QtTimers.h"

#include <algorithm>

void CQtTimers::CDeleteLater::operator()(QTimer* pTimer) const {
    pTimer->stop();
    pTimer->disconnect();
    pTimer->deleteLater();
}

void CQtTimers::SetTimer(CTimerTarget& target, int nTimer, int nMilliseconds) {
    std::unique_ptr<QTimer, CDeleteLater> pTimer(std::make_unique<QTimer>().release());
    pTimer->setTimerType(Qt::PreciseTimer);
    pTimer->setInterval(std::max(nMilliseconds, kLeastPeriod));
    QObject::connect(pTimer.get(), &QTimer::timeout, pTimer.get(),
                     [&target, nTimer] { target.OnTimer(nTimer); });
    pTimer->start();
    m_mapTimers[{&target, nTimer}] = std::move(pTimer);
}

void CQtTimers::KillTimer(CTimerTarget& target, int nTimer) {
    m_mapTimers.erase({&target, nTimer});
}

void CQtTimers::Forget(const CTimerTarget& target) {
    std::erase_if(m_mapTimers, [&target](const auto& entry) { return entry.first.first == &target; });
}
