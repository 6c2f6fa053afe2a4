#include <vector>

#include "engines/effects/FrameTables.h"
#include "engines/effects/NaiveForms.h"
#include "engines/effects/VignetteMask.h"
#include "support/Pictures.h"

namespace {

// The picture as words of 16 bits, five for red and blue, six for green.
struct CPacked {
    explicit CPacked(const CPixels& src) : nWidth(src.Width()), nHeight(src.Height()) {
        for (int y = 0; y < nHeight; ++y)
            for (int x = 0; x < nWidth; ++x) words.push_back(Pack(PixelAt(src, x, y)));
    }
    static std::uint16_t Pack(CColor cr) {
        return static_cast<std::uint16_t>(((cr.r * 256) & 0xF800) | ((cr.g * 8) & 0x07E0) |
                                          ((cr.b / 8) & 0x001F));
    }
    static CColor Unpack(int nWord) {
        return {static_cast<std::uint8_t>((nWord / 256) & 0xF8),
                static_cast<std::uint8_t>((nWord / 8) & 0xFC), static_cast<std::uint8_t>((nWord * 8) & 0xFF)};
    }
    bool Has(int x, int y) const { return x >= 0 && y >= 0 && x < nWidth && y < nHeight; }
    std::size_t At(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(nWidth) + static_cast<std::size_t>(x);
    }
    std::uint16_t Get(int x, int y) const { return words[At(x, y)]; }
    // Outside the picture there is nothing to set.
    void Set(int x, int y, int nWord) {
        if (Has(x, y)) words[At(x, y)] = static_cast<std::uint16_t>(nWord);
    }
    void SetRow(int y, int nWord) {
        for (int x = 0; x < nWidth; ++x) Set(x, y, nWord);
    }
    CPixels ToPixels() const {
        CPixels dst = CPixels::MakeFilled(nWidth, nHeight, {});
        for (int y = 0; y < nHeight; ++y)
            for (int x = 0; x < nWidth; ++x) dst.MutableView().Set(x, y, Unpack(Get(x, y)));
        return dst;
    }

    int nWidth;
    int nHeight;
    std::vector<std::uint16_t> words;
};

constexpr int kWhite = 0xFFFF;
constexpr int kBlack = 0;

void FilmBands(CPacked& dst, int nEdge, int nBand) {
    const int w = dst.nWidth;
    const int h = dst.nHeight;
    std::vector<int> rows;
    for (int i = 0; i < nBand; ++i) {
        rows.push_back(i);
        rows.push_back(h - nBand + i);
    }
    for (const int y : rows) dst.SetRow(y, kWhite);
    for (int i = 0; i < nEdge; ++i)
        for (const int y : {i, nBand - nEdge + i, h - nBand + i, h - nEdge + i}) dst.SetRow(y, kBlack);
    for (const int y : rows) {
        for (int x = 0; x < nEdge; ++x) dst.Set(x, y, kBlack);
        for (int x = w - nEdge + 1; x < w; ++x) dst.Set(x, y, kBlack);
        for (int c = 3 * nEdge; c < w - nEdge; c += 4 * nEdge)
            for (int x = c; x < c + 2 * nEdge; ++x) dst.Set(x, y, kBlack);
    }
}

// Index arithmetic of a plane, in which a column beyond the right edge is one of the next row.
std::int64_t Linear(const CNaivePlanes& p, int x, int y) {
    return static_cast<std::int64_t>(y) * p.nWidth + x;
}
std::int64_t Cells(const CNaivePlanes& p) {
    return static_cast<std::int64_t>(p.nWidth) * p.nHeight;
}

// A stroke point and its two lights; false if it ends the run.
bool Stroke(CNaivePlanes& p, const std::vector<std::uint8_t>& d, int x, int y, bool bAcross) {
    const std::int64_t nIndex = Linear(p, x, y);
    const std::int64_t nCells = Cells(p);
    if (x >= p.nWidth || nIndex > nCells - 1) return false;
    const auto Change = [&](std::int64_t n, int nBy) {
        const auto i = static_cast<std::size_t>(n);
        p.y[i] = static_cast<std::uint8_t>(std::min(std::max(d[i] + nBy, 0), 255));
    };
    Change(nIndex, -80);
    for (int i = 1; i <= 2; ++i) {
        const std::int64_t nLight = nIndex + (bAcross ? static_cast<std::int64_t>(p.nWidth) * i : i);
        const bool bWrite = bAcross ? nLight <= static_cast<std::int64_t>(p.nWidth) * (p.nHeight - 1)
                                    : nLight != 0 && nLight <= nCells - 1;
        if (bWrite) Change(nLight, i == 1 ? 20 : 60);
    }
    return true;
}

void JointsAcross(CNaivePlanes& p, const std::vector<std::uint8_t>& d) {
    int nCounter = 0;
    for (int y = 40; y < p.nHeight; y += 40) {
        for (int x = 0; x < p.nWidth; x += 40)
            for (int i = 0; i < 40; ++i)
                if ((i <= 16 || i >= 23) && !Stroke(p, d, x + i, y, true)) break;
        for (int x = 0; x < p.nWidth; x += 40, ++nCounter)
            for (const CJigsawPoint& pt : kJigsawKnobAcross)
                if (!Stroke(p, d, x + pt.dx, nCounter % 4 == 0 ? y + pt.dy : y - pt.dy, true)) break;
    }
}

void JointsDown(CNaivePlanes& p, const std::vector<std::uint8_t>& d) {
    int nStraight = 0;
    int nKnob = 0;
    for (int y = 0; y < p.nHeight; y += 40) {
        for (int x = 40; x < p.nWidth; x += 40, ++nStraight)
            for (int k = 0; k < 32; ++k) {
                const int nWobble = k == 15 || k == 17 ? 1 : k == 16 ? 2 : 0;
                const int o = k <= 16 ? k : k + 8;
                if (!Stroke(p, d, nStraight % 3 != 0 ? x + nWobble : x - nWobble, y + o, false)) break;
            }
        for (int x = 40; x < p.nWidth; x += 40, ++nKnob)
            for (const CJigsawPoint& pt : kJigsawKnobDown)
                if (!Stroke(p, d, nKnob % 3 != 0 ? x + pt.dx : x - pt.dx, y + pt.dy, false)) break;
    }
}

// One block of Laminate, in place, by linear index.
void LaminateBlock(const std::span<std::uint8_t> bytes, int w, int x, int y, int nColumns, int nRows) {
    const auto ForCells = [&](auto what) {
        for (int i = 0; i < nRows; ++i)
            for (int j = 0; j < nColumns; ++j)
                what((static_cast<std::size_t>(y + i) * static_cast<std::size_t>(w) +
                      static_cast<std::size_t>(x + j)) *
                     3);
    };
    for (std::size_t c = 0; c < 3; ++c) {
        std::int64_t nSum = 0;
        ForCells([&](std::size_t n) { nSum += bytes[n + c] / 2; });
        const std::int64_t m = nSum / (static_cast<std::int64_t>(nColumns) * nRows);
        ForCells([&](std::size_t n) { bytes[n + c] = static_cast<std::uint8_t>(bytes[n + c] / 2 + m); });
    }
}

void MirrorRows(const CPacked& src, CPacked& dst, int y) {
    const int w = src.nWidth;
    const int h = src.nHeight;
    const int cx = w / 2;
    const int cy = (h + 1) / 2;
    int x = 0;
    while (x < cx && (cy - y) * (cy - y) + (cx - x) * (cx - x) >= cy * cy) {
        for (const int yBlack : {y, h - 1 - y}) {
            dst.Set(x, yBlack, kBlack);
            dst.Set(w - 1 - x, yBlack, kBlack);
        }
        ++x;
    }
    if (x == cx) return;
    const int nSpan = 2 * (cx - x);
    const float fStep = static_cast<float>(w) / static_cast<float>(nSpan);
    float f = 0.0F;
    for (int k = x; k < x + nSpan; ++k) {
        const int s = static_cast<int>(f);
        dst.Set(k, y, src.Get(s, y));
        dst.Set(k, h - 1 - y, src.Get(s, h - 1 - y));
        f += fStep;
    }
}

}  // namespace

CPixels NaiveFilm(const CPixels& src) {
    const CPacked packed(src);
    CPacked dst = packed;
    const int w = packed.nWidth;
    const int h = packed.nHeight;
    const int nEdge = w <= 176 ? 4 : w <= 320 ? 8 : w <= 640 ? 16 : 32;
    const int nBand = w / 8;
    if (h < 2 * nBand) return src;
    FilmBands(dst, nEdge, nBand);
    for (int y = nBand; y < h - nBand; ++y) {
        for (int c = 3 * nEdge; c < 5 * nEdge; ++c) {
            dst.Set(c, y, kBlack);
            dst.Set(w - c, y, kBlack);
        }
        for (int c = 0; c < 3 * nEdge; ++c) {
            const int nOther = w - 3 * nEdge + c;
            if (!packed.Has(c, y) || !packed.Has(nOther, y)) continue;
            dst.Set(nOther, y, packed.Get(c, y));
            dst.Set(c, y, packed.Get(nOther, y));
        }
    }
    return dst.ToPixels();
}

CPixels NaiveArt(const CPixels& src) {
    CPixels mask = CPixels::MakeFilled(CVignetteMask::kWidth, CVignetteMask::kHeight, {});
    for (int y = 0; y < mask.Height(); ++y)
        for (int x = 0; x < mask.Width(); ++x) {
            const std::uint8_t n = VignetteMask().Row(y)[static_cast<std::size_t>(x)];
            mask.MutableView().Set(x, y, {n, n, n});
        }
    const CPixels stretched = NaiveResample(mask, src.Width(), src.Height());
    CNaivePlanes p(src);
    for (int y = 0; y < p.nHeight; ++y)
        for (int x = 0; x < p.nWidth; ++x) {
            const std::size_t i = p.At(x, y);
            const int s = PixelAt(stretched, x, y).r + p.y[i];
            if (s > 255) {
                p.y[i] = 255;
                p.u[i] = p.v[i] = 128;
            } else {
                p.y[i] = static_cast<std::uint8_t>(s);
            }
        }
    return p.ToPixels();
}

CPixels NaiveCrystalFrame(const CPixels& src) {
    CPacked p(src);
    const int w = p.nWidth;
    const int h = p.nHeight;
    const std::span<const std::int16_t> rings = CrystalRings(w);
    for (int r = 0; r < static_cast<int>(rings.size()); ++r) {
        const auto Change = [&](int x, int y) {
            if (!p.Has(x, y)) return;
            const int d = rings[static_cast<std::size_t>(r)];
            const CColor cr = CPacked::Unpack(p.Get(x, y));
            p.Set(x, y, CPacked::Pack({LimitToByte(cr.r + d), LimitToByte(cr.g + d), LimitToByte(cr.b + d)}));
        };
        for (int x = r; x <= w - r - 1; ++x) {
            Change(x, r);
            Change(x, h - 1 - r);
        }
        for (int y = r + 1; y <= h - 2 - r; ++y) {
            Change(r, y);
            Change(w - 1 - r, y);
        }
    }
    return p.ToPixels();
}

CPixels NaiveJigsaw(const CPixels& src) {
    CNaivePlanes p(src);
    const std::vector<std::uint8_t> d = p.y;
    JointsAcross(p, d);
    JointsDown(p, d);
    return p.ToPixels();
}

CPixels NaiveOilPainting(const CPixels& src, int nLevel, int, CRandomSequence& random) {
    if (nLevel == 0 || src.Width() < 10 || src.Height() < 10) return src;
    CNaivePlanes p(src);
    const std::vector<std::uint8_t> d = p.y;
    const std::int64_t nCells = Cells(p);
    for (int x = 0; x < p.nWidth; x += 2)
        for (int y = 0; y < p.nHeight; y += 2) {
            const int rx = random.Next() % (p.nWidth - 9);
            const int ry = random.Next() % (p.nHeight - 9);
            // Rows and cells behind the plane's end have no part in it; a huge level has mostly such.
            const auto ForCells = [&](auto what) {
                for (int i = 0; i < nLevel && Linear(p, rx, ry + i) < nCells; ++i)
                    for (int j = 0; j < nLevel && Linear(p, rx, ry + i) + j < nCells; ++j)
                        what(static_cast<std::size_t>(Linear(p, rx, ry + i) + j));
            };
            std::int64_t nSum = 0;
            ForCells([&](std::size_t n) { nSum += d[n]; });
            const std::int64_t nArea = static_cast<std::int64_t>(nLevel) * nLevel;
            ForCells([&](std::size_t n) { p.y[n] = static_cast<std::uint8_t>(nSum / nArea); });
        }
    return p.ToPixels();
}

CPixels NaiveTile(const CPixels& src, int nLevel, int nRefWidth, CRandomSequence& random) {
    const int w = src.Width();
    const int h = src.Height();
    std::int64_t g = static_cast<std::int64_t>(w) * nLevel * 20 / nRefWidth;
    const auto nCompared = static_cast<std::int16_t>(g);
    if (!(nCompared < w && nCompared < h)) g = w <= h ? w - 1 : h - 1;
    // No level below 0 exists.
    if (w < 2 || h < 2 || g <= 0 || nLevel < 0) return src;
    CNaivePlanes p(src);
    const auto Whiten = [&p](std::int64_t n) {
        if (n >= Cells(p)) return;
        const auto i = static_cast<std::size_t>(n);
        p.y[i] = 255;
        p.u[i] = p.v[i] = 128;
    };
    for (std::int64_t y = 0; y < h; y += g)
        for (std::int64_t x = 0; x < w; x += g) {
            const int a = random.Next() % 3 + 1;
            const int b = random.Next() % 3 + 1;
            for (std::int64_t i = 0; i < g && y + i < h; ++i)
                for (int j = 0; j < b; ++j) Whiten((y + i) * w + x + j);
            for (std::int64_t i = 0; i < g && x + i < w; ++i)
                for (int j = 0; j < a; ++j) Whiten((y + j) * w + x + i);
        }
    return p.ToPixels();
}

CPixels NaiveLaminate(const CPixels& src, int nLevel, int nRefWidth, CRandomSequence&) {
    const int w = src.Width();
    const int h = src.Height();
    std::int64_t nSide = static_cast<std::int64_t>(w) * nLevel * 10 / nRefWidth;
    if (!(nSide < w && nSide < h)) nSide = w <= h ? w - 1 : h - 1;
    if (nSide <= 0) return src;
    const int g = static_cast<int>(nSide);
    CPixels dst = src;
    const std::span<std::uint8_t> bytes = dst.MutableBytes();
    int y = 0;
    for (; y < h - g; y += g)
        for (int x = 0; x < w; x += g) LaminateBlock(bytes, w, x, y, g, g);
    for (int x = 0; x < w - g; x += g) LaminateBlock(bytes, w, x, y, g, h - y);
    return dst;
}

CPixels NaiveConcaveMirror(const CPixels& src) {
    const CPacked packed(src);
    CPacked dst = packed;
    for (int y = 0; y < (packed.nHeight + 1) / 2; ++y) MirrorRows(packed, dst, y);
    return dst.ToPixels();
}
