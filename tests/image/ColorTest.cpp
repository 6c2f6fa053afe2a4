#include <gtest/gtest.h>

#include <cmath>

#include "image/CpuChoice.h"
#include "image/TestPictures.h"

namespace {

// The formulas a second time, in another hand: real numbers of single precision, tables where the code has
// branches.

int Limited(float f) {
    const int n = static_cast<int>(std::trunc(f));
    return n < 0 ? 0 : n > 255 ? 255 : n;
}

CColor Bytes3(int a, int b, int c) {
    return {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b), static_cast<std::uint8_t>(c)};
}

CColor NaiveToYuv(float R, float G, float B) {
    volatile float fSum = 0.299f * R;
    fSum = fSum + 0.587f * G;
    fSum = fSum + 0.114f * B;
    const auto Y = static_cast<float>(Limited(fSum));
    return Bytes3(Limited(fSum), Limited((B - Y) * 0.565f + 128.0f), Limited((R - Y) * 0.713f + 128.0f));
}

CColor NaiveFromYuv(float Y, float U, float V) {
    const float u = U - 128.0f;
    const float v = V - 128.0f;
    volatile float fGreen = Y - 0.344f * u;
    fGreen = fGreen - 0.714f * v;
    return Bytes3(Limited(Y + 1.403f * v), Limited(fGreen), Limited(Y + 1.770f * u));
}

CColor NaiveToHsl(int R, int G, int B) {
    const int M = std::max(R, std::max(G, B));
    const int m = std::min(R, std::min(G, B));
    const int L = ((M + m) * 255 + 255) / 510;
    if (M == m) return Bytes3(170, 0, L);
    int S = ((M - m) * 255 + (M + m) / 2) / (M + m);
    if (L > 127) S = ((M - m) * 255 + (510 - M - m) / 2) / (510 - M - m);
    const auto d = [&](int n) { return ((M - n) * 42 + (M - m) / 2) / (M - m); };
    int H = 170 + d(G) - d(R);
    if (G == M) H = 85 + d(R) - d(B);
    if (R == M) H = d(B) - d(G);
    return Bytes3((H + 256) % 256, S, L);
}

int NaiveRamp(float p, float q, float a) {
    if (a > 360.0f) a -= 360.0f;
    if (a < 0.0f) a += 360.0f;
    float f = p;
    if (a < 240.0f) f = p + (q - p) * (240.0f - a) / 60.0f;
    if (a < 180.0f) f = q;
    if (a < 60.0f) f = p + (q - p) * a / 60.0f;
    return static_cast<int>(std::trunc(255.0f * f));
}

CColor NaiveFromHsl(float H, float S, float L) {
    const float h = H * 360.0f / 255.0f;
    const float s = S / 255.0f;
    const float l = L / 255.0f;
    if (s == 0.0f) {
        const int n = static_cast<int>(l * 255.0f);
        return Bytes3(n, n, n);
    }
    float q = l * (1.0f + s);
    if (l > 0.5f) {
        q = l + s;
        q = q - l * s;
    }
    const float p = 2.0f * l - q;
    return Bytes3(NaiveRamp(p, q, h + 120.0f), NaiveRamp(p, q, h), NaiveRamp(p, q, h - 120.0f));
}

TEST(Color, EveryColourConvertsLikeTheNaiveForm) {
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            for (int c = 0; c < 256; ++c) {
                const CColor cr = Bytes3(a, b, c);
                const auto fA = static_cast<float>(a);
                const auto fB = static_cast<float>(b);
                const auto fC = static_cast<float>(c);
                const bool bSame = CxImage::RGBtoYUV(cr) == NaiveToYuv(fA, fB, fC) &&
                                   CxImage::YUVtoRGB(cr) == NaiveFromYuv(fA, fB, fC) &&
                                   CxImage::RGBtoHSL(cr) == NaiveToHsl(a, b, c) &&
                                   CxImage::HSLtoRGB(cr) == NaiveFromHsl(fA, fB, fC);
                ASSERT_TRUE(bSame) << a << ' ' << b << ' ' << c;
            }
        }
    }
}

TEST(Color, ValuesWorkedOutByHand) {
    EXPECT_EQ(CxImage::RGBtoYUV({255, 0, 0}), (CColor{76, 85, 255}));
    EXPECT_EQ(CxImage::YUVtoRGB({100, 128, 128}), (CColor{100, 100, 100}));
    EXPECT_EQ(CxImage::RGBtoHSL({255, 0, 0}), (CColor{0, 255, 128}));
    EXPECT_EQ(CxImage::RGBtoHSL({0, 0, 255}), (CColor{170, 255, 128}));
    EXPECT_EQ(CxImage::RGBtoHSL({77, 77, 77}), (CColor{170, 0, 77}));
    // A red with a little blue: the hue lies below 0 and wraps.
    EXPECT_EQ(CxImage::RGBtoHSL({200, 0, 20}), (CColor{252, 255, 100}));
}

TEST(Color, EqualisationSpreadsTheLuminances) {
    const unsigned nSeed = TestSeed();
    SCOPED_TRACE(nSeed);
    std::mt19937 random(nSeed);
    CxImage before = RandomPicture(random, 53, 37);
    for (std::uint8_t& n : before.MutableBytes()) n = static_cast<std::uint8_t>(n / 3 + 20);
    const std::span<const std::uint8_t> bytes = before.Pixels().Bytes();
    double count[256] = {};
    for (std::size_t n = 0; n < bytes.size(); n += 3)
        for (int i = (117 * bytes[n + 2] + 601 * bytes[n + 1] + 306 * bytes[n]) / 1024; i < 256; ++i)
            count[i] += 1;
    CxImage wanted = before;
    for (int y = 0; y < 37; ++y) {
        for (int x = 0; x < 53; ++x) {
            CColor yuv = CxImage::RGBtoYUV(before.GetPixelColor(x, y));
            yuv.r = static_cast<std::uint8_t>((count[yuv.r] - count[0]) * 255 / (count[255] - count[0]));
            wanted.SetPixelColor(x, y, CxImage::YUVtoRGB(yuv));
        }
    }
    CxImage wide = before, plain = before, black(3, 3);
    ASSERT_TRUE(wide.HistogramEqualize() && black.HistogramEqualize());
    EXPECT_EQ(black.Pixels(), CxImage(3, 3).Pixels()) << "with all greys 0 nothing happens";
    const CPlainLoops loops;
    ASSERT_TRUE(plain.HistogramEqualize());
    EXPECT_EQ(wide.Pixels(), wanted.Pixels());
    EXPECT_EQ(plain.Pixels(), wanted.Pixels());
}

}  // namespace
