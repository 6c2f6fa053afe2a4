#include "engines/effects/EffectForms.h"

#include <random>

namespace {

CNaiveForm Form(CPixels (*form)(const CPixels&)) {
    return [form](const CPixels& src, int, int, CRandomSequence&) { return form(src); };
}
CNaiveForm Form(CPixels (*form)(const CPixels&, int)) {
    return [form](const CPixels& src, int nLevel, int, CRandomSequence&) { return form(src, nLevel); };
}

std::uint8_t MakeByte(EKind kind, std::uint32_t nRandom, int x, int y, std::size_t nChannel) {
    switch (kind) {
        case EKind::Noise:
            return static_cast<std::uint8_t>(nRandom >> 8);
        case EKind::Extremes:
            return nRandom % 3 == 0 ? 255 : 0;
        case EKind::Dark:
            return static_cast<std::uint8_t>((nRandom >> 8) % 120);
        case EKind::Dim:
            return static_cast<std::uint8_t>(20 + (nRandom >> 8) % 24);
        case EKind::Pale:
            return static_cast<std::uint8_t>(190 + (nRandom >> 8) % 30);
        case EKind::Slopes:
            break;
    }
    return LimitToByte(x * 2 + y + static_cast<int>(nRandom % 9) + 40 * static_cast<int>(nChannel));
}

}  // namespace

const std::array<CForms, kEffectCount>& EffectForms() {
    static const std::array<CForms, kEffectCount> forms = {{
        {"Brightness", Brightness, Form(NaiveBrightness)},
        {"Contrast", Contrast, Form(NaiveContrast)},
        {"Chroma", Chroma, Form(NaiveChroma)},
        {"Sharpness", Sharpness, Form(NaiveSharpness)},
        {"Negative", Negative, Form(NaiveNegative)},
        {"PureBlackWhite", PureBlackWhite, Form(NaivePureBlackWhite)},
        {"BlackWhite", BlackWhite, Form(NaiveBlackWhite)},
        {"ColourSaturation", ColourSaturation, Form(NaiveColourSaturation)},
        {"OldPhoto", OldPhoto, Form(NaiveOldPhoto)},
        {"NoiseRemoval", NoiseRemoval, Form(NaiveNoiseRemoval)},
        {"Backlight", Backlight, Form(NaiveBacklight)},
        {"Homogenise", Homogenise, Form(NaiveHomogenise)},
        {"LowLightRepair", LowLightRepair, Form(NaiveLowLightRepair)},
        {"Nostalgia", Nostalgia, Form(NaiveNostalgia)},
        {"Moonlight", Moonlight, Form(NaiveMoonlight)},
        {"Haze1", Haze1, Form(NaiveHaze1)},
        {"Cool", Cool, Form(NaiveCool)},
        {"Haze2", Haze2, Form(NaiveHaze2)},
        {"Film", Film, Form(NaiveFilm)},
        {"Art", Art, Form(NaiveArt)},
        {"CrystalFrame", CrystalFrame, Form(NaiveCrystalFrame)},
        {"Jigsaw", Jigsaw, Form(NaiveJigsaw)},
        {"OilPainting", OilPainting, NaiveOilPainting},
        {"Tile", Tile, NaiveTile},
        {"Laminate", Laminate, NaiveLaminate},
        {"Engrave", Engrave, Form(NaiveEngrave)},
        {"ConcaveMirror", ConcaveMirror, Form(NaiveConcaveMirror)},
        {"Sketch", Sketch, Form(NaiveSketch)},
        {"Refraction2", Refraction2, Form(NaiveRefraction2)},
        {"Refraction1", Refraction1, Form(NaiveRefraction1)},
        {"Woodcut", Woodcut, Form(NaiveWoodcut)},
    }};
    return forms;
}

CPixels Applied(EEffect effect, const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random) {
    // Anything but black, so that a pixel that was left out shows.
    CPixels dst = CPixels::MakeFilled(src.Width(), src.Height(), {203, 77, 31});
    FormsOf(effect).fast({src.View(), dst.MutableView(), nLevel, nRefWidth, random});
    return dst;
}

CPixels MakePicture(CSize size, EKind kind, unsigned nSeed) {
    std::mt19937 random(nSeed);
    CPixels pixels = CPixels::MakeFilled(size.cx, size.cy, {});
    const std::span<std::uint8_t> bytes = pixels.MutableBytes();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto nPixel = static_cast<int>(i / 3);
        bytes[i] =
            MakeByte(kind, static_cast<std::uint32_t>(random()), nPixel % size.cx, nPixel / size.cx, i % 3);
    }
    return pixels;
}
