#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "image/Image.h"
#include "image/ImageHead.h"

// What the tests of the picture container share: pictures, files, and the seed of a random run.

using Bytes = std::vector<std::uint8_t>;

// A new seed for each run; set FOTARIUM_SEED to repeat one.
inline unsigned TestSeed() {
    const char* const szSeed = std::getenv("FOTARIUM_SEED");
    return szSeed != nullptr ? static_cast<unsigned>(std::strtoul(szSeed, nullptr, 10))
                             : std::random_device{}();
}

inline CxImage RandomPicture(std::mt19937& random, int nWidth, int nHeight) {
    CxImage image(nWidth, nHeight);
    for (std::uint8_t& n : image.MutableBytes()) n = static_cast<std::uint8_t>(random());
    return image;
}

// Slow changes of colour, so that a lossy format changes little, and no symmetry, so that a turn is seen.
inline CxImage SmoothPicture(int nWidth, int nHeight) {
    CxImage image(nWidth, nHeight);
    const CPixelView view = image.MutableView();
    for (int y = 0; y < nHeight; ++y) {
        for (int x = 0; x < nWidth; ++x) {
            view.Set(x, y,
                     {LimitToByte(40 + 180 * x / nWidth), LimitToByte(30 + 200 * y / nHeight),
                      LimitToByte(220 - 90 * x / nWidth - 90 * y / nHeight)});
        }
    }
    return image;
}

inline int LargestDifference(std::span<const std::uint8_t> a, std::span<const std::uint8_t> b) {
    if (a.size() != b.size()) return 256;
    int nLargest = 0;
    for (std::size_t i = 0; i < a.size(); ++i) nLargest = std::max(nLargest, std::abs(a[i] - b[i]));
    return nLargest;
}

inline int LargestDifference(const CxImage& a, const CxImage& b) {
    return a.GetSize() == b.GetSize() ? LargestDifference(a.Pixels().Bytes(), b.Pixels().Bytes()) : 256;
}

inline Bytes ReadBytes(const std::string& strPath) {
    std::ifstream in(strPath, std::ios::binary);
    return Bytes((std::istreambuf_iterator<char>(in)), {});
}

inline void WriteBytes(const std::string& strPath, std::span<const std::uint8_t> bytes) {
    std::ofstream out(strPath, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

// Loads a picture. Its file's head must say the same of it.
inline CxImage LoadPicture(const std::string& strPath, ImageType type) {
    CxImage image(strPath, type);
    if (image.IsValid()) {
        EXPECT_EQ(ReadImageHead(strPath, type), (CImageHead{image.GetSize(), image.GetBpp()})) << strPath;
    }
    return image;
}

inline void WriteText(const std::string& strPath, std::string_view strText) {
    WriteBytes(strPath, {reinterpret_cast<const std::uint8_t*>(strText.data()), strText.size()});
}

// A test with a folder of its own, which is gone behind it.
class CFolderTest : public testing::Test {
  protected:
    CFolderTest() { std::filesystem::create_directories(m_folder); }
    ~CFolderTest() override {
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }

    std::string Path(const std::string& strName) const { return (m_folder / strName).string(); }
    std::vector<std::string> Listing() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

  private:
    static std::filesystem::path MakeName() {
        const testing::TestInfo* const pInfo = testing::UnitTest::GetInstance()->current_test_info();
        return std::filesystem::temp_directory_path() /
               ("fotarium-" + std::string(pInfo->name()) + "-" + std::to_string(getpid()));
    }
    std::filesystem::path m_folder = MakeName();
};
