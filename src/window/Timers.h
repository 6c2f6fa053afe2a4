#pragma once

// Gets the ticks of its timers, on the one thread, between other events.
class CTimerTarget {
  public:
    virtual ~CTimerTarget() = default;
    virtual void OnTimer(int nTimer) = 0;
};

// Repeating timers; a target and a number make one timer. They tick until killed, the first time one period
// after they were set.
class CTimers {
  public:
    // The shortest period, in milliseconds; a shorter one counts as this. So what works at "0", as fast as
    // the system lets it, has the same pace on every machine, and other events come in between.
    static constexpr int kLeastPeriod = 10;

    virtual ~CTimers() = default;
    // A timer that runs already starts anew with the new period.
    virtual void SetTimer(CTimerTarget& target, int nTimer, int nMilliseconds) = 0;
    virtual void KillTimer(CTimerTarget& target, int nTimer) = 0;
};
