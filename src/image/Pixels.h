#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "image/Color.h"
#include "image/PixelView.h"
#include "image/SharedBytes.h"

// A value: the 24-bit pixels of a picture. Three bytes a pixel in the order R, G, B, the top row first, no
// gap between rows (a row is 3 * Width() bytes). Copying shares the pixels; the first write through a copy
// separates it, so a write is never seen through another copy. At least 64 bytes behind the last pixel may be
// read and written (CSharedBytes). One thread.
class CPixels {
  public:
    CPixels() = default;

    // A picture in one colour; empty if it cannot be held.
    static CPixels MakeFilled(int nWidth, int nHeight, CColor cr);

    // True if a picture of that size can be held at all: both sides above 0, at most 2 GiB of pixels, and no
    // more than the machine has left.
    [[nodiscard]] static bool Fits(int nWidth, int nHeight);

    // A black picture. False, and nothing changes, if it cannot be held.
    [[nodiscard]] bool Create(int nWidth, int nHeight);
    // The same with undefined content, for a caller that writes every pixel.
    [[nodiscard]] bool CreateRaw(int nWidth, int nHeight);
    // The same in one colour.
    [[nodiscard]] bool CreateFilled(int nWidth, int nHeight, CColor cr);
    void Clear();

    int Width() const { return m_nWidth; }
    int Height() const { return m_nHeight; }
    std::size_t Stride() const { return std::size_t{3} * static_cast<std::size_t>(m_nWidth); }
    bool IsEmpty() const { return m_bytes.IsEmpty(); }

    // Reading never separates. Row 0 is the top row; y must lie inside.
    std::span<const std::uint8_t> Bytes() const { return {m_bytes.Data(), m_bytes.Size()}; }
    std::span<const std::uint8_t> Row(int y) const {
        return {m_bytes.Data() + Stride() * static_cast<std::size_t>(y), Stride()};
    }
    CConstPixelView View() const { return {m_bytes.Data(), m_nWidth, m_nHeight}; }

    // Makes these pixels unshared, so that the Mutable calls behind it cannot fail. False if memory is short.
    [[nodiscard]] bool Separate() { return m_bytes.Separate(); }

    // Writing separates first. Empty (null in a view of no size) if there was no memory to separate.
    [[nodiscard]] std::span<std::uint8_t> MutableBytes() {
        std::uint8_t* const pBits = m_bytes.MutableData();
        return {pBits, pBits != nullptr ? m_bytes.Size() : 0};
    }
    [[nodiscard]] std::span<std::uint8_t> MutableRow(int y) {
        const std::span<std::uint8_t> bytes = MutableBytes();
        return bytes.empty() ? bytes : bytes.subspan(Stride() * static_cast<std::size_t>(y), Stride());
    }
    [[nodiscard]] CPixelView MutableView() {
        std::uint8_t* const pBits = m_bytes.MutableData();
        return pBits != nullptr ? CPixelView{pBits, m_nWidth, m_nHeight} : CPixelView{};
    }

    // True if other pixels stand on the same memory, so that a write would separate.
    bool IsShared() const { return m_bytes.IsShared(); }
    // True if both stand on the same memory.
    bool SharesWith(const CPixels& other) const { return m_bytes.SharesWith(other.m_bytes); }
    // True if both have the same size and the same colours.
    bool operator==(const CPixels& other) const;

  private:
    CSharedBytes m_bytes;
    int m_nWidth = 0;
    int m_nHeight = 0;
};
