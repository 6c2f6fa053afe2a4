#pragma once

#include <QTimer>
#include <map>
#include <memory>
#include <utility>

#include "window/Timers.h"

class CQtTimers : public CTimers {
  public:
    void SetTimer(CTimerTarget& target, int nTimer, int nMilliseconds) override;
    void KillTimer(CTimerTarget& target, int nTimer) override;
    // Kills all timers of a target, which may go away then.
    void Forget(const CTimerTarget& target);

  private:
    // A timer may be killed by its own tick.
    struct CDeleteLater {
        void operator()(QTimer* pTimer) const;
    };
    std::map<std::pair<const CTimerTarget*, int>, std::unique_ptr<QTimer, CDeleteLater>> m_mapTimers;
};
