#include "image/Pixels.h"

#include <algorithm>
#include <cstring>

bool CPixels::Fits(int nWidth, int nHeight) {
    if (nWidth <= 0 || nHeight <= 0) return false;
    return CSharedBytes::Fits(std::uint64_t{3} * static_cast<std::uint64_t>(nWidth) *
                              static_cast<std::uint64_t>(nHeight));
}

bool CPixels::CreateRaw(int nWidth, int nHeight) {
    if (!Fits(nWidth, nHeight)) return false;
    if (!m_bytes.Allocate(std::size_t{3} * static_cast<std::size_t>(nWidth) *
                          static_cast<std::size_t>(nHeight))) {
        return false;
    }
    m_nWidth = nWidth;
    m_nHeight = nHeight;
    return true;
}

CPixels CPixels::MakeFilled(int nWidth, int nHeight, CColor cr) {
    CPixels pixels;
    return pixels.CreateFilled(nWidth, nHeight, cr) ? pixels : CPixels();
}

bool CPixels::Create(int nWidth, int nHeight) {
    return CreateFilled(nWidth, nHeight, {});
}

bool CPixels::CreateFilled(int nWidth, int nHeight, CColor cr) {
    if (!CreateRaw(nWidth, nHeight)) return false;
    std::uint8_t* const pBits = m_bytes.MutableData();
    if (cr.r == cr.g && cr.g == cr.b) {
        std::memset(pBits, cr.r, m_bytes.Size());
        return true;
    }
    const CPixelView view{pBits, nWidth, nHeight};
    for (int x = 0; x < nWidth; ++x) view.Set(x, 0, cr);
    for (int y = 1; y < nHeight; ++y) std::memcpy(view.Row(y), view.Row(0), view.Stride());
    return true;
}

void CPixels::Clear() {
    *this = CPixels();
}

bool CPixels::operator==(const CPixels& other) const {
    return m_nWidth == other.m_nWidth && m_nHeight == other.m_nHeight &&
           (m_bytes.SharesWith(other.m_bytes) || std::ranges::equal(Bytes(), other.Bytes()));
}
