#include "engines/effects/ImageEffect.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

#include "engines/effects/Effects.h"

namespace {

using CEffectFunction = void (*)(const CEffectCall&);

// In the order of the numbers.
constexpr std::array<CEffectFunction, kEffectCount> kFunctions = {
    Brightness,     Contrast,       Chroma,        Sharpness,
    Negative,       PureBlackWhite, BlackWhite,    ColourSaturation,
    OldPhoto,       NoiseRemoval,   Backlight,     Homogenise,
    LowLightRepair, Nostalgia,      Moonlight,     Haze1,
    Cool,           Haze2,          Film,          Art,
    CrystalFrame,   Jigsaw,         OilPainting,   Tile,
    Laminate,       Engrave,        ConcaveMirror, Sketch,
    Refraction2,    Refraction1,    Woodcut,
};

// True if the effect may write where it reads.
constexpr bool WorksInPlace(int nEffect) {
    return nEffect == kNegative;
}

// False if there was no memory for what the effect needs besides the picture.
bool Run(int nEffect, const CEffectCall& call) {
    try {
        kFunctions[static_cast<std::size_t>(nEffect)](call);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

}  // namespace

void CopyPicture(const CEffectCall& call) {
    std::memcpy(call.dst.pBits, call.src.pBits,
                call.src.Stride() * static_cast<std::size_t>(call.src.nHeight));
}

bool CImageEffect::ApplyEffect(CxImage& image, int nEffect, int nLevel, bool bFull, int nRefWidth) {
    if (!bFull) m_nRefWidth = nRefWidth;
    if (!image.IsValid() || nEffect < 0 || nEffect >= kEffectCount) return true;
    const int nWidth = m_nRefWidth > 0 ? m_nRefWidth : image.GetWidth();
    const CConstPixelView src = image.Pixels().View();
    // A picture that nobody shares needs no second memory, and only half the time.
    if (WorksInPlace(nEffect) && !image.Pixels().IsShared())
        return Run(nEffect,
                   {src, {image.MutableBytes().data(), src.nWidth, src.nHeight}, nLevel, nWidth, m_random});
    CPixels pixels;
    if (!pixels.CreateRaw(image.GetWidth(), image.GetHeight())) return false;
    if (!Run(nEffect, {src, pixels.MutableView(), nLevel, nWidth, m_random})) return false;
    return image.ReplacePixels(std::move(pixels));
}
