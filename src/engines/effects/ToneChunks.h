#pragma once

#include <algorithm>
#include <cstddef>

#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"

inline std::size_t PixelCount(const CEffectCall& call) {
    return static_cast<std::size_t>(call.src.nWidth) * static_cast<std::size_t>(call.src.nHeight);
}

// Calls step(first pixel, pixels) for one chunk of the picture after the other; rows do not matter.
template <class TStep>
void ForEachChunk(const CEffectCall& call, TStep step) {
    const std::size_t nPixels = PixelCount(call);
    for (std::size_t i = 0; i < nPixels; i += kChunkPixels) step(i, std::min(kChunkPixels, nPixels - i));
}
