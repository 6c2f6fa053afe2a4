#pragma once

#include <array>
#include <cstddef>

// The thirty-one effects by their numbers, which are their places in the effect list.
enum class EEffect : int {
    Brightness = 0,
    Contrast,
    Chroma,
    Sharpness,
    Negative,
    PureBlackWhite,
    BlackWhite,
    ColourSaturation,
    OldPhoto,
    NoiseRemoval,
    Backlight,
    Homogenise,
    LowLightRepair,
    Nostalgia,
    Moonlight,
    Haze1,
    Cool,
    Haze2,
    Film,
    Art,
    CrystalFrame,
    Jigsaw,
    OilPainting,
    Tile,
    Laminate,
    Engrave,
    ConcaveMirror,
    Sketch,
    Refraction2,
    Refraction1,
    Woodcut,
};
inline constexpr int kEffectCount = 31;

constexpr int NumberOf(EEffect effect) {
    return static_cast<int>(effect);
}
// nNumber is one of 0 .. kEffectCount - 1.
constexpr EEffect EffectOf(int nNumber) {
    return static_cast<EEffect>(nNumber);
}

static_assert(NumberOf(EEffect::Woodcut) + 1 == kEffectCount);

// What the list and the level slider need to know of an effect.
struct CEffectRow {
    const char* szLabel;  // what its picture in the list says
    bool bHasLevel;       // without one the slider is hidden
    int nMin;             // the slider's range: the top end is the highest level
    int nMax;
    int nStart;  // the slider's position at level 0
};

constexpr CEffectRow NoLevel(const char* szLabel) {
    return {szLabel, false, -100, 100, 100};
}

inline constexpr std::array<CEffectRow, kEffectCount> kEffects = {{
    {"亮度", true, -100, 100, 0},
    {"对比度", true, -100, 100, 0},
    {"色度", true, -100, 100, 0},
    {"明暗对比度", true, -10, 10, 0},
    NoLevel("底片效果"),
    {"纯黑白", true, 0, 100, 100},
    NoLevel("黑白"),
    {"色彩饱和度", true, 0, 100, 100},
    NoLevel("旧照片"),
    NoLevel("消除杂音"),
    NoLevel("逆光效果"),
    NoLevel("同质化"),
    NoLevel("低亮度修复"),
    {"怀旧效果", true, 0, 20, 20},
    {"月光效果", true, 0, 50, 50},
    {"朦胧效果1", true, 0, 50, 50},
    {"清凉效果", true, 0, 100, 100},
    {"朦胧效果2", true, 0, 100, 100},
    NoLevel("电影效果"),
    NoLevel("艺术效果"),
    NoLevel("水晶像框"),
    NoLevel("拼图效果"),
    {"油画效果", true, 0, 15, 15},
    {"瓷砖效果", true, 0, 10, 10},
    {"加膜效果", true, 0, 20, 20},
    NoLevel("雕刻效果"),
    NoLevel("凹镜效果"),
    NoLevel("素描效果"),
    {"折射效果2", true, 0, 100, 100},
    {"折射效果1", true, 0, 100, 100},
    NoLevel("版画效果"),
}};

constexpr const CEffectRow& RowOf(EEffect effect) {
    return kEffects[static_cast<std::size_t>(NumberOf(effect))];
}
