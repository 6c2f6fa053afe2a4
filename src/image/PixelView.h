#pragma once

#include <cstddef>
#include <cstdint>

#include "image/Color.h"

// 24-bit pixels in somebody else's memory: R, G, B, the top row first, 3 * nWidth bytes a row with no gap. A
// view owns nothing and is good as long as that memory stands. Coordinates must lie inside.

struct CConstPixelView {
    const std::uint8_t* pBits = nullptr;
    int nWidth = 0;
    int nHeight = 0;

    std::size_t Stride() const { return std::size_t{3} * static_cast<std::size_t>(nWidth); }
    const std::uint8_t* Row(int y) const { return pBits + Stride() * static_cast<std::size_t>(y); }
    CColor Get(int x, int y) const {
        const std::uint8_t* const p = Row(y) + 3 * static_cast<std::ptrdiff_t>(x);
        return {p[0], p[1], p[2]};
    }
};

struct CPixelView {
    std::uint8_t* pBits = nullptr;
    int nWidth = 0;
    int nHeight = 0;

    std::size_t Stride() const { return std::size_t{3} * static_cast<std::size_t>(nWidth); }
    std::uint8_t* Row(int y) const { return pBits + Stride() * static_cast<std::size_t>(y); }
    CColor Get(int x, int y) const {
        const std::uint8_t* const p = Row(y) + 3 * static_cast<std::ptrdiff_t>(x);
        return {p[0], p[1], p[2]};
    }
    void Set(int x, int y, CColor cr) const {
        std::uint8_t* const p = Row(y) + 3 * static_cast<std::ptrdiff_t>(x);
        p[0] = cr.r;
        p[1] = cr.g;
        p[2] = cr.b;
    }
    operator CConstPixelView() const { return {pBits, nWidth, nHeight}; }
};
