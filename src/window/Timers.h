#pragma once

// Gets the ticks of its timers, on the one thread, between other events.
class CTimerTarget {
  public:
    virtual ~CTimerTarget() = default;
    virtual void OnTimer(int nTimer) = 0;
};

// Repeating timers; a target and a number make one timer. They tick until killed.
class CTimers {
  public:
    virtual ~CTimers() = default;
    // A timer that runs already starts anew with the new period. 0 milliseconds: as fast as events allow.
    virtual void SetTimer(CTimerTarget& target, int nTimer, int nMilliseconds) = 0;
    virtual void KillTimer(CTimerTarget& target, int nTimer) = 0;
};
