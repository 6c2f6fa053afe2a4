#include <algorithm>
#include <cstdlib>

#include "engines/effects/NaiveForms.h"

namespace {

using CBytes = std::vector<std::uint8_t>;

std::uint8_t Clamp(std::int64_t n) {
    return static_cast<std::uint8_t>(n < 0 ? 0 : n > 255 ? 255 : n);
}

std::uint8_t Soften(const CNaivePlanes& p, const CBytes& plane, int x, int y) {
    const int nUp = plane[p.At(x, y - 1)];
    const int nLeft = plane[p.At(x - 1, y)];
    const int nCentre = plane[p.At(x, y)];
    const int nRight = plane[p.At(x + 1, y)];
    const int nDown = plane[p.At(x, y + 1)];
    return Clamp(nUp / 6 + nLeft / 6 + (2 * nCentre) / 6 + nRight / 6 + nDown / 6);
}

std::uint8_t Sharpen(const CNaivePlanes& p, const CBytes& plane, int x, int y) {
    const int nCentre = plane[p.At(x, y)];
    const int t = nCentre - plane[p.At(x, y - 1)] / 5 - plane[p.At(x - 1, y)] / 5 -
                  plane[p.At(x + 1, y)] / 5 - plane[p.At(x, y + 1)] / 5;
    return Clamp(nCentre + t / 5);
}

CPixels Mapped(const CPixels& src, const std::uint32_t* pMap) {
    CPixels dst = src;
    for (std::uint8_t& n : dst.MutableBytes()) n = static_cast<std::uint8_t>(pMap[n]);
    return dst;
}

// The greys of Backlight, cumulative and divided by the height, and their weighted sums.
struct CSplitTables {
    explicit CSplitTables(const CPixels& src) {
        const auto w = static_cast<std::uint32_t>(src.Width());
        const auto h = static_cast<std::uint32_t>(src.Height());
        const std::span<const std::uint8_t> bytes = src.Bytes();
        for (std::size_t n = 0; n < 3 * std::size_t{w} * h - 2; n += 6) {
            ++arrCount[(bytes[n] + bytes[n + 1] + bytes[n + 2]) / 3U];
        }
        for (std::uint32_t k = 1; k < 256; ++k) {
            arrSum[k] = k * arrCount[k] + arrSum[k - 1];
            arrCount[k] += arrCount[k - 1];
        }
        for (std::uint32_t k = 0; k < 256; ++k) {
            arrCount[k] /= h;
            arrSum[k] /= h;
        }
        arrSum[255] /= w / 2;
    }

    std::uint32_t DarkPoint(std::uint32_t nLimit) const {
        std::uint32_t nTotal = 0;
        for (std::uint32_t k = 0; k < 256; ++k) {
            nTotal += arrCount[k];
            if (nTotal >= nLimit) return k;
        }
        return 0;
    }

    std::uint32_t SplitPoint(std::uint32_t nHalf) const {
        std::uint32_t nBest = 0;
        std::int32_t nBestValue = 0;
        for (std::uint32_t k = 0; k <= 254; ++k) {
            if (arrCount[k] == 0 || arrCount[k] >= nHalf * 7 / 8) continue;
            const std::uint32_t n = arrSum[255] * arrCount[k] - arrSum[k];
            const std::uint32_t nValue = (n * n) / (arrCount[k] * (nHalf - arrCount[k]));
            if (static_cast<std::int32_t>(nValue) > nBestValue) {
                nBestValue = static_cast<std::int32_t>(nValue);
                nBest = k;
            }
        }
        return nBest;
    }

    std::uint32_t arrCount[256]{};
    std::uint32_t arrSum[256]{};
};

void BlendOver(CNaivePlanes& p, const CBytes& b, int nLevel) {
    for (std::size_t i = 0; i < p.y.size(); ++i) {
        p.y[i] = Clamp(255 - ((255 - p.y[i]) * (255 - b[i])) / 256 + std::int64_t{nLevel} - 60);
    }
}

const int kStretch[168] = {
    20,  21,  22,  23,  25,  26,  27,  29,  30,  31,  33,  34,  35,  36,  38,  39,  40,  42,  43,  44,  46,
    47,  48,  49,  51,  52,  53,  55,  56,  57,  59,  60,  61,  62,  64,  65,  66,  68,  69,  70,  72,  73,
    74,  75,  77,  78,  79,  81,  82,  83,  85,  86,  87,  88,  90,  91,  92,  94,  95,  96,  98,  99,  100,
    101, 103, 104, 105, 107, 108, 109, 111, 112, 113, 114, 116, 117, 118, 120, 121, 122, 124, 125, 126, 127,
    128, 129, 130, 132, 133, 134, 136, 137, 138, 140, 141, 142, 143, 145, 146, 147, 149, 150, 151, 153, 154,
    155, 156, 158, 159, 160, 162, 163, 164, 166, 167, 168, 169, 171, 172, 173, 175, 176, 177, 179, 180, 181,
    182, 184, 185, 186, 188, 189, 190, 192, 193, 194, 195, 197, 198, 199, 201, 202, 203, 205, 206, 207, 208,
    210, 211, 212, 214, 215, 216, 218, 219, 220, 221, 223, 224, 225, 227, 228, 229, 231, 232, 233, 234, 236};

int ChromaStretch(int n) {
    if (n == 255) return 0;
    return n < 44 || n > 211 ? 256 : kStretch[n - 44];
}

int LumaCurve(int n) {
    if (n == 0 || n == 255) return 0;
    if (n <= 72) return (3 * (n - 1) + 3) / 4;
    return n <= 182 ? (4 * n - 126) / 3 : (3 * n + 256) / 4;
}

}  // namespace

CNaivePlanes::CNaivePlanes(const CPixels& src) : nWidth(src.Width()), nHeight(src.Height()) {
    const std::span<const std::uint8_t> bytes = src.Bytes();
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const CColor yuv = ColorRGBtoYUV({bytes[i], bytes[i + 1], bytes[i + 2]});
        y.push_back(yuv.r);
        u.push_back(yuv.g);
        v.push_back(yuv.b);
    }
}

CPixels CNaivePlanes::ToPixels() const {
    CPixels dst = CPixels::MakeFilled(nWidth, nHeight, {});
    const std::span<std::uint8_t> bytes = dst.MutableBytes();
    for (std::size_t i = 0; i < y.size(); ++i) {
        const CColor rgb = ColorYUVtoRGB({y[i], u[i], v[i]});
        bytes[3 * i] = rgb.r;
        bytes[3 * i + 1] = rgb.g;
        bytes[3 * i + 2] = rgb.b;
    }
    return dst;
}

void CNaivePlanes::MakeGrey() {
    std::ranges::fill(u, std::uint8_t{128});
    std::ranges::fill(v, std::uint8_t{128});
}

CPixels NaiveSharpness(const CPixels& src, int nLevel) {
    if (nLevel == 0 || src.Width() < 3 || src.Height() < 3) return src;
    CNaivePlanes p(src);
    CBytes b = p.y;
    const std::int64_t nPasses = std::abs(std::int64_t{nLevel});
    for (std::int64_t n = 0; n < nPasses; ++n) {
        for (int y = 1; y <= p.nHeight - 2; ++y) {
            for (int x = 1; x <= p.nWidth - 2; ++x) {
                b[p.At(x, y)] = nLevel < 0 ? Soften(p, p.y, x, y) : Sharpen(p, p.y, x, y);
            }
        }
        // Whatever stands still once stands still for ever.
        if (b == p.y) break;
        p.y = b;
    }
    return p.ToPixels();
}

CPixels NaiveNoiseRemoval(const CPixels& src) {
    CPixels out = src;
    const CConstPixelView view = src.View();
    for (int y = 0; y <= src.Height() - 6; ++y) {
        for (int x = 0; x <= src.Width() - 6; ++x) {
            const auto cell = [&](int n) { return view.Get(x + n % 5, y + n / 5); };
            std::vector<int> red;
            std::vector<int> green;
            int nBlue = 0;
            for (const int n : {6, 8, 12, 12, 16, 18}) red.push_back(cell(n).r);
            for (const int n : {0, 4, 6, 8, 12, 12, 16, 18, 20, 24}) {
                green.push_back(cell(n).g);
                nBlue += cell(n).b;
            }
            std::ranges::sort(red);
            std::ranges::sort(green);
            out.MutableView().Set(x + 2, y + 2,
                                  {static_cast<std::uint8_t>((red[2] + red[3]) / 2),
                                   static_cast<std::uint8_t>((green[4] + green[5]) / 2),
                                   static_cast<std::uint8_t>(nBlue / 10)});
        }
    }
    return out;
}

CPixels NaiveBacklight(const CPixels& src) {
    if (src.Width() < 2) return src;
    const CSplitTables tables(src);
    const auto w = static_cast<std::uint32_t>(src.Width());
    const auto h = static_cast<std::uint32_t>(src.Height());
    const std::uint32_t nDark = tables.DarkPoint(w * h / 1024);
    const std::uint32_t t = std::clamp(tables.SplitPoint(w / 2), 1U, 214U);
    const std::uint32_t nLow = nDark / 2 < t ? nDark / 2 : 0;
    const std::uint32_t u = t + 40;
    const std::uint32_t d = u - nLow;
    std::uint32_t arrMap[256];
    for (std::uint32_t k = 0; k <= nLow; ++k) arrMap[k] = k;
    for (std::uint32_t k = nLow + 1; k < t; ++k) {
        const std::uint32_t a = ((d * 128) / (t - nLow) * (k - nLow)) / 128 + nLow;
        arrMap[k] = a + ((u - a) * (a - nLow)) / d;
    }
    for (std::uint32_t k = t; k < 256; ++k) arrMap[k] = ((255 - u) * 256 / (255 - t) * (k - t)) / 256 + u;
    return Mapped(src, arrMap);
}

CPixels NaiveLowLightRepair(const CPixels& src) {
    const int w = src.Width();
    const int h = src.Height();
    if (w * h < 8) return src;
    std::uint32_t arrCount[256]{};
    const int x0 = 3 * w / 8;
    const int y0 = h / 8;
    for (int y = y0; y < 7 * y0; y += 2) {
        for (int x = x0; x < 7 * x0; x += 6) {
            const std::uint8_t* const p = src.View().Row(y) + x;
            ++arrCount[(p[0] + p[1] + p[2]) / 3];
        }
    }
    const std::uint32_t n = static_cast<std::uint32_t>(9 * w * h) / 64;
    std::uint32_t nMean = 0;
    for (std::uint32_t k = 0; k < 256; ++k) nMean += k * arrCount[k];
    nMean = std::max(nMean / n, 1U);
    const std::uint32_t nScale = nMean / 16 + 1;
    const double fScale = nScale;
    const auto nLowCount = static_cast<std::uint32_t>(n * fScale * 0.0015);
    const auto nHighCount = static_cast<std::uint32_t>(n * fScale * 0.0025);
    int nLow = 0;
    int nHigh = 255;
    std::uint32_t nTotal = 0;
    for (int k = 0; k < 256; ++k) {
        nTotal += arrCount[k];
        if (nTotal >= nLowCount) {
            nLow = k;
            break;
        }
    }
    nTotal = 0;
    for (int k = 255; k >= 0; --k) {
        nTotal += arrCount[k];
        if (nTotal >= nHighCount) {
            nHigh = k;
            break;
        }
    }
    if (nHigh <= nLow) {
        nHigh = 255;
        nLow = 0;
        nMean = 128;
    }
    const int nRange = nHigh - nLow;
    int nTop = 255;
    int nBottom = nLow / 8;
    if (nMean <= 70) {
        const int nLift = nRange <= 40 ? 28 : 20;
        nTop = std::min((nHigh + 600) / 4 + nLift, 255);
        nBottom = nLow / 2 + nLift;
    } else if (nRange <= 40) {
        nBottom = std::max(nLow - nRange / 2, 0);
        nTop = std::min(nBottom + 2 * nRange, 255);
    }
    std::uint32_t arrMap[256];
    for (int k = 0; k < 256; ++k) {
        int m = nBottom;
        if (k > nLow) m = (((nTop - nBottom) * 128 / nRange * (k - nLow)) >> 7) + nBottom;
        if (k >= nHigh) m = nTop;
        arrMap[k] = static_cast<std::uint32_t>(m);
    }
    return Mapped(src, arrMap);
}

CPixels NaiveHaze2(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    CNaivePlanes p(src);
    CBytes b = p.y;
    for (std::size_t i = 0; i < b.size(); ++i) {
        const int c = LumaCurve(p.y[i]);
        if (ChromaStretch(p.u[i]) < 256 && ChromaStretch(p.v[i]) < 256) {
            p.u[i] = static_cast<std::uint8_t>(ChromaStretch(p.u[i]));
            p.v[i] = static_cast<std::uint8_t>(ChromaStretch(p.v[i]));
        }
        p.y[i] = Clamp(255 - ((255 - c) * (255 - b[i])) / 256 + std::int64_t{nLevel});
    }
    for (int y = 1; y <= p.nHeight - 2; ++y) {
        for (int x = 1; x <= p.nWidth - 2; ++x) b[p.At(x, y)] = Soften(p, p.y, x, y);
    }
    p.y = b;
    return p.ToPixels();
}

CPixels NaiveEngrave(const CPixels& src) {
    const int w = src.Width();
    const int h = src.Height();
    std::vector<int> words;
    const std::span<const std::uint8_t> bytes = src.Bytes();
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        words.push_back(((bytes[i] * 256) & 0xF800) | ((bytes[i + 1] * 8) & 0x07E0) |
                        ((bytes[i + 2] / 8) & 0x001F));
    }
    const auto unpack = [](int n) {
        return std::array<int, 3>{(n / 256) & 0xF8, (n / 8) & 0xFC, (n * 8) & 0xFF};
    };
    std::vector<int> out = words;
    for (int i = w * h - w - 2; i >= w + 1; --i) {
        const int nFrom = i - w - 1;
        const int nTo = i + w + 1;
        const std::array<int, 3> from = unpack(words[static_cast<std::size_t>(nFrom)]);
        const std::array<int, 3> to = unpack(words[static_cast<std::size_t>(nTo)]);
        out[static_cast<std::size_t>(i)] = ((Clamp(to[0] - from[0] + 128) * 256) & 0xF800) |
                                           ((Clamp(to[1] - from[1] + 128) * 8) & 0x07E0) |
                                           ((Clamp(to[2] - from[2] + 128) / 8) & 0x001F);
    }
    CPixels dst = CPixels::MakeFilled(w, h, {});
    for (int i = w; i < w * (h - 1); ++i) {
        const std::array<int, 3> rgb = unpack(out[static_cast<std::size_t>(i)]);
        dst.MutableView().Set(i % w, i / w,
                              {static_cast<std::uint8_t>(rgb[0]), static_cast<std::uint8_t>(rgb[1]),
                               static_cast<std::uint8_t>(rgb[2])});
    }
    return dst;
}

CPixels NaiveSketch(const CPixels& src) {
    if (src.Width() < 4 || src.Height() < 4) return src;
    CNaivePlanes p(src);
    const CBytes d = p.y;
    CBytes e(d.size(), 0);
    for (int r = 0; r <= p.nHeight - 4; ++r) {
        for (int x = 0; x <= p.nWidth - 4; ++x) {
            const int nP = d[p.At(x, r)];
            const int nS = d[p.At(x + 3, r)];
            const int nQ = d[p.At(x, r + 3)];
            const int nT = d[p.At(x + 3, r + 3)];
            e[p.At(x, r)] = static_cast<std::uint8_t>(std::abs(nP - nQ) | std::abs(nP - nT) |
                                                      std::abs(nS - nQ) | std::abs(nP - nS));
        }
    }
    for (std::size_t i = 0; i < e.size(); ++i) p.y[i] = static_cast<std::uint8_t>(255 - e[i]);
    p.MakeGrey();
    return p.ToPixels();
}

CPixels NaiveRefraction1(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    CNaivePlanes p(src);
    CBytes b = p.y;
    for (int y = 1; y <= p.nHeight - 3; ++y) {
        for (int x = 1; x <= p.nWidth - 3; ++x) {
            b[p.At(x + 1, y + 1)] = static_cast<std::uint8_t>(
                (b[p.At(x - 1, y - 1)] + b[p.At(x, y - 1)] + b[p.At(x - 1, y)] + b[p.At(x, y)]) / 4);
        }
    }
    BlendOver(p, b, nLevel);
    return p.ToPixels();
}

CPixels NaiveRefraction2(const CPixels& src, int nLevel) {
    if (nLevel == 0) return src;
    CNaivePlanes p(src);
    CBytes b = p.y;
    for (int y = 1; y <= p.nHeight - 3; ++y) {
        for (int x = p.nWidth - 2; x >= 2; --x) {
            b[p.At(x - 1, y + 1)] = static_cast<std::uint8_t>(
                (b[p.At(x + 1, y - 1)] + b[p.At(x, y - 1)] + b[p.At(x + 1, y)] + b[p.At(x, y)]) / 4);
        }
    }
    BlendOver(p, b, nLevel);
    return p.ToPixels();
}

CPixels NaiveWoodcut(const CPixels& src) {
    CNaivePlanes p(src);
    const CBytes d = p.y;
    const auto nStep = static_cast<std::size_t>(p.nWidth) + 1;
    for (std::size_t i = 0; i + nStep < d.size(); ++i) {
        p.y[i] = static_cast<std::uint8_t>(d[i + nStep] - d[i]);
    }
    p.MakeGrey();
    return p.ToPixels();
}
