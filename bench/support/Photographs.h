#pragma once

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "image/Image.h"

// Below this benchmarks keep their files: FOTARIUM_BENCH_DIR, or the temporary folder without it.
inline std::filesystem::path BenchFolder() {
    const char* const szFolder = std::getenv("FOTARIUM_BENCH_DIR");
    return szFolder != nullptr ? std::filesystem::path(szFolder) : std::filesystem::temp_directory_path();
}

// Something of a photograph, another one for each number.
inline CxImage MakePhotograph(CSize size, unsigned nNumber) {
    CxImage image(size.cx, size.cy);
    const CPixelView view = image.MutableView();
    std::minstd_rand random(nNumber + 1);
    const double fStep = 0.009 + 0.0004 * nNumber;
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x) {
            const double fWave =
                std::sin(x * fStep) * std::cos(y * 0.007) + 0.3 * std::sin((x + 2 * y) * 0.05);
            const int n = 110 + static_cast<int>(60 * fWave) + static_cast<int>(random() % 17) - 8;
            view.Set(x, y, {LimitToByte(n), LimitToByte(n - x * 40 / size.cx), LimitToByte(n / 2 + 60)});
        }
    return image;
}
