#pragma once

#include <cstddef>
#include <cstdint>

// The two forms of the functions of ColourRows.h, which chooses between them at each call. What the
// arguments are stands there.
struct CColourRowForms {
    using CSplit = void(const std::uint8_t* pRgb, std::uint8_t* pA, std::uint8_t* pB, std::uint8_t* pC,
                        std::size_t n);
    using CJoin = void(const std::uint8_t* pA, const std::uint8_t* pB, const std::uint8_t* pC,
                       std::uint8_t* pRgb, std::size_t n);

    CSplit* splitRgb;
    CJoin* joinRgb;
    CSplit* rgbToYuv;
    void (*rgbToY)(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n);
    void (*rgbToUv)(const std::uint8_t* pRgb, const std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
                    std::size_t n);
    CJoin* yuvToRgb;
    void (*tintToRgb)(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb,
                      std::size_t n);
    CSplit* rgbToHsl;
    CJoin* hslToRgb;
    void (*addLimited)(std::uint8_t* p, int nAdd, std::size_t n);
};

const CColourRowForms& PlainColourRows();
// The plain ones where the compiler knows no AVX2.
const CColourRowForms& Avx2ColourRows();
