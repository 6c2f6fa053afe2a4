#include "image/JpegTurbo.h"

#include <jerror.h>

#include <algorithm>
#include <cstring>

namespace {

// ---- trouble

[[noreturn]] void OnError(j_common_ptr pInfo) {
    auto* const pTrouble = reinterpret_cast<CJpegTrouble*>(pInfo->err);
    std::longjmp(pTrouble->jump, 1);
}

// A file that ends too early is an error, and at once: the library would go on and make up the rest. Other
// damage is passed over, as viewers do.
void OnMessage(j_common_ptr pInfo, int nLevel) {
    if (nLevel < 0 && pInfo->err->msg_code == JWRN_JPEG_EOF) OnError(pInfo);
}

void PrepareTrouble(CJpegTrouble& trouble) {
    jpeg_std_error(&trouble.manager);
    trouble.manager.error_exit = OnError;
    trouble.manager.emit_message = OnMessage;
}

// A file of a few kilobytes can hold thousands of empty scans of a huge picture.
void OnProgress(j_common_ptr pInfo) {
    if (!pInfo->is_decompressor) return;
    auto* const pReader = reinterpret_cast<CJpegReader*>(pInfo);
    if (pReader->info.input_scan_number > pReader->nMaxScans) OnError(pInfo);
}

// Real files have around ten scans. The larger the picture, the nearer to that the limit stands.
int MaxScans(const jpeg_decompress_struct& info) {
    const auto nPixels = static_cast<std::uint64_t>(info.image_width) * info.image_height;
    return static_cast<int>(std::clamp<std::uint64_t>((std::uint64_t{1} << 34) / (nPixels + 1), 24, 500));
}

// ---- reading

constexpr unsigned kMarkerBytes = 0xFFFF;

// The ink values are light where 255 means no ink, which is how the only common writer of such files stores
// them.
void InkToRgb(const std::uint8_t* pInk, std::uint8_t* pRgb, unsigned nWidth, bool bInverted) {
    const unsigned nFlip = bInverted ? 0 : 255;
    for (unsigned x = 0; x < nWidth; ++x, pInk += 4, pRgb += 3) {
        const unsigned k = pInk[3] ^ nFlip;
        for (int c = 0; c < 3; ++c) pRgb[c] = static_cast<std::uint8_t>(((pInk[c] ^ nFlip) * k + 127) / 255);
    }
}

void ReadRgbRows(jpeg_decompress_struct& info, std::uint8_t* pBits) {
    constexpr unsigned kRows = 16;
    const std::size_t nStride = std::size_t{3} * info.output_width;
    JSAMPROW rows[kRows];
    while (info.output_scanline < info.output_height) {
        const unsigned nRows = std::min(kRows, info.output_height - info.output_scanline);
        for (unsigned i = 0; i < nRows; ++i) rows[i] = pBits + (info.output_scanline + i) * nStride;
        jpeg_read_scanlines(&info, rows, nRows);
    }
}

void ReadInkRows(jpeg_decompress_struct& info, std::uint8_t* pBits) {
    const std::size_t nStride = std::size_t{3} * info.output_width;
    const bool bInverted = info.saw_Adobe_marker != 0;
    JSAMPARRAY pInk =
        info.mem->alloc_sarray(reinterpret_cast<j_common_ptr>(&info), JPOOL_IMAGE, info.output_width * 4, 1);
    while (info.output_scanline < info.output_height) {
        std::uint8_t* const pRow = pBits + info.output_scanline * nStride;
        jpeg_read_scanlines(&info, pInk, 1);
        InkToRgb(pInk[0], pRow, info.output_width, bInverted);
    }
}

bool IsInk(const jpeg_decompress_struct& info) {
    return info.jpeg_color_space == JCS_CMYK || info.jpeg_color_space == JCS_YCCK;
}

// ---- writing

// Between the library and a sink. The library's struct stands first, so that the pointer that it hands back
// is this.
struct CDestination {
    jpeg_destination_mgr manager;
    CJpegSink sink;
    std::uint8_t buffer[std::size_t{64} << 10];
};

void Flush(j_compress_ptr pInfo, std::size_t nBytes) {
    auto* const pOut = reinterpret_cast<CDestination*>(pInfo->dest);
    if (nBytes > 0 && !pOut->sink.pCall(pOut->sink.pContext, pOut->buffer, nBytes)) {
        OnError(reinterpret_cast<j_common_ptr>(pInfo));
    }
    pOut->manager.next_output_byte = pOut->buffer;
    pOut->manager.free_in_buffer = sizeof(pOut->buffer);
}

void OnBegin(j_compress_ptr pInfo) {
    Flush(pInfo, 0);
}

boolean OnFull(j_compress_ptr pInfo) {
    Flush(pInfo, sizeof(CDestination::buffer));
    return TRUE;
}

void OnEnd(j_compress_ptr pInfo) {
    Flush(pInfo, sizeof(CDestination::buffer) - pInfo->dest->free_in_buffer);
}

void SetUpPage(jpeg_compress_struct& info, const CJpegPage& page) {
    info.image_width = static_cast<JDIMENSION>(page.nWidth);
    info.image_height = static_cast<JDIMENSION>(page.nHeight);
    info.input_components = 3;
    info.in_color_space = JCS_RGB;
    jpeg_set_defaults(&info);  // YCbCr, 4:2:0, baseline, with the JFIF segment
    jpeg_set_quality(&info, page.nQuality, TRUE);
    info.density_unit = 1;  // dots per inch
    info.X_density = static_cast<UINT16>(page.nXDpi);
    info.Y_density = static_cast<UINT16>(page.nYDpi);
}

void WriteRows(jpeg_compress_struct& info, const CJpegPage& page) {
    constexpr unsigned kRows = 16;
    const std::size_t nStride = std::size_t{3} * info.image_width;
    JSAMPROW rows[kRows];
    while (info.next_scanline < info.image_height) {
        const unsigned nRows = std::min(kRows, info.image_height - info.next_scanline);
        // The library's type is not const, but it only reads.
        for (unsigned i = 0; i < nRows; ++i) {
            rows[i] = const_cast<JSAMPROW>(page.pBits + (info.next_scanline + i) * nStride);
        }
        jpeg_write_scanlines(&info, rows, nRows);
    }
}

}  // namespace

bool JpegReaderBegin(CJpegReader& reader, const std::uint8_t* pFile, std::size_t nSize) {
    std::memset(&reader, 0, sizeof(reader));
    PrepareTrouble(reader.trouble);
    reader.info.err = &reader.trouble.manager;
    if (setjmp(reader.trouble.jump) != 0) return false;
    jpeg_create_decompress(&reader.info);
    jpeg_mem_src(&reader.info, pFile, nSize);
    jpeg_save_markers(&reader.info, JPEG_APP0 + 1, kMarkerBytes);
    if (jpeg_read_header(&reader.info, TRUE) != JPEG_HEADER_OK) return false;

    reader.info.out_color_space = IsInk(reader.info) ? JCS_CMYK : JCS_RGB;
    reader.progress.progress_monitor = OnProgress;
    reader.info.progress = &reader.progress;
    reader.nMaxScans = MaxScans(reader.info);
    return JpegReaderScale(reader, 8);
}

bool JpegReaderScale(CJpegReader& reader, int nScale) {
    if (setjmp(reader.trouble.jump) != 0) return false;
    reader.info.scale_num = static_cast<unsigned>(nScale);
    reader.info.scale_denom = 8;
    jpeg_calc_output_dimensions(&reader.info);
    return true;
}

bool JpegReadPixels(CJpegReader& reader, std::uint8_t* pBits) {
    if (setjmp(reader.trouble.jump) != 0) return false;
    jpeg_start_decompress(&reader.info);
    if (IsInk(reader.info)) {
        ReadInkRows(reader.info, pBits);
    } else {
        ReadRgbRows(reader.info, pBits);
    }
    // Reads on to the end mark, and so finds a file that lacks only its last bytes.
    jpeg_finish_decompress(&reader.info);
    return true;
}

void JpegReaderEnd(CJpegReader& reader) {
    jpeg_destroy_decompress(&reader.info);
}

bool JpegWrite(const CJpegPage& page, const CJpegSink& sink) {
    CJpegTrouble trouble{};
    jpeg_compress_struct info{};
    CDestination destination{};
    PrepareTrouble(trouble);
    info.err = &trouble.manager;
    if (setjmp(trouble.jump) != 0) {
        jpeg_destroy_compress(&info);
        return false;
    }
    jpeg_create_compress(&info);
    destination.manager = {nullptr, 0, OnBegin, OnFull, OnEnd};
    destination.sink = sink;
    info.dest = &destination.manager;
    SetUpPage(info, page);
    jpeg_start_compress(&info, TRUE);
    WriteRows(info, page);
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    return true;
}
