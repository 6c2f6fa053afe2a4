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
constexpr bool WorksInPlace(EEffect effect) {
    return effect == EEffect::Negative;
}

// False if there was no memory for what the effect needs besides the picture.
bool Run(EEffect effect, const CEffectCall& call) {
    try {
        kFunctions[static_cast<std::size_t>(effect)](call);
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

bool ApplyEffect(CxImage& image, EEffect effect, int nLevel, int nRefWidth, CRandomSequence& random) {
    if (!image.IsValid() || effect < EEffect::Brightness || effect > EEffect::Woodcut) return true;
    const int nWidth = nRefWidth > 0 ? nRefWidth : image.GetWidth();
    const CConstPixelView src = image.Pixels().View();
    // A picture that nobody shares needs no second memory, and only half the time.
    if (WorksInPlace(effect) && !image.Pixels().IsShared())
        return Run(effect,
                   {src, {image.MutableBytes().data(), src.nWidth, src.nHeight}, nLevel, nWidth, random});
    CPixels pixels;
    if (!pixels.CreateRaw(image.GetWidth(), image.GetHeight())) return false;
    if (!Run(effect, {src, pixels.MutableView(), nLevel, nWidth, random})) return false;
    return image.ReplacePixels(std::move(pixels));
}
