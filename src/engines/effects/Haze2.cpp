#include <algorithm>

#include "engines/effects/ByteMap.h"
#include "engines/effects/ColourRows.h"
#include "engines/effects/Effects.h"
#include "engines/effects/RowRing.h"
#include "engines/effects/SoftenKernel.h"

namespace {

// A contrast curve for the luminance: flatter at both ends, steeper in the middle. 255 falls to 0, which is
// meant, and changes little: the screen blend with the luminance itself makes 255 of it again.
constexpr int LumaCurve(int n) {
    if (n == 0 || n == 255) return 0;
    if (n <= 72) return (3 * (n - 1) + 3) / 4;
    if (n <= 182) return (4 * n - 126) / 3;
    return (3 * n + 256) / 4;
}

// Widens chroma away from 128 by 9/7. What has no room for that is left alone, but for 255, which becomes 0.
constexpr std::uint8_t kFirstStretched = 44;
constexpr std::uint8_t kLastStretched = 211;

// 255 for a chroma that can be stretched, else 0.
FOTARIUM_INLINE std::uint8_t StretchMask(std::uint8_t n) {
    const auto nFrom = static_cast<std::uint8_t>(n - kFirstStretched);
    const std::uint8_t nInside = nFrom <= kLastStretched - kFirstStretched ? 255 : 0;
    const std::uint8_t nTop = n == 255 ? 255 : 0;
    return nInside | nTop;
}

// Only for what is stretched. The step of a little less than one in the middle makes 128 of 128.
FOTARIUM_INLINE std::uint8_t Stretched(std::uint8_t n) {
    const auto nFrom = static_cast<std::uint8_t>(n - kFirstStretched);
    const std::uint8_t nStep = n < 128 ? 0 : 244;
    const auto nFine = static_cast<std::uint16_t>(nFrom * 333 + 20 * 256 - nStep);
    const std::uint8_t nKept = n == 255 ? 0 : 255;
    return static_cast<std::uint8_t>(nFine >> 8) & nKept;
}

// A third of the luminance before the blur, from the luminance of the picture.
std::array<std::uint8_t, 256> BlendedThirds(int nLevel) {
    const int nAdd = std::clamp(nLevel, -255, 255);
    std::array<std::uint8_t, 256> map;
    for (int n = 0; n < 256; ++n) {
        const int nBlend = 255 - (255 - LumaCurve(n)) * (255 - n) / 256 + nAdd;
        map[static_cast<std::size_t>(n)] = ThirdOf(static_cast<std::uint8_t>(std::clamp(nBlend, 0, 255)));
    }
    return map;
}

// In place, where both channels of a pixel can be stretched.
FOTARIUM_INLINE void StretchBody(std::uint8_t* __restrict pU, std::uint8_t* __restrict pV, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) {
        const std::uint8_t nU = pU[x];
        const std::uint8_t nV = pV[x];
        const std::uint8_t nBoth = StretchMask(nU) & StretchMask(nV);
        pU[x] = static_cast<std::uint8_t>((Stretched(nU) & nBoth) | (nU & ~nBoth));
        pV[x] = static_cast<std::uint8_t>((Stretched(nV) & nBoth) | (nV & ~nBoth));
    }
}

FOTARIUM_INLINE void SoftenBody(const std::uint8_t* pAbove, const std::uint8_t* pHere,
                                const std::uint8_t* pBelow, std::uint8_t* __restrict pOut, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x) pOut[x] = Softened(pAbove, pHere, pBelow, x);
}

void StretchPlain(std::uint8_t* pU, std::uint8_t* pV, std::size_t n) {
    StretchBody(pU, pV, n);
}
FOTARIUM_AVX2 void StretchWide(std::uint8_t* pU, std::uint8_t* pV, std::size_t n) {
    StretchBody(pU, pV, n);
}
void SoftenPlain(const std::uint8_t* pAbove, const std::uint8_t* pHere, const std::uint8_t* pBelow,
                 std::uint8_t* pOut, std::size_t n) {
    SoftenBody(pAbove, pHere, pBelow, pOut, n);
}
FOTARIUM_AVX2 void SoftenWide(const std::uint8_t* pAbove, const std::uint8_t* pHere,
                              const std::uint8_t* pBelow, std::uint8_t* pOut, std::size_t n) {
    SoftenBody(pAbove, pHere, pBelow, pOut, n);
}

class CHaze {
  public:
    explicit CHaze(const CEffectCall& call)
        : m_call(call),
          m_nRows(static_cast<std::size_t>(std::min(call.src.nHeight, 3))),
          m_luma(m_nRows, call.src.nWidth),
          m_u(m_nRows, call.src.nWidth),
          m_v(m_nRows, call.src.nWidth),
          m_thirds(m_nRows, call.src.nWidth),
          m_toThirds(BlendedThirds(call.nLevel)) {}

    // Rows are written one behind those that are read, since the blur needs the row below.
    void Run() {
        const int h = m_call.src.nHeight;
        for (int y = 0; y < h; ++y) {
            ReadRow(y);
            if (y > 0) WriteRow(y - 1);
        }
        WriteRow(h - 1);
    }

  private:
    std::size_t Width() const { return static_cast<std::size_t>(m_call.src.nWidth); }

    void ReadRow(int y) {
        RgbToYuv(m_call.src.Row(y), m_luma.Row(y), m_u.Row(y), m_v.Row(y), Width());
        m_toThirds.Apply(m_luma.Row(y), m_thirds.Row(y), Width());
    }

    // The outermost rows and columns keep the luminance that they came with.
    void WriteRow(int y) {
        const auto soften = UseAvx2() ? SoftenWide : SoftenPlain;
        const auto stretch = UseAvx2() ? StretchWide : StretchPlain;
        if (y > 0 && y < m_call.src.nHeight - 1 && Width() > 2) {
            soften(m_thirds.Row(y - 1) + 1, m_thirds.Row(y) + 1, m_thirds.Row(y + 1) + 1, m_luma.Row(y) + 1,
                   Width() - 2);
        }
        stretch(m_u.Row(y), m_v.Row(y), Width());
        YuvToRgb(m_luma.Row(y), m_u.Row(y), m_v.Row(y), m_call.dst.Row(y), Width());
    }

    const CEffectCall& m_call;
    std::size_t m_nRows;
    CRowRing m_luma;
    CRowRing m_u;
    CRowRing m_v;
    CRowRing m_thirds;
    CByteMap m_toThirds;
};

}  // namespace

// A bright haze: the luminance goes through a contrast curve, a screen blend with itself and a soft blur, and
// is lifted by the level; chroma is widened. Nothing at level 0.
void Haze2(const CEffectCall& call) {
    if (call.nLevel == 0) return CopyPicture(call);
    CHaze(call).Run();
}
