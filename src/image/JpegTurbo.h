#pragma once

#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <cstdio>  // jpeglib.h needs it and does not say so

#include <jpeglib.h>

// The JPEG library behind calls that return. It reports errors by a jump out of the middle of its work; every
// such jump lands in the function of this header that called it, and no C++ object with a destructor lives on
// the way. Plain structs for that reason; JpegCodec.h is the door for everybody else.

struct CJpegTrouble {
    jpeg_error_mgr manager;
    std::jmp_buf jump;
};

struct CJpegReader {
    jpeg_decompress_struct info;
    CJpegTrouble trouble;
    jpeg_progress_mgr progress;
    int nMaxScans;
};

// Takes nSize bytes of the file as they are made. Returns false to stop. Must not throw.
using JpegSinkCall = bool (*)(void* pContext, const std::uint8_t* pBytes, std::size_t nSize);

struct CJpegSink {
    JpegSinkCall pCall;
    void* pContext;
};

struct CJpegPage {
    const std::uint8_t* pBits;  // R, G, B, top row first, no gap
    int nWidth;
    int nHeight;
    int nQuality;
    int nXDpi;
    int nYDpi;
};

// Reads up to the first scan and keeps the APP1 segments in info.marker_list. The file's bytes must stay
// until JpegReaderEnd, which belongs behind this whether it worked or not. False if it is no JPEG.
[[nodiscard]] bool JpegReaderBegin(CJpegReader& reader, const std::uint8_t* pFile, std::size_t nSize);

// The size that JpegReadPixels gives, nScale eighths of the whole; call before it. False if it is out of
// bounds.
[[nodiscard]] bool JpegReaderScale(CJpegReader& reader, int nScale);

// Decodes everything into info.output_width * info.output_height pixels of three bytes, top row first. False
// if the file is broken or ends before the picture does; what stands in pBits then is of no use.
[[nodiscard]] bool JpegReadPixels(CJpegReader& reader, std::uint8_t* pBits);

void JpegReaderEnd(CJpegReader& reader);

// Encodes a page: baseline, 4:2:0. False if the library refuses it or the sink stops.
[[nodiscard]] bool JpegWrite(const CJpegPage& page, const CJpegSink& sink);
