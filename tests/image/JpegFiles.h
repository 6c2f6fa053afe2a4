#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include <jpeglib.h>

#include "image/TestPictures.h"

// JPEG files of the kinds that the program reads and never writes.

struct CJpegKind {
    J_COLOR_SPACE inputSpace = JCS_RGB;  // what the samples are
    J_COLOR_SPACE fileSpace = JCS_YCbCr;
    bool bProgressive = false;
    bool bAdobeMark = true;  // for ink only
    int nQuality = 100;
};

// nWidth * nHeight pixels of as many samples as inputSpace has, top row first.
inline Bytes MakeJpeg(const Bytes& samples, int nWidth, int nHeight, const CJpegKind& kind) {
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* pFile = nullptr;
    unsigned long nSize = 0;
    jpeg_mem_dest(&info, &pFile, &nSize);
    info.image_width = static_cast<JDIMENSION>(nWidth);
    info.image_height = static_cast<JDIMENSION>(nHeight);
    info.input_components = static_cast<int>(samples.size()) / (nWidth * nHeight);
    info.in_color_space = kind.inputSpace;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, kind.fileSpace);
    info.write_Adobe_marker = kind.bAdobeMark && info.input_components == 4 ? TRUE : FALSE;
    jpeg_set_quality(&info, kind.nQuality, TRUE);
    if (kind.bProgressive) jpeg_simple_progression(&info);
    jpeg_start_compress(&info, TRUE);
    const std::size_t nStride = samples.size() / static_cast<std::size_t>(nHeight);
    while (info.next_scanline < info.image_height) {
        auto* pRow = const_cast<JSAMPROW>(samples.data() + nStride * info.next_scanline);
        jpeg_write_scanlines(&info, &pRow, 1);
    }
    jpeg_finish_compress(&info);
    Bytes file(pFile, pFile + nSize);
    jpeg_destroy_compress(&info);
    std::free(pFile);  // NOLINT(cppcoreguidelines-*): the library took it
    return file;
}

inline Bytes MakeJpeg(const CxImage& image, const CJpegKind& kind = {}) {
    const auto bytes = image.Pixels().Bytes();
    return MakeJpeg(Bytes(bytes.begin(), bytes.end()), image.GetWidth(), image.GetHeight(), kind);
}

// Puts an APP1 segment directly behind the start mark.
inline Bytes WithSegment(const Bytes& file, const Bytes& segment) {
    const std::size_t nLength = segment.size() + 2;
    Bytes result = {
        0xFF, 0xD8, 0xFF, 0xE1, static_cast<std::uint8_t>(nLength >> 8), static_cast<std::uint8_t>(nLength)};
    std::ranges::copy(segment, std::back_inserter(result));
    std::ranges::copy(std::span(file).subspan(2), std::back_inserter(result));
    return result;
}

inline Bytes ExifSegment(std::uint8_t nOrientation, bool bBigEndian) {
    if (bBigEndian) {
        return {'E', 'x', 'i', 'f', 0, 0, 'M', 'M', 0, 42,
                0,   0,   0,   8,   0, 2,  // two entries
                1,   0,   0,   3,   0, 0, 0,   1,   0, 1,
                0,   0,  // a width
                1,   18,  0,   3,   0, 0, 0,   1,   0, nOrientation,
                0,   0,   0,   0,   0, 0};  // the mark
    }
    return {'E', 'x', 'i', 'f', 0, 0, 'I', 'I', 42,           0, 8, 0, 0, 0, 1, 0,
            18,  1,   3,   0,   1, 0, 0,   0,   nOrientation, 0, 0, 0, 0, 0, 0, 0};
}

// Writes another size into the frame header.
inline Bytes WithClaimedSize(Bytes file, int nWidth, int nHeight) {
    for (std::size_t i = 2; i + 8 < file.size(); ++i) {
        if (file[i] != 0xFF || (file[i + 1] != 0xC0 && file[i + 1] != 0xC2)) continue;
        file[i + 5] = static_cast<std::uint8_t>(nHeight >> 8);
        file[i + 6] = static_cast<std::uint8_t>(nHeight);
        file[i + 7] = static_cast<std::uint8_t>(nWidth >> 8);
        file[i + 8] = static_cast<std::uint8_t>(nWidth);
        return file;
    }
    return {};
}
