#include "image/JpegCodec.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "image/AtomicFile.h"
#include "image/Exif.h"
#include "image/JpegTurbo.h"
#include "image/Turn.h"

namespace {

// Releases the library's memory on every way out.
class CReader {
  public:
    CReader() = default;
    CReader(const CReader&) = delete;
    CReader& operator=(const CReader&) = delete;
    ~CReader() { JpegReaderEnd(m_reader); }

    bool Begin(std::span<const std::uint8_t> file) {
        return JpegReaderBegin(m_reader, file.data(), file.size());
    }
    CJpegReader& Get() { return m_reader; }
    const jpeg_decompress_struct& Info() const { return m_reader.info; }
    CSize OutputSize() const {
        return {static_cast<int>(m_reader.info.output_width), static_cast<int>(m_reader.info.output_height)};
    }

  private:
    CJpegReader m_reader{};
};

int Orientation(const jpeg_decompress_struct& info) {
    for (const jpeg_marker_struct* p = info.marker_list; p != nullptr; p = p->next) {
        const int nOrientation = ReadExifOrientation({p->data, p->data_length});
        if (nOrientation != 1) return nOrientation;
    }
    return 1;
}

bool LiesOnItsSide(int nOrientation) {
    return nOrientation >= 5;
}

CSize Upright(CSize size, int nOrientation) {
    return LiesOnItsSide(nOrientation) ? CSize{size.cy, size.cx} : size;
}

// Of a reader that has begun, before a scale is chosen.
CImageHead HeadOf(const CReader& reader, int nOrientation) {
    return {Upright(reader.OutputSize(), nOrientation),
            reader.Info().jpeg_color_space == JCS_GRAYSCALE ? 8 : 24};
}

// True if the file ends behind its picture. Within the scans no byte of 255 stands before this one.
bool HasEnd(const CReader& reader) {
    constexpr std::array<std::uint8_t, 2> kEnd = {0xFF, 0xD9};
    const jpeg_source_mgr& source = *reader.Info().src;
    const std::span rest(source.next_input_byte, source.bytes_in_buffer);
    return std::find_end(rest.begin(), rest.end(), kEnd.begin(), kEnd.end()) != rest.end();
}

// A progressive file is decoded from the coefficients of the whole picture, two bytes each.
std::uint64_t CoefficientBytes(const jpeg_decompress_struct& info) {
    if (!jpeg_has_multiple_scans(const_cast<j_decompress_ptr>(&info))) return 0;
    std::uint64_t nBlocks = 0;
    for (int i = 0; i < info.num_components; ++i) {
        const jpeg_component_info& component = info.comp_info[i];
        nBlocks += (std::uint64_t{component.width_in_blocks} + 1) * (component.height_in_blocks + 1);
    }
    return nBlocks * 64 * 2;
}

bool FitsMemory(const CReader& reader) {
    const CSize size = reader.OutputSize();
    if (!CPixels::Fits(size.cx, size.cy)) return false;
    const std::uint64_t nCoefficients = CoefficientBytes(reader.Info());
    constexpr std::uint64_t kWorthAsking = std::uint64_t{256} << 20;
    if (nCoefficients < kWorthAsking) return true;
    const std::uint64_t nPixels =
        std::uint64_t{3} * static_cast<std::uint64_t>(size.cx) * static_cast<std::uint64_t>(size.cy);
    return nCoefficients + nPixels <= AvailableMemory();
}

bool ChooseScale(CReader& reader, CSize sizeAtLeast) {
    for (int nScale = 1; nScale < 8; ++nScale) {
        if (!JpegReaderScale(reader.Get(), nScale)) return false;
        const CSize size = reader.OutputSize();
        if (size.cx >= sizeAtLeast.cx && size.cy >= sizeAtLeast.cy) return true;
    }
    return JpegReaderScale(reader.Get(), 8);
}

void FlipUpsideDown(CPixels& pixels) {
    const CPixelView view = pixels.MutableView();
    Rotate180Plane(view.pBits, view.pBits, view.nWidth, view.nHeight, 3);
    MirrorPlane(view.pBits, view.pBits, view.nWidth, view.nHeight, 3);
}

// pixels is unshared.
bool StandUpright(CPixels& pixels, int nOrientation) {
    const CPixelView view = pixels.MutableView();
    if (nOrientation == 2) MirrorPlane(view.pBits, view.pBits, view.nWidth, view.nHeight, 3);
    if (nOrientation == 3) Rotate180Plane(view.pBits, view.pBits, view.nWidth, view.nHeight, 3);
    if (nOrientation == 4) FlipUpsideDown(pixels);
    if (!LiesOnItsSide(nOrientation)) return true;

    CPixels turned;
    if (!turned.CreateRaw(view.nHeight, view.nWidth)) return false;
    std::uint8_t* const pBits = turned.MutableView().pBits;
    if (nOrientation == 5 || nOrientation == 6) {
        RotateClockwisePlane(view.pBits, pBits, view.nWidth, view.nHeight, 3);
    } else {
        RotateCounterPlane(view.pBits, pBits, view.nWidth, view.nHeight, 3);
    }
    // An exchange of rows and columns is a quarter turn and a swap of left and right.
    const bool bExchanged = nOrientation == 5 || nOrientation == 7;
    if (bExchanged) MirrorPlane(pBits, pBits, turned.Width(), turned.Height(), 3);
    pixels = std::move(turned);
    return true;
}

bool Encode(const CPixels& pixels, const CJpegSettings& settings, const CJpegSink& sink) {
    if (pixels.IsEmpty()) return false;
    const CJpegPage page{pixels.Bytes().data(), pixels.Width(), pixels.Height(),
                         settings.nQuality,     settings.nXDpi, settings.nYDpi};
    return JpegWrite(page, sink);
}

}  // namespace

std::optional<CJpegPicture> DecodeJpeg(std::span<const std::uint8_t> file, CSize sizeAtLeast) {
    CReader reader;
    if (!reader.Begin(file)) return std::nullopt;
    const int nOrientation = Orientation(reader.Info());

    CJpegPicture picture;
    const CImageHead head = HeadOf(reader, nOrientation);
    picture.sizeFull = head.size;
    picture.nBpp = head.nBpp;
    // What is too large to be opened has no smaller picture either.
    if (!CPixels::Fits(picture.sizeFull.cx, picture.sizeFull.cy)) return std::nullopt;
    const bool bScaled = sizeAtLeast.cx > 0 && sizeAtLeast.cy > 0;
    if (bScaled && !ChooseScale(reader, Upright(sizeAtLeast, nOrientation))) return std::nullopt;

    const CSize size = reader.OutputSize();
    if (!FitsMemory(reader) || !picture.pixels.CreateRaw(size.cx, size.cy)) return std::nullopt;
    if (!JpegReadPixels(reader.Get(), picture.pixels.MutableView().pBits)) return std::nullopt;
    if (!StandUpright(picture.pixels, nOrientation)) return std::nullopt;
    return picture;
}

CImageHead ReadJpegHead(std::span<const std::uint8_t> file) {
    CReader reader;
    if (!reader.Begin(file) || !HasEnd(reader)) return {};
    return HeadOf(reader, Orientation(reader.Info()));
}

bool EncodeJpeg(const CPixels& pixels, const CJpegSettings& settings, CAtomicFile& file) {
    const auto pWrite = [](void* pContext, const std::uint8_t* pBytes, std::size_t nSize) {
        return static_cast<CAtomicFile*>(pContext)->Write({pBytes, nSize});
    };
    return Encode(pixels, settings, {pWrite, &file});
}

bool EncodeJpeg(const CPixels& pixels, const CJpegSettings& settings, std::vector<std::uint8_t>& bytes) {
    const auto pWrite = [](void* pContext, const std::uint8_t* pBytes, std::size_t nSize) {
        auto& all = *static_cast<std::vector<std::uint8_t>*>(pContext);
        try {
            all.insert(all.end(), pBytes, pBytes + nSize);
        } catch (const std::bad_alloc&) {
            return false;
        }
        return true;
    };
    return Encode(pixels, settings, {pWrite, &bytes});
}
