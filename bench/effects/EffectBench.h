#pragma once

#include <span>

#include "effects/Effects.h"

// One effect on twelve megapixels.
struct CEffectBenchRow {
    const char* szName;
    void (*effect)(const CEffectCall&);
    int nLevel;
};

// Registers each row in both of its forms; the plain one is what a processor without AVX2 gets. The counter
// "passes" is the time in units of the pass that nothing can beat by much, x = 255 - x in place over the same
// bytes, taken in the same run. Always true, so that a constant of a file can call it.
bool RegisterEffects(std::span<const CEffectBenchRow> rows);
