// The committed photographs themselves: there, whole, of the sizes told, and worth to be edited.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "image/Image.h"

namespace {

struct CSample {
    const char* pszName;
    int nWidth;
    int nHeight;
};
constexpr std::array<CSample, 6> kSamples{{{"湖光", 1280, 960},
                                           {"静物", 1280, 960},
                                           {"肖像", 960, 1280},
                                           {"夜色", 1280, 960},
                                           {"书页", 900, 1200},
                                           {"花砖", 1024, 768}}};
constexpr std::uintmax_t kMostBytes = 600'000;

std::filesystem::path PathOf(const CSample& sample) {
    return std::filesystem::path(FOTARIUM_SOURCE_DIR "/src/resources/samples") /
           (std::string(sample.pszName) + ".jpg");
}

int Grey(const std::uint8_t* p) {
    return (299 * p[0] + 587 * p[1] + 114 * p[2]) / 1000;
}

struct CFindings {
    int nDark = 0;       // the grey that a twentieth of the pixels stay below
    int nBright = 0;     // and that a twentieth go beyond
    double fChroma = 0;  // mean distance of the largest from the smallest channel
    double fDetail = 0;  // mean step from a pixel to its right neighbour
};

CFindings Look(const CxImage& image) {
    const CConstPixelView view = image.Pixels().View();
    std::array<std::size_t, 256> counts{};
    CFindings found;
    for (int y = 0; y < view.nHeight; ++y) {
        const std::uint8_t* pRow = view.Row(y);
        for (int x = 0; x < view.nWidth; ++x, pRow += 3) {
            ++counts[static_cast<std::size_t>(Grey(pRow))];
            found.fChroma += std::max({pRow[0], pRow[1], pRow[2]}) - std::min({pRow[0], pRow[1], pRow[2]});
            if (x + 1 < view.nWidth) found.fDetail += std::abs(Grey(pRow) - Grey(pRow + 3));
        }
    }
    const auto nPixels = static_cast<std::size_t>(view.nWidth) * static_cast<std::size_t>(view.nHeight);
    const auto level = [&](std::size_t nBelow) {
        std::size_t nSum = 0;
        int n = 0;
        while (n < 255 && (nSum += counts[static_cast<std::size_t>(n)]) <= nBelow) ++n;
        return n;
    };
    found.nDark = level(nPixels / 20);
    found.nBright = level(nPixels - nPixels / 20);
    found.fChroma /= static_cast<double>(nPixels);
    found.fDetail /= static_cast<double>(nPixels);
    return found;
}

// Mean greys of an eight by eight raster.
std::array<double, 64> Raster(const CxImage& image) {
    const CConstPixelView view = image.Pixels().View();
    std::array<double, 64> sums{};
    std::array<double, 64> counts{};
    for (int y = 0; y < view.nHeight; ++y) {
        for (int x = 0; x < view.nWidth; ++x) {
            const auto n = static_cast<std::size_t>(y * 8 / view.nHeight) * 8 +
                           static_cast<std::size_t>(x * 8 / view.nWidth);
            sums[n] += Grey(view.Row(y) + static_cast<std::ptrdiff_t>(x) * 3);
            ++counts[n];
        }
    }
    for (std::size_t n = 0; n < sums.size(); ++n) sums[n] /= counts[n];
    return sums;
}

TEST(Samples, AreOpenedInTheSizesTold) {
    std::uintmax_t nBytes = 0;
    int nUpright = 0;
    int nLying = 0;
    for (const CSample& sample : kSamples) {
        SCOPED_TRACE(sample.pszName);
        const CxImage image(PathOf(sample).string(), ImageType::kJpeg);
        ASSERT_TRUE(image.IsValid());
        EXPECT_EQ(image.GetSize(), (CSize{sample.nWidth, sample.nHeight}));
        EXPECT_EQ(image.GetBpp(), 24);
        ++(sample.nHeight > sample.nWidth ? nUpright : nLying);
        nBytes += std::filesystem::file_size(PathOf(sample));
    }
    EXPECT_GE(nUpright, 2);
    EXPECT_GE(nLying, 2);
    EXPECT_LT(nBytes, kMostBytes);
}

TEST(Samples, HaveTheRangeOfPhotographs) {
    for (const CSample& sample : kSamples) {
        SCOPED_TRACE(sample.pszName);
        const CxImage image(PathOf(sample).string(), ImageType::kJpeg);
        ASSERT_TRUE(image.IsValid());
        const CFindings found = Look(image);
        EXPECT_LT(found.nDark, 90);
        EXPECT_GT(found.nBright, 110);
        EXPECT_GT(found.nBright - found.nDark, 90);
        EXPECT_GT(found.fChroma, 18);
        // A flat or blurred picture stays below, noise goes beyond.
        EXPECT_GT(found.fDetail, 0.8);
        EXPECT_LT(found.fDetail, 14);
    }
}

TEST(Samples, AreSixDifferentPictures) {
    std::vector<std::array<double, 64>> rasters;
    for (const CSample& sample : kSamples) {
        const CxImage image(PathOf(sample).string(), ImageType::kJpeg);
        ASSERT_TRUE(image.IsValid()) << sample.pszName;
        rasters.push_back(Raster(image));
    }
    for (std::size_t i = 0; i < rasters.size(); ++i) {
        for (std::size_t j = i + 1; j < rasters.size(); ++j) {
            double fDistance = 0;
            for (std::size_t n = 0; n < 64; ++n) fDistance += std::fabs(rasters[i][n] - rasters[j][n]) / 64;
            EXPECT_GT(fDistance, 25) << kSamples[i].pszName << " and " << kSamples[j].pszName;
        }
    }
}

}  // namespace
