#include "effects/ImageEffect.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "effects/Effects.h"

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

}  // namespace

void CopyPicture(const CEffectCall& call) {
    std::memcpy(call.dst.pBits, call.src.pBits,
                call.src.Stride() * static_cast<std::size_t>(call.src.nHeight));
}

bool CImageEffect::ApplyEffect(CxImage& image, int nEffect, int nLevel, bool bFull, int nRefWidth) {
    if (!bFull) m_nRefWidth = nRefWidth;
    if (!image.IsValid() || nEffect < 0 || nEffect >= kEffectCount) return true;
    CPixels pixels;
    if (!pixels.CreateRaw(image.GetWidth(), image.GetHeight())) return false;
    const int nWidth = m_nRefWidth > 0 ? m_nRefWidth : image.GetWidth();
    kFunctions[static_cast<std::size_t>(nEffect)](
        {image.Pixels().View(), pixels.MutableView(), nLevel, nWidth, m_random});
    return image.ReplacePixels(std::move(pixels));
}
