#pragma once

#include <cstddef>
#include <cstdint>

// The colour conversions of ColorSpace.h over runs of pixels, the same to the last bit, and the way between
// pixels (three bytes each: R, G, B) and one byte array for each channel. n counts pixels and may be
// anything, 0 as well; exactly n pixels are read and written. Any address will do; a multiple of 64 is
// fastest. What is written must not overlap another argument; what is only read may be the same.
//
// Meant for chunks: convert, work on the arrays, convert back, while all of it lies in the nearest cache.

// Pixels of a chunk whose three arrays, with the pixels themselves on both sides, stay in the nearest cache.
// A multiple of 64.
inline constexpr std::size_t kChunkPixels = 1024;

// Three channel arrays for a chunk: R, G, B or Y, U, V or H, S, L.
struct CChunk {
    alignas(64) std::uint8_t a[kChunkPixels];
    alignas(64) std::uint8_t b[kChunkPixels];
    alignas(64) std::uint8_t c[kChunkPixels];
};

void SplitRgb(const std::uint8_t* pRgb, std::uint8_t* pR, std::uint8_t* pG, std::uint8_t* pB, std::size_t n);
void JoinRgb(const std::uint8_t* pR, const std::uint8_t* pG, const std::uint8_t* pB, std::uint8_t* pRgb,
             std::size_t n);

void RgbToYuv(const std::uint8_t* pRgb, std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV, std::size_t n);
// Y alone, for an effect that gives U and V of its own or needs none.
void RgbToY(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n);
// U and V of pixels whose Y is known already.
void RgbToUv(const std::uint8_t* pRgb, const std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
             std::size_t n);
void YuvToRgb(const std::uint8_t* pY, const std::uint8_t* pU, const std::uint8_t* pV, std::uint8_t* pRgb,
              std::size_t n);
// With the same U and V for every pixel.
void YuvToRgb(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb, std::size_t n);

void RgbToHsl(const std::uint8_t* pRgb, std::uint8_t* pH, std::uint8_t* pS, std::uint8_t* pL, std::size_t n);
void HslToRgb(const std::uint8_t* pH, const std::uint8_t* pS, const std::uint8_t* pL, std::uint8_t* pRgb,
              std::size_t n);

// Adds nAdd (any int) to each byte, limited to 0..255, in place.
void AddLimited(std::uint8_t* p, int nAdd, std::size_t n);
