#pragma once

#include <span>

#include "engines/effects/EffectTable.h"

// One effect at one level, on twelve megapixels.
struct CEffectBenchRow {
    const char* szName = "";
    EEffect effect{};
    int nLevel = 0;
    double fAtMost = 0;   // passes that it may take; three times that in its plain form
    bool bAlone = false;  // nobody shares the picture's pixels
};

// Registers each row in both of its forms; the plain one is what a processor without AVX2 gets. The effect
// runs through the engine on a picture whose pixels another copy shares, as at CONFIRM, unless the row says
// otherwise. The counter "passes" is the time in units of the pass that nothing can beat by much, x = 255 - x
// in place over the same bytes, taken in the same run; both times are the least of many. Always true, so that
// a constant of a file can call it.
bool RegisterEffects(std::span<const CEffectBenchRow> rows);
