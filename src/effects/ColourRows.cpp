#include "effects/ColourRows.h"

#include <algorithm>

#include "image/ColorSpace.h"

void SplitRgb(const std::uint8_t* pRgb, std::uint8_t* pR, std::uint8_t* pG, std::uint8_t* pB, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        pR[i] = pRgb[3 * i];
        pG[i] = pRgb[3 * i + 1];
        pB[i] = pRgb[3 * i + 2];
    }
}

void JoinRgb(const std::uint8_t* pR, const std::uint8_t* pG, const std::uint8_t* pB, std::uint8_t* pRgb,
             std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        pRgb[3 * i] = pR[i];
        pRgb[3 * i + 1] = pG[i];
        pRgb[3 * i + 2] = pB[i];
    }
}

void RgbToYuv(const std::uint8_t* pRgb, std::uint8_t* pY, std::uint8_t* pU, std::uint8_t* pV, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const CColor yuv = ColorRGBtoYUV({pRgb[3 * i], pRgb[3 * i + 1], pRgb[3 * i + 2]});
        pY[i] = yuv.r;
        pU[i] = yuv.g;
        pV[i] = yuv.b;
    }
}

void RgbToY(const std::uint8_t* pRgb, std::uint8_t* pY, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i)
        pY[i] = ColorRGBtoYUV({pRgb[3 * i], pRgb[3 * i + 1], pRgb[3 * i + 2]}).r;
}

void YuvToRgb(const std::uint8_t* pY, const std::uint8_t* pU, const std::uint8_t* pV, std::uint8_t* pRgb,
              std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const CColor rgb = ColorYUVtoRGB({pY[i], pU[i], pV[i]});
        pRgb[3 * i] = rgb.r;
        pRgb[3 * i + 1] = rgb.g;
        pRgb[3 * i + 2] = rgb.b;
    }
}

void YuvToRgb(const std::uint8_t* pY, std::uint8_t nU, std::uint8_t nV, std::uint8_t* pRgb, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const CColor rgb = ColorYUVtoRGB({pY[i], nU, nV});
        pRgb[3 * i] = rgb.r;
        pRgb[3 * i + 1] = rgb.g;
        pRgb[3 * i + 2] = rgb.b;
    }
}

void RgbToHsl(const std::uint8_t* pRgb, std::uint8_t* pH, std::uint8_t* pS, std::uint8_t* pL, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const CColor hsl = ColorRGBtoHSL({pRgb[3 * i], pRgb[3 * i + 1], pRgb[3 * i + 2]});
        pH[i] = hsl.r;
        pS[i] = hsl.g;
        pL[i] = hsl.b;
    }
}

void HslToRgb(const std::uint8_t* pH, const std::uint8_t* pS, const std::uint8_t* pL, std::uint8_t* pRgb,
              std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        const CColor rgb = ColorHSLtoRGB({pH[i], pS[i], pL[i]});
        pRgb[3 * i] = rgb.r;
        pRgb[3 * i + 1] = rgb.g;
        pRgb[3 * i + 2] = rgb.b;
    }
}

void AddLimited(std::uint8_t* p, int nAdd, std::size_t n) {
    const int nReal = std::clamp(nAdd, -255, 255);
    for (std::size_t i = 0; i < n; ++i) p[i] = LimitToByte(p[i] + nReal);
}
