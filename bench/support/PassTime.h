#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "image/Pixels.h"

// Seconds. Time of the processor, not of the clock on the wall: other programs on the machine count little.
inline double ProcessorTime() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// What passes are counted in: the least time of x = 255 - x in place over pixels that nobody shares, which
// nothing can beat by much.
inline double PlainPassTime(CPixels& pixels) {
    double fLeast = 1e9;
    for (int i = 0; i < 100; ++i) {
        const double fStart = ProcessorTime();
        for (std::uint8_t& n : pixels.MutableBytes()) n = static_cast<std::uint8_t>(255 - n);
        benchmark::ClobberMemory();
        fLeast = std::min(fLeast, ProcessorTime() - fStart);
    }
    return fLeast;
}
