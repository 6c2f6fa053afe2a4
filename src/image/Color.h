#pragma once

#include <cstdint>

// One colour, a byte a channel.
struct CColor {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    bool operator==(const CColor&) const = default;

    // The platform's 32-bit form 0x00BBGGRR.
    constexpr std::uint32_t ToRef() const {
        return static_cast<std::uint32_t>(r) | static_cast<std::uint32_t>(g) << 8 |
               static_cast<std::uint32_t>(b) << 16;
    }
    static constexpr CColor FromRef(std::uint32_t cr) {
        return {static_cast<std::uint8_t>(cr), static_cast<std::uint8_t>(cr >> 8),
                static_cast<std::uint8_t>(cr >> 16)};
    }
};
