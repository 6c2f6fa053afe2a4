#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <random>

#include "engines/effects/ByteMap.h"
#include "engines/effects/Effects.h"
#include "engines/effects/NaiveFilters.h"
#include "image/CpuChoice.h"
#include "support/Pictures.h"

namespace {

using CFastForm = void (*)(const CEffectCall&);
using CNaiveForm = std::function<CPixels(const CPixels&, int)>;

CPixels Applied(CFastForm fast, const CPixels& src, int nLevel) {
    // Anything but black, so that a pixel that was left out shows.
    CPixels dst = CPixels::MakeFilled(src.Width(), src.Height(), {203, 77, 31});
    CRandomSequence random;
    fast({src.View(), dst.MutableView(), nLevel, src.Width(), random});
    return dst;
}

enum class EKind { kNoise, kExtremes, kDark, kDim, kPale, kSlopes };
constexpr EKind kKinds[] = {EKind::kNoise, EKind::kExtremes, EKind::kDark,
                            EKind::kDim,   EKind::kPale,     EKind::kSlopes};

std::uint8_t MakeByte(EKind kind, std::uint32_t nRandom, int x, int y, std::size_t nChannel) {
    switch (kind) {
        case EKind::kNoise:
            return static_cast<std::uint8_t>(nRandom >> 8);
        case EKind::kExtremes:
            return nRandom % 3 == 0 ? 255 : 0;
        case EKind::kDark:
            return static_cast<std::uint8_t>((nRandom >> 8) % 120);
        case EKind::kDim:
            return static_cast<std::uint8_t>(20 + (nRandom >> 8) % 24);
        case EKind::kPale:
            return static_cast<std::uint8_t>(190 + (nRandom >> 8) % 30);
        case EKind::kSlopes:
            break;
    }
    return LimitToByte(x * 2 + y + static_cast<int>(nRandom % 9) + 40 * static_cast<int>(nChannel));
}

CPixels MakePicture(int nWidth, int nHeight, EKind kind, unsigned nSeed) {
    std::mt19937 random(nSeed);
    CPixels pixels = CPixels::MakeFilled(nWidth, nHeight, {});
    const std::span<std::uint8_t> bytes = pixels.MutableBytes();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto nPixel = static_cast<int>(i / 3);
        bytes[i] =
            MakeByte(kind, static_cast<std::uint32_t>(random()), nPixel % nWidth, nPixel / nWidth, i % 3);
    }
    return pixels;
}

struct CFilter {
    const char* szName;
    CFastForm fast;
    CNaiveForm naive;
    std::vector<int> levels;  // for every size; empty without a level
    int nMin;                 // the range of levels that one picture is put through
    int nMax;
};

void PrintTo(const CFilter& filter, std::ostream* pStream) {
    *pStream << filter.szName;
}

template <class TForm>
CNaiveForm Unlevelled(TForm form) {
    return [form](const CPixels& src, int) { return form(src); };
}

std::vector<CFilter> Filters() {
    return {
        {"Sharpness", Sharpness, NaiveSharpness, {-10, -1, 1, 2, 7, 33}, -40, 40},
        {"NoiseRemoval", NoiseRemoval, Unlevelled(NaiveNoiseRemoval), {}, 0, 0},
        {"Backlight", Backlight, Unlevelled(NaiveBacklight), {}, 0, 0},
        {"LowLightRepair", LowLightRepair, Unlevelled(NaiveLowLightRepair), {}, 0, 0},
        {"Haze2", Haze2, NaiveHaze2, {1, 100}, -300, 300},
        {"Engrave", Engrave, Unlevelled(NaiveEngrave), {}, 0, 0},
        {"Sketch", Sketch, Unlevelled(NaiveSketch), {}, 0, 0},
        {"Refraction1", Refraction1, NaiveRefraction1, {1, 60, 100}, -300, 400},
        {"Refraction2", Refraction2, NaiveRefraction2, {1, 60, 100}, -300, 400},
        {"Woodcut", Woodcut, Unlevelled(NaiveWoodcut), {}, 0, 0},
    };
}

class Filter : public testing::TestWithParam<CFilter> {
  protected:
    static void Compare(const CPixels& src, int nLevel) {
        const CPixels expected = GetParam().naive(src, nLevel);
        EXPECT_EQ(Difference(Applied(GetParam().fast, src, nLevel), expected), "")
            << "wide, level " << nLevel;
        const CPlainLoops plain;
        EXPECT_EQ(Difference(Applied(GetParam().fast, src, nLevel), expected), "")
            << "plain, level " << nLevel;
    }
};

TEST_P(Filter, IsTheNaiveFormAtEverySize) {
    std::vector<CSize> sizes = {{33, 17},  {64, 64},  {131, 70}, {97, 8},    {1023, 9},
                                {1025, 7}, {2100, 6}, {4099, 5}, {6, 300},   {3, 1100},
                                {1, 700},  {700, 1},  {900, 2},  {2057, 40}, {158, 122}};
    for (int w = 1; w <= 9; ++w)
        for (int h = 1; h <= 9; ++h) sizes.push_back({w, h});
    const std::vector<int> levels = GetParam().levels.empty() ? std::vector{0} : GetParam().levels;
    unsigned nSeed = 1;
    for (const CSize& size : sizes) {
        for (const EKind kind : kKinds) {
            SCOPED_TRACE(testing::Message() << size.cx << " by " << size.cy << ", kind "
                                            << static_cast<int>(kind) << ", seed " << nSeed);
            const CPixels src = MakePicture(size.cx, size.cy, kind, nSeed++);
            for (const int nLevel : levels) Compare(src, nLevel);
            if (HasFailure()) return;
        }
    }
}

TEST_P(Filter, IsTheNaiveFormAtEveryLevelAndBeyond) {
    if (GetParam().levels.empty()) return;
    for (const EKind kind : {EKind::kNoise, EKind::kSlopes}) {
        const CPixels src = MakePicture(45, 38, kind, 7);
        for (int nLevel = GetParam().nMin; nLevel <= GetParam().nMax; ++nLevel) Compare(src, nLevel);
        for (const int nLevel : {INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX}) Compare(src, nLevel);
    }
    const CPixels src = MakePicture(45, 38, EKind::kNoise, 7);
    EXPECT_EQ(Applied(GetParam().fast, src, 0), src);
}

INSTANTIATE_TEST_SUITE_P(All, Filter, testing::ValuesIn(Filters()),
                         [](const auto& test) { return std::string(test.param.szName); });

CColor Grey(int n) {
    const auto nByte = static_cast<std::uint8_t>(n);
    return {nByte, nByte, nByte};
}

TEST(FilterValues, OnePassOfSofteningSpreadsAWhitePixel) {
    CPixels src = CPixels::MakeFilled(7, 7, Grey(0));
    src.MutableView().Set(3, 3, Grey(255));
    const CPixels dst = Applied(Sharpness, src, -1);
    EXPECT_EQ(PixelAt(dst, 3, 3), Grey(85));
    for (const CPoint pt : {CPoint{2, 3}, CPoint{4, 3}, CPoint{3, 2}, CPoint{3, 4}}) {
        EXPECT_EQ(PixelAt(dst, pt.x, pt.y), Grey(42));
    }
    EXPECT_EQ(PixelAt(dst, 2, 2), Grey(0));
}

// The cumulative counts jump at the one grey, so no level parts anything and the split is 1.
TEST(FilterValues, BacklightOfAFlatPicture) {
    EXPECT_EQ(Applied(Backlight, CPixels::MakeFilled(40, 30, Grey(0)), 0),
              CPixels::MakeFilled(40, 30, Grey(0)));
    EXPECT_EQ(Applied(Backlight, CPixels::MakeFilled(40, 30, Grey(1)), 0),
              CPixels::MakeFilled(40, 30, Grey(41)));
    // 41 + (214 * 256 / 254) * 99 / 256
    EXPECT_EQ(Applied(Backlight, CPixels::MakeFilled(40, 30, Grey(100)), 0),
              CPixels::MakeFilled(40, 30, Grey(124)));
}

// Two greys side by side, with other greys in columns that the histograms leave out.
CPixels TwoGreys(int nLeft, int nRight, std::initializer_list<int> unseen) {
    CPixels src = CPixels::MakeFilled(64, 64, Grey(nLeft));
    for (int y = 0; y < 64; ++y)
        for (int x = 32; x < 64; ++x) src.MutableView().Set(x, y, Grey(nRight));
    int x = 1;
    for (const int n : unseen) {
        src.MutableView().Set(x, 0, Grey(n));
        x += 2;
    }
    return src;
}

// Half the samples at 20: the split is 20 and goes to 60, and 10 is the end of what stays.
TEST(FilterValues, BacklightOfTwoGreys) {
    const CPixels dst = Applied(Backlight, TwoGreys(20, 200, {0, 10, 15, 255}), 0);
    EXPECT_EQ(PixelAt(dst, 0, 0), Grey(60));
    EXPECT_EQ(PixelAt(dst, 63, 0), Grey(209));  // 60 + 212 * 180 / 256
    EXPECT_EQ(PixelAt(dst, 1, 0), Grey(0));
    EXPECT_EQ(PixelAt(dst, 3, 0), Grey(10));
    EXPECT_EQ(PixelAt(dst, 5, 0), Grey(47));   // stretched to 35, bent by 25 * 25 / 50
    EXPECT_EQ(PixelAt(dst, 7, 0), Grey(254));  // 60 + 212 * 235 / 256
}

// Dark and narrow: 30 to 60 becomes 15 + 28 to (60 + 600) / 4 + 28.
TEST(FilterValues, LowLightRepairOfTwoDarkGreys) {
    const CPixels dst = Applied(LowLightRepair, TwoGreys(30, 60, {0, 45, 255}), 0);
    EXPECT_EQ(PixelAt(dst, 0, 0), Grey(43));
    EXPECT_EQ(PixelAt(dst, 63, 0), Grey(193));
    EXPECT_EQ(PixelAt(dst, 1, 0), Grey(43));
    EXPECT_EQ(PixelAt(dst, 3, 0), Grey(118));
    EXPECT_EQ(PixelAt(dst, 5, 0), Grey(193));
}

// Light and narrow: 180 to 200 becomes 170 to 210; light and wide: 64 to 200 becomes 8 to 255.
TEST(FilterValues, LowLightRepairOfLightGreys) {
    const CPixels narrow = Applied(LowLightRepair, TwoGreys(180, 200, {190}), 0);
    EXPECT_EQ(PixelAt(narrow, 0, 0), Grey(170));
    EXPECT_EQ(PixelAt(narrow, 1, 0), Grey(190));
    EXPECT_EQ(PixelAt(narrow, 63, 0), Grey(210));
    const CPixels wide = Applied(LowLightRepair, TwoGreys(64, 200, {132}), 0);
    EXPECT_EQ(PixelAt(wide, 0, 0), Grey(8));
    EXPECT_EQ(PixelAt(wide, 1, 0), Grey(131));  // 8 + (232 * 68) / 128
    EXPECT_EQ(PixelAt(wide, 63, 0), Grey(255));
}

TEST(FilterValues, LowLightRepairLeavesAFlatPictureAlone) {
    for (const int n : {0, 3, 128, 255}) {
        EXPECT_EQ(Applied(LowLightRepair, CPixels::MakeFilled(100, 80, Grey(n)), 0),
                  CPixels::MakeFilled(100, 80, Grey(n)))
            << n;
    }
}

// The outermost pixels keep their luminance, so they show what becomes of the chroma alone.
TEST(FilterValues, Haze2LeavesStrongChromaAlone) {
    const auto edge = [](CColor cr) {
        return PixelAt(Applied(Haze2, CPixels::MakeFilled(9, 9, cr), 50), 0, 0);
    };
    // U is 212 or more, V about 120: had only V counted, it would have been widened.
    const CColor blue = {40, 40, 255};
    ASSERT_GE(CxImage::RGBtoYUV(blue).g, 212);
    EXPECT_EQ(edge(blue), CxImage::YUVtoRGB(CxImage::RGBtoYUV(blue)));
    // The same at the other end, with V.
    const CColor green = {0, 255, 120};
    ASSERT_EQ(CxImage::RGBtoYUV(green), (CColor{163, 103, 11}));
    EXPECT_EQ(edge(green), CxImage::YUVtoRGB({163, 103, 11}));
    ASSERT_EQ(CxImage::RGBtoYUV({150, 100, 90}), (CColor{113, 115, 154}));
    EXPECT_EQ(edge({150, 100, 90}), CxImage::YUVtoRGB({113, 112, 162}));
    // 255 is neither left alone nor widened.
    ASSERT_EQ(CxImage::RGBtoYUV({0, 0, 255}), (CColor{29, 255, 107}));
    EXPECT_EQ(edge({0, 0, 255}), CxImage::YUVtoRGB({29, 0, 101}));
}

TEST(FilterValues, EngraveOfAFlatPicture) {
    const CPixels dst = Applied(Engrave, CPixels::MakeFilled(8, 5, {103, 57, 203}), 0);
    EXPECT_EQ(PixelAt(dst, 3, 0), Grey(0));
    EXPECT_EQ(PixelAt(dst, 7, 4), Grey(0));
    EXPECT_EQ(PixelAt(dst, 1, 1), Grey(128));
    EXPECT_EQ(PixelAt(dst, 0, 3), Grey(128));
    const CColor reduced = {96, 56, 200};
    EXPECT_EQ(PixelAt(dst, 0, 1), reduced);
    EXPECT_EQ(PixelAt(dst, 7, 3), reduced);
}

TEST(FilterValues, RefractionAtTheEvenLevel) {
    for (const CFastForm refraction : {Refraction1, Refraction2}) {
        EXPECT_EQ(Applied(refraction, CPixels::MakeFilled(12, 9, Grey(255)), 60),
                  CPixels::MakeFilled(12, 9, Grey(255)));
        EXPECT_EQ(Applied(refraction, CPixels::MakeFilled(12, 9, Grey(0)), 60),
                  CPixels::MakeFilled(12, 9, Grey(1)));
    }
}

TEST(FilterValues, WoodcutIsBlackWhereNothingChangesAndWrapsWhereItFalls) {
    CPixels src = CPixels::MakeFilled(6, 4, Grey(0));
    src.MutableView().Set(2, 1, Grey(255));
    const CPixels dst = Applied(Woodcut, src, 0);
    EXPECT_EQ(PixelAt(dst, 1, 0), Grey(255));
    EXPECT_EQ(PixelAt(dst, 2, 1), Grey(1));
    EXPECT_EQ(PixelAt(dst, 4, 1), Grey(0));
}

TEST(ByteMap, MapsEveryByteAtEveryLength) {
    std::mt19937 random(5);
    std::array<std::uint8_t, 256> map;
    for (std::uint8_t& n : map) n = static_cast<std::uint8_t>(random());
    const CByteMap fast(map);
    std::vector<std::uint8_t> bytes(600);
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i * 37);
    for (std::size_t n = 0; n <= bytes.size(); ++n) {
        std::vector<std::uint8_t> expected(n + 1, 99);
        for (std::size_t i = 0; i < n; ++i) expected[i] = map[bytes[i]];
        std::vector<std::uint8_t> out(n + 1, 99);
        fast.Apply(bytes.data(), out.data(), n);
        ASSERT_EQ(out, expected) << n << ", wide";
        out.assign(n + 1, 99);
        const CPlainLoops plain;
        fast.Apply(bytes.data(), out.data(), n);
        ASSERT_EQ(out, expected) << n << ", plain";
    }
}

}  // namespace
