#pragma once

#include <cstddef>
#include <cstdint>

// A byte a pixel in somebody else's memory, the top row first, no gap between rows. In the masks here 0 is
// full ink and 255 is none.

inline constexpr std::uint8_t kNoInk = 255;

struct CConstGreyView {
    const std::uint8_t* pBits = nullptr;
    int nWidth = 0;
    int nHeight = 0;

    std::size_t Size() const { return static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight); }
    const std::uint8_t* Row(int y) const {
        return pBits + static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(y);
    }
};

struct CGreyView {
    std::uint8_t* pBits = nullptr;
    int nWidth = 0;
    int nHeight = 0;

    std::size_t Size() const { return static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight); }
    std::uint8_t* Row(int y) const {
        return pBits + static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(y);
    }
};
