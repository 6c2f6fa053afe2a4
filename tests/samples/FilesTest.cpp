// The committed photographs themselves: there, whole, and of the sizes told.

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

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

}  // namespace
