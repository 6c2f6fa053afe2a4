#include "play/VirtualTimers.h"

#include <algorithm>
#include <limits>
#include <tuple>

void CVirtualTimers::SetTimer(CTimerTarget& target, int nTimer, int nMilliseconds) {
    KillTimer(target, nTimer);
    const int nPeriod = std::max(nMilliseconds, kLeastPeriod);
    m_arrTimers.push_back({&target, nTimer, nPeriod, m_nNow + nPeriod, m_nNextOrder++});
}

void CVirtualTimers::KillTimer(CTimerTarget& target, int nTimer) {
    std::erase_if(m_arrTimers,
                  [&](const CTimer& timer) { return timer.pTarget == &target && timer.nTimer == nTimer; });
}

void CVirtualTimers::KillAllOf(const CTimerTarget& target) {
    std::erase_if(m_arrTimers, [&](const CTimer& timer) { return timer.pTarget == &target; });
}

bool CVirtualTimers::IsRunning(const CTimerTarget& target, int nTimer) const {
    return std::any_of(m_arrTimers.begin(), m_arrTimers.end(), [&](const CTimer& timer) {
        return timer.pTarget == &target && timer.nTimer == nTimer;
    });
}

// The next tick that is due by then; false if there is none.
bool CVirtualTimers::FireUntil(std::int64_t nEnd) {
    const auto it =
        std::min_element(m_arrTimers.begin(), m_arrTimers.end(), [](const CTimer& a, const CTimer& b) {
            return std::tie(a.nDue, a.nOrder) < std::tie(b.nDue, b.nOrder);
        });
    if (it == m_arrTimers.end() || it->nDue > nEnd) return false;
    m_nNow = std::max(m_nNow, it->nDue);
    // The target may kill this timer or set others: nothing of the list is touched behind the call.
    CTimerTarget& target = *it->pTarget;
    const int nTimer = it->nTimer;
    it->nDue += it->nPeriod;
    target.OnTimer(nTimer);
    if (m_fnTicked) m_fnTicked();
    return true;
}

void CVirtualTimers::Advance(int nMilliseconds) {
    const std::int64_t nEnd = m_nNow + std::max(0, nMilliseconds);
    while (FireUntil(nEnd)) {
    }
    m_nNow = std::max(m_nNow, nEnd);
}

bool CVirtualTimers::AdvanceToNext() {
    return FireUntil(std::numeric_limits<std::int64_t>::max());
}
