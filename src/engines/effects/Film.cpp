// Film: the picture as a strip of film. Bands of white sprocket holes between black bars run along top and
// bottom, black lines down both sides, and the strips outside these lines change places.

#include <algorithm>

#include "engines/effects/Effects.h"
#include "engines/effects/Rgb565.h"

namespace {

struct CFilmRow {
    std::uint8_t* pPixels;
    int nWidth;

    // Columns from nFrom up to, not including, nTo; what lies outside the row is cut off.
    void Fill(int nFrom, int nTo, CColor cr) const {
        nTo = std::min(nTo, nWidth);
        for (int x = std::max(nFrom, 0); x < nTo; ++x) Set(x, cr);
    }
    void Set(int x, CColor cr) const {
        std::uint8_t* const p = pPixels + 3 * static_cast<std::ptrdiff_t>(x);
        p[0] = cr.r;
        p[1] = cr.g;
        p[2] = cr.b;
    }
    bool Has(int x) const { return x >= 0 && x < nWidth; }
};

int EdgeFor(int nWidth) {
    return nWidth <= 176 ? 4 : nWidth <= 320 ? 8 : nWidth <= 640 ? 16 : 32;
}

void SprocketRow(const CFilmRow& row, int nEdge) {
    const int nGap = 2 * nEdge;
    row.Fill(0, row.nWidth, kWhite565);
    row.Fill(0, nEdge, kBlack565);
    row.Fill(row.nWidth - nEdge + 1, row.nWidth, kBlack565);
    for (int c = nGap + nEdge; c < row.nWidth - nEdge; c += 2 * nGap) row.Fill(c, c + nGap, kBlack565);
}

// Without its old content where bBlank, which then stays black.
void PictureRow(const CFilmRow& row, const CConstPixelView& src, int y, int nEdge, bool bBlank) {
    const int nStrip = 3 * nEdge;
    if (bBlank) {
        row.Fill(0, row.nWidth, kBlack565);
    } else {
        ReduceTo565(src.Row(y), row.pPixels, static_cast<std::size_t>(row.nWidth));
        row.Fill(nStrip, 5 * nEdge, kBlack565);
        row.Fill(row.nWidth - 5 * nEdge + 1, row.nWidth - nStrip + 1, kBlack565);
    }
    // Pair by pair, since in a narrow picture the strips overlap and the later pair wins.
    for (int c = 0; c < nStrip; ++c) {
        const int nPartner = row.nWidth - nStrip + c;
        if (!row.Has(c) || !row.Has(nPartner)) continue;
        row.Set(nPartner, ReduceTo565(src.Get(c, y)));
        row.Set(c, ReduceTo565(src.Get(nPartner, y)));
    }
}

}  // namespace

// The picture must be high enough for both bands; a flatter one stays as it is. Columns that a line or a
// strip would have outside a very narrow picture are left out.
void Film(const CEffectCall& call) {
    const int w = call.src.nWidth;
    const int h = call.src.nHeight;
    const int nEdge = EdgeFor(w);
    const int nBand = w / 8;
    if (h < 2 * nBand) return CopyPicture(call);

    for (int y = 0; y < h; ++y) {
        const CFilmRow row{call.dst.Row(y), w};
        // Counted from the nearer border of the picture, and from the nearer border of the band.
        const int nDepth = std::min(y, h - 1 - y);
        const bool bBlack = nDepth < nEdge || (nDepth < nBand && nDepth >= nBand - nEdge);
        if (nDepth >= nBand) {
            PictureRow(row, call.src, y, nEdge, bBlack);
        } else if (bBlack) {
            row.Fill(0, w, kBlack565);
        } else {
            SprocketRow(row, nEdge);
        }
    }
}
