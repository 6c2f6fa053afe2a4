#include "image/MagickCodec.h"

#include <Magick++.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>

#include "image/AtomicFile.h"

namespace {

struct CFormat {
    ImageType type;
    const char* szReader;  // the coder's name; null: cannot be read
    const char* szWriter;  // null: cannot be written
    const char* szWriterWithAlpha;
};

constexpr std::array<CFormat, 14> kFormats = {{
    {ImageType::kBmp, "BMP", "BMP3", "BMP3"},
    {ImageType::kGif, "GIF", "GIF", "GIF"},
    {ImageType::kPng, "PNG", "PNG24", "PNG32"},
    {ImageType::kIco, "ICO", "ICO", "ICO"},
    {ImageType::kTiff, "TIFF", "TIFF", "TIFF"},
    {ImageType::kTga, "TGA", "TGA", "TGA"},
    {ImageType::kPcx, "PCX", "PCX", "PCX"},
    {ImageType::kWbmp, "WBMP", "WBMP", "WBMP"},
    {ImageType::kWmf, "WMF", nullptr, nullptr},  // the enhanced form of it has no decoder
    {ImageType::kJp2, "JP2", "JP2", "JP2"},
    {ImageType::kJpc, "JPC", "J2K", "J2K"},
    {ImageType::kPgx, "PGX", "PGX", "PGX"},
    {ImageType::kPnm, "PNM", "PNM", "PNM"},
    {ImageType::kRas, "RAS", "RAS", "RAS"},
}};

const CFormat* FindFormat(ImageType type) {
    for (const CFormat& format : kFormats) {
        if (format.type == type) return &format;
    }
    return nullptr;
}

// Sets the library up at the first use. Its own pixels take 8 bytes each; the system's policy may allow less
// memory than is asked for here. What then does not fit goes through a temporary file by plain reads and
// writes, which fail cleanly on a full disk; mapping that file would not.
void PrepareMagick() {
    static const bool bPrepared = [] {
        constexpr std::uint64_t kGigabyte = std::uint64_t{1} << 30;
        constexpr std::uint64_t kLongestSide = 65500;
        Magick::InitializeMagick(nullptr);
        Magick::ResourceLimits::memory(std::min<std::uint64_t>(2 * kGigabyte, AvailableMemory() / 2));
        Magick::ResourceLimits::map(0);
        Magick::ResourceLimits::disk(2 * kGigabyte);
        Magick::ResourceLimits::width(kLongestSide);
        Magick::ResourceLimits::height(kLongestSide);
        return true;
    }();
    static_cast<void>(bPrepared);
}

// The depth that a file of these two types writes in its header; 0 for others. The file has been decoded.
int DepthInHeader(std::span<const std::uint8_t> file, ImageType type) {
    constexpr std::size_t kPngDepth = 24;
    constexpr std::size_t kBmpDepth = 28;
    if (file.size() <= kBmpDepth) return 0;
    if (type == ImageType::kBmp) return file[kBmpDepth];
    const bool bOneSample = type == ImageType::kPng && (file[kPngDepth + 1] == 0 || file[kPngDepth + 1] == 3);
    return bOneSample ? std::min<int>(file[kPngDepth], 8) : 0;
}

int OwnDepth(std::span<const std::uint8_t> file, ImageType type, const Magick::Image& image) {
    int nDepth = DepthInHeader(file, type);
    if (nDepth == 0 && image.classType() == Magick::PseudoClass) {
        const std::size_t nColors = image.colorMapSize();
        nDepth = nColors <= 2 ? 1 : nColors <= 16 ? 4 : 8;
    }
    if (nDepth == 0) nDepth = image.colorSpace() == Magick::GRAYColorspace ? 8 : 24;
    return nDepth <= 1 ? 1 : nDepth <= 4 ? 4 : nDepth <= 8 ? 8 : 24;
}

std::optional<CMagickPicture> TakePixels(Magick::Image& image, int nBpp) {
    CMagickPicture picture;
    picture.nBpp = nBpp;
    const std::size_t nWidth = image.columns();
    const std::size_t nHeight = image.rows();
    if (nWidth > INT32_MAX || nHeight > INT32_MAX) return std::nullopt;
    if (!picture.pixels.CreateRaw(static_cast<int>(nWidth), static_cast<int>(nHeight))) return std::nullopt;

    // Ink, Lab and linear light become what a screen shows.
    const Magick::ColorspaceType space = image.colorSpace();
    if (space != Magick::sRGBColorspace && space != Magick::GRAYColorspace)
        image.colorSpace(Magick::sRGBColorspace);
    image.write(0, 0, nWidth, nHeight, "RGB", Magick::CharPixel, picture.pixels.MutableBytes().data());
    if (image.matte()) {
        if (!picture.alpha.Allocate(nWidth * nHeight)) return std::nullopt;
        image.write(0, 0, nWidth, nHeight, "A", Magick::CharPixel, picture.alpha.MutableData());
    }
    return picture;
}

// Some coders warn about what they could read after all, some about a file that is cut. A warning that stands
// at the end of a file is a failure like an error; the others are not.
void SetUpReading(Magick::Image& image, const CFormat& format) {
    image.quiet(true);
    image.magick(format.szReader);
    image.subImage(0);
    image.subRange(1);
}

std::optional<CMagickPicture> Decode(std::span<const std::uint8_t> file, const CFormat& format) {
    Magick::Image image;
    SetUpReading(image, format);
    image.read(Magick::Blob(file.data(), file.size()));
    return TakePixels(image, OwnDepth(file, format.type, image));
}

// Of a file whose pixels have not been decoded; then the library does not say of two formats what they are.
int DepthOfHead(std::span<const std::uint8_t> file, ImageType type, const Magick::Image& image) {
    if (type == ImageType::kWbmp) return 1;
    return type == ImageType::kPgx ? 8 : OwnDepth(file, type, image);
}

CImageHead ReadHead(std::span<const std::uint8_t> file, const CFormat& format) {
    // The library loses some memory whenever it looks at the head alone of this one, whose pixels stand bare.
    if (format.type == ImageType::kPnm) {
        const std::optional<CMagickPicture> picture = Decode(file, format);
        if (!picture) return {};
        return {{picture->pixels.Width(), picture->pixels.Height()}, picture->nBpp};
    }
    Magick::Image image;
    SetUpReading(image, format);
    image.ping(Magick::Blob(file.data(), file.size()));
    if (image.columns() > INT32_MAX || image.rows() > INT32_MAX) return {};
    return {{static_cast<int>(image.columns()), static_cast<int>(image.rows())},
            DepthOfHead(file, format.type, image)};
}

// R, G, B, A in turn, as the library takes them.
bool Interleave(const CMagickSource& source, CSharedBytes& bytes) {
    const std::span<const std::uint8_t> rgb = source.pixels.Bytes();
    const std::size_t nPixels = rgb.size() / 3;
    if (!bytes.Allocate(4 * nPixels)) return false;
    const std::uint8_t* const pAlpha = source.alpha.Data();
    std::uint8_t* const pOut = bytes.MutableData();
    for (std::size_t i = 0; i < nPixels; ++i) {
        std::memcpy(pOut + 4 * i, rgb.data() + 3 * i, 3);
        pOut[4 * i + 3] = pAlpha[i];
    }
    return true;
}

bool HasAlphaChannel(ImageType type) {
    return type == ImageType::kPng || type == ImageType::kTiff || type == ImageType::kTga ||
           type == ImageType::kIco || type == ImageType::kGif || type == ImageType::kJp2;
}

// The library makes a picture of given pixels with its own call for that, which ends the program when there
// is no room for them; a blank picture that the pixels are put into fails as an exception.
bool Fill(Magick::Image& image, const CMagickSource& source, bool bAlpha) {
    const auto nWidth = static_cast<std::size_t>(source.pixels.Width());
    const auto nHeight = static_cast<std::size_t>(source.pixels.Height());
    CSharedBytes bytes;
    if (bAlpha && !Interleave(source, bytes)) return false;
    image.size(Magick::Geometry(nWidth, nHeight));
    image.read("xc:black");
    image.matte(bAlpha);
    image.modifyImage();
    return MagickCore::ImportImagePixels(image.image(), 0, 0, nWidth, nHeight, bAlpha ? "RGBA" : "RGB",
                                         MagickCore::CharPixel,
                                         bAlpha ? bytes.Data() : source.pixels.Bytes().data()) != 0;
}

bool Encode(const CMagickSource& source, const CFormat& format, Magick::Blob& blob) {
    const bool bAlpha = !source.alpha.IsEmpty() && HasAlphaChannel(format.type);
    Magick::Image image;
    if (!Fill(image, source, bAlpha)) return false;
    image.depth(8);
    image.resolutionUnits(Magick::PixelsPerInchResolution);
    image.density(
        Magick::Geometry(static_cast<std::size_t>(source.nXDpi), static_cast<std::size_t>(source.nYDpi)));
    if (format.type == ImageType::kBmp || format.type == ImageType::kTiff) {
        image.type(bAlpha ? Magick::TrueColorMatteType : Magick::TrueColorType);
    }
    // The time of writing would make two files of one picture differ.
    image.defineValue("png", "exclude-chunks", "date,time");
    image.magick(bAlpha ? format.szWriterWithAlpha : format.szWriter);
    image.write(&blob);
    return blob.length() > 0;
}

}  // namespace

std::optional<CMagickPicture> DecodeWithMagick(std::span<const std::uint8_t> file, ImageType type) {
    const CFormat* const pFormat = FindFormat(type);
    if (pFormat == nullptr || pFormat->szReader == nullptr) return std::nullopt;
    try {
        PrepareMagick();
        return Decode(file, *pFormat);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

CImageHead ReadHeadWithMagick(std::span<const std::uint8_t> file, ImageType type) {
    const CFormat* const pFormat = FindFormat(type);
    if (pFormat == nullptr || pFormat->szReader == nullptr) return {};
    try {
        PrepareMagick();
        return ReadHead(file, *pFormat);
    } catch (const std::exception&) {
        return {};
    }
}

bool EncodeWithMagick(const CMagickSource& source, ImageType type, CAtomicFile& file) {
    const CFormat* const pFormat = FindFormat(type);
    if (pFormat == nullptr || pFormat->szWriter == nullptr) return false;
    try {
        PrepareMagick();
        Magick::Blob blob;
        if (!Encode(source, *pFormat, blob)) return false;
        return file.Write({static_cast<const std::uint8_t*>(blob.data()), blob.length()});
    } catch (const std::exception&) {
        return false;
    }
}
