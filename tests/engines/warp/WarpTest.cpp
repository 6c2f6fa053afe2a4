#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <optional>
#include <random>

#include "engines/warp/NaiveWarp.h"
#include "engines/warp/ResampleLine.h"
#include "engines/warp/TextWarp.h"
#include "image/CpuChoice.h"
#include "support/Pictures.h"
#include "support/ShortMemory.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();

CPixels Rendered(const CPixels& base, const CNaiveMask& mask, const TextArtParam& param) {
    CTextWarp warp;
    warp.SetBase(base);
    EXPECT_TRUE(warp.SetMask(mask.bytes, mask.w, mask.h));
    EXPECT_TRUE(warp.Render(param));
    return warp.Result();
}

// The wide and the plain loops against the naive form.
void Compare(const CPixels& base, const CNaiveMask& mask, const TextArtParam& param) {
    const CPixels expected = NaiveRender(base, mask, param);
    for (const bool bPlain : {false, true}) {
        std::optional<CPlainLoops> plain;
        if (bPlain) plain.emplace();
        ASSERT_EQ(Difference(Rendered(base, mask, param), expected), "") << (bPlain ? "plain" : "wide");
    }
}

class CRandom {
  public:
    explicit CRandom(unsigned nSeed) : m_random(nSeed) {}
    int Int(int nMin, int nMax) { return std::uniform_int_distribution(nMin, nMax)(m_random); }
    float Float(float fMin, float fMax) { return std::uniform_real_distribution(fMin, fMax)(m_random); }
    bool Once(int nIn) { return Int(1, nIn) == 1; }

    // Noise, soft slopes, or glyphs with hard edges.
    CNaiveMask Mask(int nWidth, int nHeight) {
        CNaiveMask mask{nWidth, nHeight};
        const int nKind = Int(0, 2), nStep = Int(1, 9);
        for (int y = 0; y < nHeight; ++y)
            for (int x = 0; x < nWidth; ++x) {
                const bool bInk = (x / nStep + y / 7) % 3 == 0;
                mask.Set(x, y,
                         nKind == 0   ? Int(0, 255)
                         : nKind == 1 ? (x * nStep + y) % 256
                         : bInk       ? 0
                                      : 255);
            }
        return mask;
    }

    // Values for a mesh of both forms: regular ones that are moved about, their edges on the plane's.
    void Mesh(TextArtParam& param) {
        const int nCols = param.nMeshCols, nRows = param.nMeshRows;
        const auto w = static_cast<float>(param.nMeshWidth), h = static_cast<float>(param.nMeshHeight);
        const float fMoved = Once(3) ? 0.0F : Once(4) ? 0.9F : 0.3F;
        for (const bool bSource : {true, false})
            for (int i = 0; i < nCols * nRows; ++i) {
                const int c = i % nCols, r = i / nCols;
                const float fX = c == 0 || c == nCols - 1 ? 0 : Float(-fMoved, fMoved);
                const float fY = r == 0 || r == nRows - 1 ? 0 : Float(-fMoved, fMoved);
                (bSource ? param.fMeshSrcX : param.fMeshDstX)[static_cast<unsigned>(i)] =
                    w * (static_cast<float>(c) + fX) / static_cast<float>(nCols - 1);
                (bSource ? param.fMeshSrcY : param.fMeshDstY)[static_cast<unsigned>(i)] =
                    h * (static_cast<float>(r) + fY) / static_cast<float>(nRows - 1);
            }
    }

    TextArtParam Param(int nMost) {
        TextArtParam param;
        param.nWarpKind = Int(0, 1);
        param.nTextEffect = Int(0, 3);
        param.byRed = static_cast<std::uint8_t>(Int(0, 255));
        param.nBoxWidth = param.nMeshWidth = Int(1, nMost);
        param.nBoxHeight = param.nMeshHeight = Int(1, nMost);
        param.nBoxX = param.nMeshX = Int(-nMost / 3, nMost / 2);
        param.nBoxY = param.nMeshY = Int(-nMost / 3, nMost / 2);
        const auto fMost = static_cast<float>(nMost);
        param.fQuad = {0, 0, fMost, 0, fMost, fMost, 0, fMost};
        const float fMoved = Once(4) ? 0.0F : fMost * Float(0, 1);
        for (float& f : param.fQuad) f += Float(-fMoved, fMoved);
        if (Once(4)) {
            constexpr int kGrids[][2] = {{3, 3}, {5, 4}, {3, 6}, {6, 3}, {4, 5}};
            const auto& grid = kGrids[Int(0, 4)];
            param.nMeshCols = grid[0];
            param.nMeshRows = grid[1];
        }
        Mesh(param);
        return param;
    }

    // Something that no hand would set.
    void Spoil(TextArtParam& param) {
        const float arrOdd[] = {kNaN, kInfinite, -kInfinite, 1e30F, -1e30F, 3e38F, 1e-40F, 0.0F, -7.0F, 1e9F};
        MeshValues* const arrGrids[] = {&param.fMeshSrcX, &param.fMeshSrcY, &param.fMeshDstX,
                                        &param.fMeshDstY};
        for (int i = Int(1, 3); i > 0; --i) {
            param.fQuad[static_cast<unsigned>(Int(0, 7))] = arrOdd[Int(0, 9)];
            MeshValues& grid = *arrGrids[Int(0, 3)];
            const auto nPoint = static_cast<unsigned>(Int(0, 15));
            // Equal knots, or a point that has no place.
            grid[nPoint] = Once(2) ? grid[nPoint / 2] : arrOdd[Int(0, 9)];
        }
        if (Once(3)) param.nMeshWidth = param.nBoxWidth = Int(-2, 3);
        if (Once(3)) param.nMeshHeight = param.nBoxHeight = Int(-2, 3);
        if (Once(6)) param.nMeshCols = Int(-1, 21);
    }

  private:
    std::mt19937 m_random;
};

// Many pictures, masks and records; a failure names its seed.
TEST(TextWarp, IsTheNaiveForm) {
    for (unsigned nSeed = 0; nSeed < 600; ++nSeed) {
        SCOPED_TRACE(testing::Message() << "seed " << nSeed);
        CRandom random(nSeed);
        const int nMost = nSeed % 100 == 99 ? 400 : random.Once(3) ? 20 : 110;
        const CNaiveMask mask = random.Mask(random.Int(1, nMost), random.Int(1, nMost));
        TextArtParam param = random.Param(nMost);
        if (nSeed % 4 == 0) random.Spoil(param);
        Compare(NumberedPixels(random.Int(1, nMost), random.Int(1, nMost), 30), mask, param);
        if (HasFailure()) return;
    }
}

// Single lines under maps that a mesh hardly gives: steep, flat, falling, beyond both ends.
TEST(TextWarp, ResamplesEveryLineAsTheNaiveForm) {
    for (unsigned nSeed = 0; nSeed < 3000; ++nSeed) {
        CRandom random(nSeed);
        const auto n = static_cast<std::size_t>(random.Int(1, random.Once(20) ? 9000 : 90));
        std::vector<std::uint8_t> line(n);
        std::vector<float> map(n);
        const float fStep = random.Float(0.0F, 2.5F), fShake = random.Once(2) ? 0.0F : random.Float(0, 3);
        const bool bWhole = random.Once(4), bEven = random.Once(3);
        const float fSize = random.Once(8) ? 1e5F : 1.0F;
        float f = random.Once(2) ? 0.0F : random.Float(-3, 3);
        for (std::size_t i = 0; i < n; ++i) {
            // Of all lines an even one shows best how the means were rounded.
            line[i] = bEven ? 255 : static_cast<std::uint8_t>(random.Int(0, 255));
            map[i] = f * fSize;
            f += fStep + random.Float(-fShake, fShake);
            if (bWhole) f = static_cast<float>(static_cast<int>(f));
        }
        if (random.Once(10)) map[static_cast<std::size_t>(random.Int(0, static_cast<int>(n) - 1))] = kNaN;
        // The end stays where it is, so that both passes find the same.
        const std::vector<std::uint8_t> expected = NaiveLine(map, line, false);
        ASSERT_EQ(NaiveLine(map, line, true), expected);
        for (const bool bPlain : {false, true}) {
            std::optional<CPlainLoops> plain;
            if (bPlain) plain.emplace();
            CLineResampler resampler(n);
            std::ranges::copy(line, resampler.Source());
            std::vector<float> mapWithEnd = map;
            mapWithEnd.push_back(0);
            std::vector<std::uint8_t> out(n, 7);
            resampler.Run(mapWithEnd, out.data());
            ASSERT_EQ(out, expected) << "seed " << nSeed << (bPlain ? ", plain" : ", wide");
        }
    }
}

// The first fold makes a target pixel as wide as that many source pixels; the limit for 8 of them is 4,224.
TEST(TextWarp, GivesUpOnALineThatComesToNoEnd) {
    for (const bool bBeyond : {false, true}) {
        const float fWidth = bBeyond ? 4225.5F : 4224.5F;
        std::vector<float> map = {1 + fWidth / 4, 0.75F + fWidth / 4, 2, 3, 4, 5, 6, 7, 8};
        CLineResampler resampler(8);
        std::fill_n(resampler.Source(), 8, std::uint8_t{0});
        std::vector<std::uint8_t> out(8);
        resampler.Run(map, out.data());
        EXPECT_EQ(out[0], bBeyond ? 255 : 254);
        EXPECT_EQ(out[7], 255);
    }
}

// A spline swings below the last line of the plane behind the third of four points.
TEST(TextWarp, StopsAtTheFirstColumnThatTheMeshDoesNotReachOver) {
    TextArtParam param;
    param.nWarpKind = kWarpMesh;
    param.nMeshWidth = param.nMeshHeight = 90;
    param.fMeshSrcX = param.fMeshDstX = RegularMeshX(90);
    param.fMeshSrcY = param.fMeshDstY = RegularMeshY(90);
    for (unsigned i = 12; i < 16; ++i) param.fMeshSrcY[i] = i % 2 == 0 ? 89 : 130;
    const CPixels base = CPixels::MakeFilled(90, 90, {255, 255, 255});
    const CNaiveMask mask{90, 90, std::vector<std::uint8_t>(8100)};
    Compare(base, mask, param);
    const CPixels out = Rendered(base, mask, param);
    EXPECT_EQ(PixelAt(out, 60, 20), (CColor{217, 40, 200}));
    EXPECT_EQ(PixelAt(out, 62, 20), (CColor{255, 255, 255}));
}

// ---- values worked out by hand

// What a rendering in black over white shows: the warped mask.
std::vector<int> Shown(const CNaiveMask& mask, TextArtParam param, int nWidth, int nHeight) {
    param.byRed = param.byGreen = param.byBlue = 0;
    param.nBoxWidth = param.nMeshWidth = nWidth;
    param.nBoxHeight = param.nMeshHeight = nHeight;
    const auto w = static_cast<float>(nWidth), h = static_cast<float>(nHeight);
    if (param.nWarpKind == kWarpProjection) param.fQuad = {0, 0, w, 0, w, h, 0, h};
    param.fMeshSrcX = param.fMeshDstX = RegularMeshX(w);
    param.fMeshSrcY = param.fMeshDstY = RegularMeshY(h);
    const CPixels out = Rendered(CPixels::MakeFilled(nWidth, nHeight, {255, 255, 255}), mask, param);
    std::vector<int> bytes;
    for (std::size_t i = 0; i < out.Bytes().size(); i += 3) bytes.push_back(out.Bytes()[i]);
    return bytes;
}

CNaiveMask MaskOf(int nWidth, int nHeight, std::vector<std::uint8_t> bytes) {
    return {nWidth, nHeight, std::move(bytes)};
}

TEST(TextWarp, ProjectsAndScalesAsWorkedOutByHand) {
    TextArtParam param;
    CNaiveMask mask = MaskOf(4, 4, {9, 9, 9, 9, 9, 10, 20, 9, 9, 30, 40, 9, 9, 9, 9, 9});
    // In its own box a mask stays, but for what is outermost.
    EXPECT_EQ(Shown(mask, param, 4, 4),
              (std::vector<int>{255, 255, 255, 255, 255, 10, 20, 255, 255, 30, 40, 255, 255, 255, 255, 255}));
    // In a box twice as large there are the means of neighbours between its pixels; the place 0.5 rounds to
    // 1, the place 2.5 to 3.
    const std::vector<int> twice = Shown(mask, param, 8, 8);
    EXPECT_EQ(std::vector<int>(twice.begin() + 16, twice.begin() + 24),
              (std::vector<int>{255, 9, 10, 15, 20, 255, 255, 255}));
    // Stretched to a mesh, two rows are left out; then the last pixel of rows and columns has no ink.
    param.nWarpKind = kWarpMesh;
    EXPECT_EQ(Shown(mask, param, 4, 2), (std::vector<int>{9, 9, 9, 255, 255, 255, 255, 255}));
    EXPECT_EQ(Shown(mask, param, 4, 4),
              (std::vector<int>{9, 9, 9, 255, 9, 9, 14, 255, 9, 10, 20, 255, 255, 255, 255, 255}));
    for (const int nHeight : {1, 2})
        EXPECT_EQ(Shown(CNaiveMask{3, nHeight, std::vector<std::uint8_t>(9)}, param, 4, 4),
                  std::vector<int>(16, 255));
    // The inside of the box is filled but for the glyphs.
    param = {};
    param.nTextEffect = kTextReversed;
    EXPECT_EQ(Shown(mask, param, 4, 4)[5], 245);
}

TEST(TextWarp, StylesAsWorkedOutByHand) {
    TextArtParam param;
    param.nTextEffect = kTextShaded;
    // Flat ink is 90, flat ground nothing. At (3, 3) dx is 3 * 255 towards the ink at the left: 137700 +
    // 128 * -765 over the root of 765^2 + 1530^2 is 23; at the right edge, 137700 + 97920 over it, 137.
    CNaiveMask mask{9, 7};
    for (int y = 0; y < 7; ++y)
        for (int x = 3; x < 6; ++x) mask.Set(x, y, 0);
    const std::vector<int> shaded = Shown(mask, param, 9, 7);
    EXPECT_EQ(std::vector<int>(shaded.begin() + 27, shaded.begin() + 36),
              (std::vector<int>{255, 255, 137, 137, 90, 23, 23, 255, 255}));
    // One pixel swells to a diamond of 13, and its edge is a ring with a hole of one pixel.
    param.nTextEffect = kTextOutlined;
    mask = CNaiveMask{13, 13};
    mask.Set(6, 6, 30);
    const std::vector<int> outlined = Shown(mask, param, 13, 13);
    std::string strRows;
    for (std::size_t i = 3 * 13; i < 10 * 13; ++i) strRows += outlined[i] == 0 ? '#' : '.';
    EXPECT_EQ(strRows,
              ".....###....."
              "....#####...."
              "...#######..."
              "...###.###..."
              "...#######..."
              "....#####...."
              ".....###.....");
    mask.Set(6, 6, 31);
    EXPECT_EQ(Shown(mask, param, 13, 13), std::vector<int>(169, 255));
    EXPECT_EQ(Shown(CNaiveMask{4, 40, std::vector<std::uint8_t>(160)}, param, 4, 40),
              std::vector<int>(160, 255));
}

TEST(TextWarp, BlendsByTheMaskWithoutFractions) {
    // One row of every strength over every channel value that matters to a rounding.
    for (const int nChannel : {0, 1, 127, 128, 254, 255}) {
        CNaiveMask mask{258, 4};
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 256; ++x) mask.Set(x + 1, y, x);
        TextArtParam param;
        param.nBoxWidth = 258;
        param.nBoxHeight = 4;
        param.fQuad = {0, 0, 258, 0, 258, 4, 0, 4};
        const auto n = static_cast<std::uint8_t>(nChannel);
        const CPixels out = Rendered(CPixels::MakeFilled(258, 4, {n, n, n}), mask, param);
        for (int m = 0; m < 256; ++m) {
            EXPECT_EQ(PixelAt(out, m + 1, 1).r, ((255 - m) * 217 + m * nChannel) / 255) << m;
            EXPECT_EQ(PixelAt(out, m + 1, 1).g, ((255 - m) * 40 + m * nChannel) / 255) << m;
        }
    }
}

// ---- what it is given

TEST(TextWarp, RendersAnewFromTheBaseAndSharesWhatItDoesNotChange) {
    const CPixels base = NumberedPixels(60, 40);
    const CNaiveMask mask{6, 6, std::vector<std::uint8_t>(36)};
    TextArtParam param;
    CTextWarp warp;
    EXPECT_FALSE(warp.Render(param));
    warp.SetBase(base);
    EXPECT_EQ((CSize{warp.GetWidth(), warp.GetHeight()}), (CSize{60, 40}));
    EXPECT_FALSE(warp.Render(param)) << "no mask";
    EXPECT_TRUE(warp.Result().SharesWith(base));
    ASSERT_TRUE(warp.SetMask(mask.bytes, 6, 6));
    EXPECT_FALSE(warp.SetMask(mask.bytes, 6, 7)) << "fewer bytes than that";
    ASSERT_TRUE(warp.Render(param));
    const CPixels first = warp.Result();
    EXPECT_NE(first, base);
    EXPECT_EQ(base, NumberedPixels(60, 40));
    param.nBoxX = 20;
    ASSERT_TRUE(warp.Render(param));
    EXPECT_EQ(warp.Result(), Rendered(base, mask, param)) << "nothing is left of the first";
    EXPECT_EQ(first, Rendered(base, mask, {}));
    // A box of no width, outside of the picture, as far away as numbers go; corners on a line.
    std::array<TextArtParam, 7> arrOdd;
    arrOdd[0].nBoxWidth = 0;
    arrOdd[1].nBoxHeight = -5;
    arrOdd[2].nBoxX = 60;
    arrOdd[3].nBoxY = -144;
    arrOdd[4].nBoxWidth = arrOdd[4].nBoxHeight = INT_MAX;
    arrOdd[4].nBoxX = INT_MIN;
    arrOdd[5].fQuad = {0, 0, 50, 50, 20, 20, 0, 144};
    arrOdd[6].fQuad = {5, 5, 5, 5, 5, 5, 5, 5};
    for (TextArtParam& odd : arrOdd) {
        for (const int nKind : {kWarpProjection, kWarpMesh}) {
            if (nKind == kWarpMesh && odd.fQuad != TextArtParam{}.fQuad) continue;
            odd.nWarpKind = nKind;
            odd.nMeshX = odd.nBoxX;
            odd.nMeshY = odd.nBoxY;
            odd.nMeshWidth = odd.nBoxWidth;
            odd.nMeshHeight = odd.nBoxHeight;
            ASSERT_TRUE(warp.Render(odd));
            EXPECT_EQ(warp.Result(), base);
        }
    }
    ASSERT_TRUE(warp.Render(param));
    ASSERT_TRUE(warp.SetMask({}, 0, 72)) << "an empty text";
    EXPECT_TRUE(warp.Result().SharesWith(base));
    EXPECT_FALSE(warp.HasMask());
    EXPECT_FALSE(warp.Render(param));
}

// Each allocation of a rendering fails in turn, and then each block of pixels.
TEST(TextWarp, WithoutMemoryLeavesEverythingAsItWas) {
    const CPixels base = NumberedPixels(400, 300);
    CTextWarp warp;
    warp.SetBase(base);
    const CNaiveMask mask{300, 300, std::vector<std::uint8_t>(90000)};
    ASSERT_TRUE(warp.SetMask(mask.bytes, 300, 300));
    for (const int nKind : {kWarpProjection, kWarpMesh}) {
        TextArtParam param;
        param.nWarpKind = nKind;
        param.nTextEffect = kTextOutlined;
        param.nBoxX = 50;
        param.nMeshWidth = param.nMeshHeight = 300;
        param.fMeshSrcX = RegularMeshX(300);
        param.fMeshSrcY = RegularMeshY(300);
        for (const bool bBlocks : {false, true}) {
            ASSERT_TRUE(warp.Render({}));
            const CPixels before = warp.Result();
            for (int n = 0;; ++n) {
                std::optional<CShortMemory> memory;
                std::optional<CBlockGate> gate;
                if (bBlocks) gate.emplace(n + 1);
                if (!bBlocks) memory.emplace(n);
                const bool bDone = warp.Render(param);
                if (bDone) {
                    EXPECT_GT(n, bBlocks ? 0 : 3);
                    break;
                }
                EXPECT_TRUE(warp.Result().SharesWith(before)) << n;
            }
            EXPECT_EQ(warp.Result(), Rendered(base, mask, param));
        }
    }
    const CBlockGate gate(1);
    EXPECT_FALSE(warp.SetMask(mask.bytes, 300, 250));
    EXPECT_TRUE(warp.HasMask());
    // A plane that no machine holds.
    TextArtParam param;
    param.nWarpKind = kWarpMesh;
    param.nMeshWidth = param.nMeshHeight = INT_MAX;
    EXPECT_FALSE(warp.Render(param));
}

}  // namespace
