#include "engines/effects/ColourRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include "engines/effects/ByteMap.h"
#include "engines/effects/Contrast.h"
#include "image/ColorSpace.h"
#include "image/CpuChoice.h"

namespace {

// The parameter tells whether the plain loops are forced.
class ColourRows : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (GetParam()) m_plain.emplace();
    }

  private:
    std::optional<CPlainLoops> m_plain;
};

INSTANTIATE_TEST_SUITE_P(Forms, ColourRows, testing::Bool(),
                         [](const auto& form) { return form.param ? "Plain" : "Wide"; });

using CFormula = CColor (*)(CColor);
using CSplit = void (*)(const std::uint8_t*, std::uint8_t*, std::uint8_t*, std::uint8_t*, std::size_t);
using CJoin = void (*)(const std::uint8_t*, const std::uint8_t*, const std::uint8_t*, std::uint8_t*,
                       std::size_t);

// Luma by one call, chroma by another.
void RgbToYThenUv(const std::uint8_t* pRgb, std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
                  std::size_t n) {
    RgbToY(pRgb, pY, n);
    RgbToUv(pRgb, pY, pU, pV, n);
}

// One U and V for all pixels, those of the first.
void TintToRgb(const std::uint8_t* pY, const std::uint8_t* pU, const std::uint8_t* pV, std::uint8_t* pRgb,
               std::size_t n) {
    YuvToRgb(pY, *pU, *pV, pRgb, n);
}

// Every colour there is through the loops, each held against the formula. A sheet holds the colours with one
// value of the third and the second channel.
TEST_P(ColourRows, AreTheFormulasForEveryColour) {
    constexpr std::size_t kSheet = 256;
    const std::pair<CSplit, CFormula> splits[] = {
        {RgbToYuv, ColorRGBtoYUV}, {RgbToYThenUv, ColorRGBtoYUV}, {RgbToHsl, ColorRGBtoHSL}};
    const std::pair<CJoin, CFormula> joins[] = {
        {YuvToRgb, ColorYUVtoRGB}, {TintToRgb, ColorYUVtoRGB}, {HslToRgb, ColorHSLtoRGB}};
    std::array<std::array<std::uint8_t, kSheet>, 3> in{};
    std::array<std::array<std::uint8_t, kSheet>, 3> out{};
    std::array<std::uint8_t, 3 * kSheet> rgbIn{};
    std::array<std::uint8_t, 3 * kSheet> rgbOut{};
    for (std::size_t i = 0; i < kSheet; ++i) in[0][i] = rgbIn[3 * i] = static_cast<std::uint8_t>(i);
    for (std::size_t nSheet = 0; nSheet < 65536; ++nSheet) {
        for (std::size_t i = 0; i < kSheet; ++i) {
            in[1][i] = rgbIn[3 * i + 1] = static_cast<std::uint8_t>(nSheet / 256);
            in[2][i] = rgbIn[3 * i + 2] = static_cast<std::uint8_t>(nSheet);
        }
        for (const auto& [split, formula] : splits) {
            split(rgbIn.data(), out[0].data(), out[1].data(), out[2].data(), kSheet);
            for (std::size_t i = 0; i < kSheet; ++i)
                ASSERT_EQ(formula({in[0][i], in[1][i], in[2][i]}), (CColor{out[0][i], out[1][i], out[2][i]}))
                    << nSheet << ", " << i;
        }
        for (const auto& [join, formula] : joins) {
            join(in[0].data(), in[1].data(), in[2].data(), rgbOut.data(), kSheet);
            for (std::size_t i = 0; i < kSheet; ++i)
                ASSERT_EQ(formula({in[0][i], in[1][i], in[2][i]}),
                          (CColor{rgbOut[3 * i], rgbOut[3 * i + 1], rgbOut[3 * i + 2]}))
                    << nSheet << ", " << i;
        }
    }
}

// Runs of every short length and some long ones, at odd addresses, between bytes that must stay.
TEST_P(ColourRows, TouchExactlyTheRun) {
    std::mt19937 random(7);
    constexpr std::uint8_t kGuard = 0xA5;
    for (std::size_t n = 0; n < 1100; n += n < 140 ? 1 : 119) {
        // On the heap to the byte, so that a sanitizer sees a read beyond the run.
        std::vector<std::uint8_t> arrIn(3 * n);
        for (std::uint8_t& b : arrIn) b = static_cast<std::uint8_t>(random());
        std::array<std::vector<std::uint8_t>, 3> arrMid;
        for (auto& mid : arrMid) mid.assign(n + 2, kGuard);
        std::vector<std::uint8_t> arrOut(3 * n + 2, kGuard);
        const auto Round = [&](CSplit pSplit, CJoin pJoin, CFormula pTo, CFormula pFrom) {
            pSplit(arrIn.data(), arrMid[0].data() + 1, arrMid[1].data() + 1, arrMid[2].data() + 1, n);
            pJoin(arrMid[0].data() + 1, arrMid[1].data() + 1, arrMid[2].data() + 1, arrOut.data() + 1, n);
            for (const auto& mid : arrMid) ASSERT_TRUE(mid.front() == kGuard && mid.back() == kGuard) << n;
            ASSERT_TRUE(arrOut.front() == kGuard && arrOut.back() == kGuard) << n;
            for (std::size_t i = 0; i < n; ++i) {
                const CColor crGot = {arrOut[3 * i + 1], arrOut[3 * i + 2], arrOut[3 * i + 3]};
                ASSERT_EQ(crGot, pFrom(pTo({arrIn[3 * i], arrIn[3 * i + 1], arrIn[3 * i + 2]})))
                    << i << " of " << n;
            }
        };
        const CFormula pSame = [](CColor cr) { return cr; };
        Round(SplitRgb, JoinRgb, pSame, pSame);
        Round(RgbToYuv, YuvToRgb, ColorRGBtoYUV, ColorYUVtoRGB);
        Round(RgbToHsl, HslToRgb, ColorRGBtoHSL, ColorHSLtoRGB);

        const CJoin pBack = [](const std::uint8_t* pY, const std::uint8_t*, const std::uint8_t*,
                               std::uint8_t* pRgb, std::size_t nRun) { YuvToRgb(pY, 113, 143, pRgb, nRun); };
        Round(RgbToYThenUv, pBack, ColorRGBtoYUV, [](CColor yuv) {
            return ColorYUVtoRGB({yuv.r, 113, 143});
        });

        // Bytes through a map, and moved away from the middle.
        std::array<std::uint8_t, 256> map{};
        for (std::uint8_t& b : map) b = static_cast<std::uint8_t>(random());
        CByteMap(map).Apply(arrIn.data(), arrOut.data() + 1, 3 * n);
        ASSERT_TRUE(arrOut.front() == kGuard && arrOut.back() == kGuard) << n;
        for (std::size_t i = 0; i < 3 * n; ++i) ASSERT_EQ(arrOut[i + 1], map[arrIn[i]]) << i << " of " << n;
        SpreadBytes(arrIn.data(), arrOut.data() + 1, 50, 3 * n);
        ASSERT_TRUE(arrOut.front() == kGuard && arrOut.back() == kGuard) << n;
    }
}

TEST_P(ColourRows, AddLimitedStopsAtBothEnds) {
    for (const int nAdd : {0, 1, -1, 5, -77, 200, -200, 255, -255, 256, -256, INT_MAX, INT_MIN}) {
        for (const std::size_t n : {0, 1, 31, 33, 256}) {
            std::vector<std::uint8_t> arrBytes(n);
            for (std::size_t i = 0; i < n; ++i) arrBytes[i] = static_cast<std::uint8_t>(i * 7);
            std::vector<std::uint8_t> arrWanted = arrBytes;
            for (std::uint8_t& b : arrWanted)
                b = static_cast<std::uint8_t>(
                    std::clamp<long long>(static_cast<long long>(b) + nAdd, 0, 255));
            AddLimited(arrBytes.data(), nAdd, n);
            ASSERT_EQ(arrBytes, arrWanted) << nAdd << ", " << n;
        }
    }
}

}  // namespace
