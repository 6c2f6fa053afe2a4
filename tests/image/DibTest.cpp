#include <gtest/gtest.h>

#include "image/TestPictures.h"

namespace {

void Put(Bytes& bytes, std::uint32_t n, int nBytes) {
    for (int i = 0; i < nBytes; ++i) bytes.push_back(static_cast<std::uint8_t>(n >> (8 * i)));
}

Bytes Header(int nWidth, int nHeight, int nBits, std::uint32_t nCompression = 0, std::uint32_t nColors = 0) {
    Bytes dib;
    Put(dib, 40, 4);
    Put(dib, static_cast<std::uint32_t>(nWidth), 4);
    Put(dib, static_cast<std::uint32_t>(nHeight), 4);
    Put(dib, 1, 2);
    Put(dib, static_cast<std::uint32_t>(nBits), 2);
    Put(dib, nCompression, 4);
    for (int i = 0; i < 3; ++i) Put(dib, 0, 4);
    Put(dib, nColors, 4);
    Put(dib, 0, 4);
    return dib;
}

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// The colours of a picture of one row or more, from the top left.
std::vector<CColor> Colors(const Bytes& dib) {
    CxImage image;
    std::vector<CColor> colors;
    if (!image.CreateFromHANDLE(dib)) return colors;
    const CConstPixelView view = image.Pixels().View();
    for (int y = 0; y < view.nHeight; ++y) {
        for (int x = 0; x < view.nWidth; ++x) colors.push_back(view.Get(x, y));
    }
    return colors;
}

using CColors = std::vector<CColor>;

TEST(Dib, GoesOutAndComesBack) {
    for (const int nWidth : {1, 2, 3, 4, 5, 31}) {
        const CxImage image = SmoothPicture(nWidth, 6);
        const Bytes dib = image.CopyToHandle();
        const std::size_t nStride = (static_cast<std::size_t>(nWidth) * 3 + 3) / 4 * 4;
        ASSERT_EQ(dib.size(), 40 + 6 * nStride);
        EXPECT_EQ(dib[40], image.GetPixelColor(0, 0).b) << "blue of the lower left pixel comes first";
        CxImage back;
        ASSERT_TRUE(back.CreateFromHANDLE(dib));
        EXPECT_EQ(back.Pixels(), image.Pixels());
        for (std::size_t n = 0; n < dib.size(); ++n) {
            ASSERT_FALSE(back.CreateFromHANDLE(std::span(dib).first(n))) << "a block of " << n << " bytes";
        }
        EXPECT_EQ(back.Pixels(), image.Pixels()) << "a refused block changes nothing";
    }
    EXPECT_TRUE(CxImage().CopyToHandle().empty());
}

TEST(Dib, OtherProgramsFormsAreRead) {
    const Bytes palette = {10, 20, 30, 0, 40, 50, 60, 0};
    const CColor cr0{30, 20, 10};
    const CColor cr1{60, 50, 40};
    EXPECT_EQ(Colors(Header(9, 1, 1) + palette + Bytes{0x80, 0x80, 0, 0}),
              (CColors{cr1, cr0, cr0, cr0, cr0, cr0, cr0, cr0, cr1}));
    EXPECT_EQ(Colors(Header(3, 1, 4, 0, 2) + palette + Bytes{0x10, 0x20, 0, 0}),
              (CColors{cr1, cr0, CColor{}}));
    EXPECT_EQ(Colors(Header(2, 2, 8, 0, 2) + palette + Bytes{0, 1, 0, 0, 1, 1, 0, 0}),
              (CColors{cr1, cr1, cr0, cr1}));
    EXPECT_EQ(Colors(Header(2, -2, 8, 0, 2) + palette + Bytes{0, 1, 0, 0, 1, 1, 0, 0}),
              (CColors{cr0, cr1, cr1, cr1}));
    EXPECT_EQ(Colors(Header(2, 1, 16) + Bytes{0x00, 0x7C, 0xFF, 0x7F}),
              (CColors{{255, 0, 0}, {255, 255, 255}}));
    EXPECT_EQ(Colors(Header(1, 1, 32) + Bytes{1, 2, 3, 0}), (CColors{{3, 2, 1}}));
    const Bytes masks565 = {0, 0xF8, 0, 0, 0xE0, 0x07, 0, 0, 0x1F, 0, 0, 0};
    EXPECT_EQ(Colors(Header(2, 1, 16, 3) + masks565 + Bytes{0xE0, 0x07, 0x1F, 0x84}),
              (CColors{{0, 255, 0}, {132, 130, 255}}));
    const Bytes masksSwapped = {0xFF, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0};
    EXPECT_EQ(Colors(Header(1, 1, 32, 3) + masksSwapped + Bytes{1, 2, 3, 9}), (CColors{{1, 2, 3}}));
}

TEST(Dib, ContradictionsAreRefused) {
    const Bytes room(4096, 0);
    EXPECT_FALSE(Colors(Header(4, 4, 24) + room).empty());
    Bytes shortHeader = Header(4, 4, 24);
    shortHeader[0] = 12;
    const Bytes holes = {0x05, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
    // Sizes, depths, run lengths, masks for 24 bits, too many colours, another header, a mask with a hole.
    const Bytes headers[] = {Header(0, 4, 24),
                             Header(4, 0, 24),
                             Header(-4, 4, 24),
                             Header(4, INT32_MIN, 24),
                             Header(INT32_MAX, INT32_MAX, 32),
                             Header(4, 4, 2),
                             Header(4, 4, 8, 1),
                             Header(4, 4, 24, 3),
                             Header(4, 4, 8, 0, 257),
                             Header(4, 4, 24, 0, 0xFFFFFFFF),
                             shortHeader,
                             Header(4, 4, 32, 3) + holes};
    for (const Bytes& header : headers) EXPECT_TRUE(Colors(header + room).empty()) << &header - headers;
}

}  // namespace
