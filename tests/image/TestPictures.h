#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "image/Image.h"
#include "image/ImageHead.h"
#include "support/TempFolder.h"

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

inline Bytes BytesOf(const std::string& strPath) {
    const std::string strBytes = ReadBytes(strPath);
    return {strBytes.begin(), strBytes.end()};
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

class CFolderTest : public testing::Test {
  protected:
    std::string Path(const std::string& strName) const { return m_folder.Path(strName); }
    std::set<std::string> Listing() const { return m_folder.Names(); }

  private:
    CTempFolder m_folder;
};
