#pragma once

#include <functional>

#include "engines/effects/Effects.h"
#include "engines/effects/ImageEffect.h"
#include "engines/effects/NaiveForms.h"

// Every effect in its two forms, and pictures to try them on.

using CFastForm = void (*)(const CEffectCall&);
using CNaiveForm = std::function<CPixels(const CPixels&, int nLevel, int nRefWidth, CRandomSequence&)>;

struct CForms {
    const char* szName;
    CFastForm fast;
    CNaiveForm naive;
};
// In the order of the effects' numbers.
const std::array<CForms, kEffectCount>& EffectForms();

inline const CForms& FormsOf(EEffect effect) {
    return EffectForms()[static_cast<std::size_t>(NumberOf(effect))];
}

// What the fast form makes of a picture.
CPixels Applied(EEffect effect, const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random);

enum class EKind { Noise, Extremes, Dark, Dim, Pale, Slopes };
inline constexpr int kKinds = 6;
CPixels MakePicture(CSize size, EKind kind, unsigned nSeed);

inline CColor Grey(int n) {
    const auto nByte = static_cast<std::uint8_t>(n);
    return {nByte, nByte, nByte};
}
