#pragma once

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <string>

// Seconds by the clock, and of the processor for this process and the ended ones that it has started.
struct CSpent {
    double fClock = 0;
    double fProcessor = 0;
};

inline CSpent SpentUntilNow() {
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    CSpent spent;
    spent.fClock = std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    for (const auto nWhose : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(nWhose, &usage);
        spent.fProcessor += seconds(usage.ru_utime) + seconds(usage.ru_stime);
    }
    return spent;
}

template <class TWork>
CSpent MeasureOnce(TWork work) {
    const CSpent begin = SpentUntilNow();
    work();
    const CSpent end = SpentUntilNow();
    return {end.fClock - begin.fClock, end.fProcessor - begin.fProcessor};
}

// The least of each.
inline CSpent Least(CSpent a, CSpent b) {
    return {std::min(a.fClock, b.fClock), std::min(a.fProcessor, b.fProcessor)};
}

// Tells the figure among the benchmark's; one above the bound fails it.
inline void HoldBelow(benchmark::State& state, const std::string& strName, double fFigure, double fMost) {
    state.counters[strName] = fFigure;
    const std::string strError =
        strName + " is " + std::to_string(fFigure) + ", above " + std::to_string(fMost);
    if (fFigure > fMost) state.SkipWithError(strError.c_str());
}
