#pragma once

#include <cstdint>
#include <vector>

#include "engines/warp/TextArtParam.h"
#include "image/Pixels.h"

// A second form of the engine, one pixel after the other and nothing kept from one to the next.

struct CNaiveMask {
    // Beyond the mask is the nearest pixel inside.
    int At(int x, int y) const;
    void Set(int x, int y, int n) {
        bytes[static_cast<std::size_t>(y) * static_cast<std::size_t>(w) + static_cast<std::size_t>(x)] =
            static_cast<std::uint8_t>(n);
    }

    int w = 0;
    int h = 0;
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(static_cast<std::size_t>(w * h), 255);
};

CNaiveMask NaiveEffect(const CNaiveMask& mask, int nEffect);
CNaiveMask NaiveProject(const CNaiveMask& mask, const TextArtParam& param);
CNaiveMask NaiveScale(const CNaiveMask& mask, int nWidth, int nHeight);
CNaiveMask NaiveMesh(const CNaiveMask& plane, const TextArtParam& param);
// One line of the mesh's passes; map has an entry for each pixel.
std::vector<std::uint8_t> NaiveLine(std::vector<float> map, const std::vector<std::uint8_t>& line,
                                    bool bColumn);
// Empty if it fails.
std::vector<float> NaiveSpline(const std::vector<float>& X, const std::vector<float>& Y, int nCount);
CPixels NaiveRender(const CPixels& base, const CNaiveMask& mask, const TextArtParam& param);
