#include "engines/effects/ColourRows.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <random>
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

}  // namespace
