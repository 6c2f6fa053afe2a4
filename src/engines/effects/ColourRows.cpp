#include "engines/effects/ColourRows.h"

#include "engines/effects/ColourRowForms.h"
#include "image/CpuChoice.h"

namespace {

const CColourRowForms& Forms() {
    return UseAvx2() ? Avx2ColourRows() : PlainColourRows();
}

}  // namespace

void SplitRgb(const std::uint8_t* pRgb, std::uint8_t* pR, std::uint8_t* pG, std::uint8_t* pB, std::size_t n) {
    Forms().splitRgb(pRgb, pR, pG, pB, n);
}

void JoinRgb(const std::uint8_t* pR, const std::uint8_t* pG, const std::uint8_t* pB, std::uint8_t* pRgb,
             std::size_t n) {
    Forms().joinRgb(pR, pG, pB, pRgb, n);
}

void RgbToYuv(const std::uint8_t* pRgb, std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV, std::size_t n) {
    Forms().rgbToYuv(pRgb, pY, pU, pV, n);
}

void RgbToY(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n) {
    Forms().rgbToY(pRgb, pY, n);
}

void RgbToUv(const std::uint8_t* pRgb, const std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV,
             std::size_t n) {
    Forms().rgbToUv(pRgb, pY, pU, pV, n);
}

void YuvToRgb(const std::uint8_t* pY, const std::uint8_t* pU, const std::uint8_t* pV, std::uint8_t* pRgb,
              std::size_t n) {
    Forms().yuvToRgb(pY, pU, pV, pRgb, n);
}

void YuvToRgb(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb, std::size_t n) {
    Forms().tintToRgb(pY, nU, nV, pRgb, n);
}

void RgbToHsl(const std::uint8_t* pRgb, std::uint8_t* pH, std::uint8_t* pS, std::uint8_t* pL, std::size_t n) {
    Forms().rgbToHsl(pRgb, pH, pS, pL, n);
}

void HslToRgb(const std::uint8_t* pH, const std::uint8_t* pS, const std::uint8_t* pL, std::uint8_t* pRgb,
              std::size_t n) {
    Forms().hslToRgb(pH, pS, pL, pRgb, n);
}

void AddLimited(std::uint8_t* p, int nAdd, std::size_t n) {
    Forms().addLimited(p, nAdd, n);
}
