#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "window/Timers.h"

// Timers on a clock that stands still until it is told to go on, so that every run is the same. Ticks come in
// the order in which they are due, those due at the same time in the order in which they were set.
class CVirtualTimers : public CTimers {
  public:
    void SetTimer(CTimerTarget& target, int nTimer, int nMilliseconds) override;
    void KillTimer(CTimerTarget& target, int nTimer) override;
    // What a window does to its timers when it goes.
    void KillAllOf(const CTimerTarget& target);

    // Lets that much time pass. Every timer goes on from when it was due, so that one of 10 ticks five times
    // in 50.
    void Advance(int nMilliseconds);
    // Lets the time pass until the next tick; false if no timer runs.
    bool AdvanceToNext();

    std::int64_t Now() const { return m_nNow; }
    int Count() const { return static_cast<int>(m_arrTimers.size()); }
    bool IsRunning(const CTimerTarget& target, int nTimer) const;
    // Called behind every tick.
    void SetTickHook(std::function<void()> fnTicked) { m_fnTicked = std::move(fnTicked); }

  private:
    struct CTimer {
        CTimerTarget* pTarget;
        int nTimer;
        int nPeriod;
        std::int64_t nDue;
        std::uint64_t nOrder;
    };
    bool FireUntil(std::int64_t nEnd);

    std::vector<CTimer> m_arrTimers;
    std::int64_t m_nNow = 0;
    std::uint64_t m_nNextOrder = 0;
    std::function<void()> m_fnTicked;
};
