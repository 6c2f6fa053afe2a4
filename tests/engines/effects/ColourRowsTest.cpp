#include "engines/effects/ColourRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <optional>
#include <random>
#include <vector>

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

constexpr std::size_t kSheet = 65536;  // the colours with one value of the first channel

using CFormula = CColor (*)(CColor);
using CSplit = void (*)(const std::uint8_t*, std::uint8_t*, std::uint8_t*, std::uint8_t*, std::size_t);
using CJoin = void (*)(const std::uint8_t*, const std::uint8_t*, const std::uint8_t*, std::uint8_t*,
                       std::size_t);

CColor ColourOf(std::size_t nFirst, std::size_t i) {
    return {static_cast<std::uint8_t>(nFirst), static_cast<std::uint8_t>(i / 256),
            static_cast<std::uint8_t>(i % 256)};
}

// All colours as pixels through pSplit, each held against the formula.
void ExpectSplitAsFormula(CSplit pSplit, CFormula pFormula) {
    std::vector<std::uint8_t> arrRgb(3 * kSheet);
    std::array<std::vector<std::uint8_t>, 3> arrOut;
    for (auto& out : arrOut) out.resize(kSheet);
    std::size_t nWrong = 0;
    for (std::size_t nFirst = 0; nFirst < 256; ++nFirst) {
        for (std::size_t i = 0; i < kSheet; ++i) {
            const CColor cr = ColourOf(nFirst, i);
            arrRgb[3 * i] = cr.r;
            arrRgb[3 * i + 1] = cr.g;
            arrRgb[3 * i + 2] = cr.b;
        }
        pSplit(arrRgb.data(), arrOut[0].data(), arrOut[1].data(), arrOut[2].data(), kSheet);
        for (std::size_t i = 0; i < kSheet; ++i) {
            if (pFormula(ColourOf(nFirst, i)) == CColor{arrOut[0][i], arrOut[1][i], arrOut[2][i]}) continue;
            if (nWrong++ == 0) ADD_FAILURE() << "first at " << nFirst << ", " << i / 256 << ", " << i % 256;
        }
    }
    EXPECT_EQ(nWrong, 0U);
}

void ExpectJoinAsFormula(CJoin pJoin, CFormula pFormula) {
    std::vector<std::uint8_t> arrRgb(3 * kSheet);
    std::array<std::vector<std::uint8_t>, 3> arrIn;
    for (auto& in : arrIn) in.resize(kSheet);
    std::size_t nWrong = 0;
    for (std::size_t nFirst = 0; nFirst < 256; ++nFirst) {
        for (std::size_t i = 0; i < kSheet; ++i) {
            const CColor cr = ColourOf(nFirst, i);
            arrIn[0][i] = cr.r;
            arrIn[1][i] = cr.g;
            arrIn[2][i] = cr.b;
        }
        pJoin(arrIn[0].data(), arrIn[1].data(), arrIn[2].data(), arrRgb.data(), kSheet);
        for (std::size_t i = 0; i < kSheet; ++i) {
            const CColor crGot = {arrRgb[3 * i], arrRgb[3 * i + 1], arrRgb[3 * i + 2]};
            if (pFormula(ColourOf(nFirst, i)) == crGot) continue;
            if (nWrong++ == 0) ADD_FAILURE() << "first at " << nFirst << ", " << i / 256 << ", " << i % 256;
        }
    }
    EXPECT_EQ(nWrong, 0U);
}

TEST_P(ColourRows, YuvOfEveryColour) {
    ExpectSplitAsFormula(RgbToYuv, ColorRGBtoYUV);
}

TEST_P(ColourRows, RgbOfEveryYuv) {
    ExpectJoinAsFormula(YuvToRgb, ColorYUVtoRGB);
}

TEST_P(ColourRows, HslOfEveryColour) {
    ExpectSplitAsFormula(RgbToHsl, ColorRGBtoHSL);
}

TEST_P(ColourRows, RgbOfEveryHsl) {
    ExpectJoinAsFormula(HslToRgb, ColorHSLtoRGB);
}

TEST_P(ColourRows, LumaOfEveryColour) {
    const CSplit pLuma = [](const std::uint8_t* pRgb, std::uint8_t* pY, std::uint8_t*, std::uint8_t*,
                            std::size_t n) { RgbToY(pRgb, pY, n); };
    ExpectSplitAsFormula(pLuma, [](CColor rgb) { return CColor{ColorRGBtoYUV(rgb).r, 0, 0}; });
}

TEST_P(ColourRows, ChromaOfEveryColourWithItsLuma) {
    const CSplit pChroma = [](const std::uint8_t* pRgb, std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
                              std::size_t n) {
        for (std::size_t i = 0; i < n; ++i)
            pY[i] = ColorRGBtoYUV({pRgb[3 * i], pRgb[3 * i + 1], pRgb[3 * i + 2]}).r;
        RgbToUv(pRgb, pY, pU, pV, n);
    };
    ExpectSplitAsFormula(pChroma, ColorRGBtoYUV);
}

// The sheets hold every U, V for one Y; here every Y comes with one U, V.
TEST_P(ColourRows, RgbOfEveryTint) {
    std::array<std::uint8_t, 256> arrY{};
    for (std::size_t i = 0; i < arrY.size(); ++i) arrY[i] = static_cast<std::uint8_t>(i);
    std::array<std::uint8_t, 3 * 256> arrRgb{};
    for (int nTint = 0; nTint < 65536; ++nTint) {
        const auto u = static_cast<std::uint8_t>(nTint / 256);
        const auto v = static_cast<std::uint8_t>(nTint % 256);
        YuvToRgb(arrY.data(), u, v, arrRgb.data(), arrY.size());
        for (std::size_t i = 0; i < arrY.size(); ++i) {
            const CColor crGot = {arrRgb[3 * i], arrRgb[3 * i + 1], arrRgb[3 * i + 2]};
            ASSERT_EQ(crGot, ColorYUVtoRGB({arrY[i], u, v})) << i << ", " << +u << ", " << +v;
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

        RgbToY(arrIn.data(), arrMid[0].data() + 1, n);
        RgbToUv(arrIn.data(), arrMid[0].data() + 1, arrMid[1].data() + 1, arrMid[2].data() + 1, n);
        for (const auto& mid : arrMid) ASSERT_TRUE(mid.front() == kGuard && mid.back() == kGuard) << n;
        YuvToRgb(arrMid[0].data() + 1, 113, 143, arrOut.data() + 1, n);
        ASSERT_TRUE(arrOut.front() == kGuard && arrOut.back() == kGuard) << n;
        for (std::size_t i = 0; i < n; ++i) {
            const CColor yuv = ColorRGBtoYUV({arrIn[3 * i], arrIn[3 * i + 1], arrIn[3 * i + 2]});
            ASSERT_EQ((CColor{arrMid[0][i + 1], arrMid[1][i + 1], arrMid[2][i + 1]}), yuv)
                << i << " of " << n;
            const CColor crGot = {arrOut[3 * i + 1], arrOut[3 * i + 2], arrOut[3 * i + 3]};
            ASSERT_EQ(crGot, ColorYUVtoRGB({yuv.r, 113, 143})) << i << " of " << n;
        }
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
