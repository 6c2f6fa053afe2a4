#include "engines/effects/NaiveForms.h"

#include <algorithm>
#include <cstdlib>

namespace {

// Wide enough for any level.
using CWide = long long;

std::uint8_t Clamp(CWide n) {
    return static_cast<std::uint8_t>(std::clamp<CWide>(n, 0, 255));
}

// What is capped at one end only is kept in a byte.
std::uint8_t Byte(CWide n) {
    return static_cast<std::uint8_t>(n);
}

template <class TStep>
CPixels ForEachPixel(const CPixels& src, TStep step) {
    CPixels dst = CPixels::MakeFilled(src.Width(), src.Height(), {});
    const CPixelView view = dst.MutableView();
    for (int y = 0; y < src.Height(); ++y)
        for (int x = 0; x < src.Width(); ++x) view.Set(x, y, step(src.View().Get(x, y)));
    return dst;
}

// The step is given Y, U, V in r, g, b.
template <class TStep>
CPixels ThroughYuv(const CPixels& src, TStep step) {
    return ForEachPixel(src, [&](CColor cr) { return CxImage::YUVtoRGB(step(CxImage::RGBtoYUV(cr))); });
}

// The step is given H, S, L in r, g, b.
template <class TStep>
CPixels ThroughHsl(const CPixels& src, TStep step) {
    return ForEachPixel(src, [&](CColor cr) { return CxImage::HSLtoRGB(step(CxImage::RGBtoHSL(cr))); });
}

}  // namespace

CPixels NaiveBrightness(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    return ThroughYuv(src, [&](CColor yuv) {
        return CColor{Clamp(yuv.r + 2 * CWide{nLevel}), yuv.g, yuv.b};
    });
}

CPixels NaiveContrast(const CPixels& src, int nLevel) {
    const auto Spread = [&](CWide c) { return Clamp(c + (c - 128) * 2 * nLevel / 128); };
    return ForEachPixel(src, [&](CColor cr) { return CColor{Spread(cr.r), Spread(cr.g), Spread(cr.b)}; });
}

CPixels NaiveChroma(const CPixels& src, int nLevel) {
    return ThroughHsl(src, [&](CColor hsl) {
        if (nLevel > 0) hsl.g = Clamp(hsl.g + CWide{nLevel});
        if (nLevel < 0) hsl.g = Clamp(hsl.g + 3 * CWide{nLevel});
        return hsl;
    });
}

CPixels NaiveNegative(const CPixels& src) {
    return ForEachPixel(src, [](CColor cr) {
        return CColor{Byte(255 - cr.r), Byte(255 - cr.g), Byte(255 - cr.b)};
    });
}

CPixels NaivePureBlackWhite(const CPixels& src, int nLevel) {
    const auto s = static_cast<std::uint16_t>(src.Width() / 8);
    if (nLevel == 0 || s == 0) return src;
    CPixels dst = CPixels::MakeFilled(src.Width(), src.Height(), {});
    const CPixelView view = dst.MutableView();
    auto acc = static_cast<std::uint16_t>(s * 128);
    for (int x = 0; x < src.Width(); ++x) {
        for (int y = 0; y < src.Height(); ++y) {
            const CColor cr = src.View().Get(x, y);
            const auto g = static_cast<std::uint8_t>((cr.r + cr.g) / 2);
            acc = static_cast<std::uint16_t>(acc - acc / s + g);
            const bool bWhite = CWide{s} * g * 100 >= acc * (CWide{nLevel} + 50);
            view.Set(x, y, bWhite ? CColor{255, 255, 255} : CColor{0, 0, 0});
        }
    }
    return dst;
}

CPixels NaiveBlackWhite(const CPixels& src) {
    return ThroughYuv(src, [](CColor yuv) { return CColor{yuv.r, 128, 128}; });
}

CPixels NaiveColourSaturation(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    return ThroughHsl(NaiveContrast(src, nLevel), [&](CColor hsl) {
        return CColor{hsl.r, Clamp(hsl.g + 3 * CWide{nLevel}), hsl.b};
    });
}

CPixels NaiveOldPhoto(const CPixels& src) {
    return ThroughYuv(src, [](CColor yuv) { return CColor{yuv.r, 113, 143}; });
}

// The picture container has a form of its own.
CPixels NaiveHomogenise(const CPixels& src) {
    CxImage image(src);
    return image.HistogramEqualize() ? image.Pixels() : CPixels();
}

CPixels NaiveNostalgia(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    const std::uint8_t u = Byte(std::min<CWide>(CWide{nLevel} + 116, 255));
    const std::uint8_t v = Byte(std::min<CWide>(CWide{nLevel} + 136, 255));
    return ThroughYuv(src, [&](CColor yuv) { return CColor{yuv.r, u, v}; });
}

CPixels NaiveMoonlight(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    return ForEachPixel(src, [&](CColor cr) {
        const auto r = std::max<CWide>(static_cast<CWide>(cr.r * 0.1 + nLevel), 0);
        const CWide g = std::max<CWide>(cr.b - CWide{nLevel}, 0);
        const CWide b = std::min<CWide>(g + nLevel, 255);
        return CColor{Byte(r), Byte(g), Byte(b)};
    });
}

CPixels NaiveHaze1(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    const CWide nCount = CWide{src.Width()} * src.Height();
    CWide nSum = 0;
    CWide nDistances = 0;
    ForEachPixel(src, [&](CColor cr) {
        nSum += CxImage::RGBtoYUV(cr).r;
        return cr;
    });
    const CWide nMean = nSum / nCount;
    ForEachPixel(src, [&](CColor cr) {
        nDistances += std::llabs(nMean - CxImage::RGBtoYUV(cr).r);
        return cr;
    });
    const CWide nLift = std::llabs(255 - nDistances / nCount);
    return ThroughYuv(src, [&](CColor yuv) {
        return CColor{Clamp(yuv.r + CWide{nLevel} + nLift - 170), Clamp(yuv.g + CWide{nLevel} + 5),
                      Clamp(yuv.b - CWide{nLevel})};
    });
}

CPixels NaiveCool(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    return ForEachPixel(src, [&](CColor cr) {
        return CColor{Byte(std::max<CWide>(cr.r - (CWide{nLevel} + 50), 0)),
                      Byte(std::max<CWide>(cr.g - CWide{nLevel}, 0)),
                      Byte(std::min<CWide>(cr.b + CWide{nLevel} + 10, 255))};
    });
}
