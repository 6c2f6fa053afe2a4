#include "image/Image.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

#include "image/AtomicFile.h"
#include "image/Dib.h"
#include "image/Equalize.h"
#include "image/FileBytes.h"
#include "image/JpegCodec.h"
#include "image/MagickCodec.h"
#include "image/Resample.h"
#include "image/Turn.h"

namespace {

constexpr int kWrittenBpp = 24;

bool IsBitDepth(int nBits) {
    return nBits == 1 || nBits == 4 || nBits == 8 || nBits == 16 || nBits == 24 || nBits == 32;
}

std::span<const std::uint8_t> AsSpan(const CSharedBytes& bytes) {
    return {bytes.Data(), bytes.Size()};
}

// A plane made from another one through `make(const source bytes, target bytes)`; empty if memory is short.
template <class TMake>
bool RemakeAlpha(const CSharedBytes& alpha, std::size_t nSize, CSharedBytes& result, TMake make) {
    if (alpha.IsEmpty()) return true;
    if (!result.Allocate(nSize)) return false;
    make(alpha.Data(), result.MutableData());
    return true;
}

std::size_t AreaOf(int nWidth, int nHeight) {
    return static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight);
}

}  // namespace

CxImage::CxImage(const std::string& strPath, ImageType type) : m_type(type) {
    if (type == ImageType::kUnknown) return;
    const CSharedBytes file = ReadFileBytes(strPath);
    if (file.IsEmpty()) return;
    if (type == ImageType::kJpeg) {
        std::optional<CJpegPicture> picture = DecodeJpeg(AsSpan(file));
        if (!picture) return;
        m_pixels = std::move(picture->pixels);
        m_nBpp = picture->nBpp;
        return;
    }
    std::optional<CMagickPicture> picture = DecodeWithMagick(AsSpan(file), type);
    if (!picture) return;
    m_pixels = std::move(picture->pixels);
    m_alpha = std::move(picture->alpha);
    m_nBpp = picture->nBpp;
}

CxImage::CxImage(int nWidth, int nHeight, int nBits, ImageType type) {
    if (IsBitDepth(nBits) && m_pixels.Create(nWidth, nHeight)) m_type = type;
}

bool CxImage::Create(int nWidth, int nHeight, int nBits, ImageType type) {
    if (!IsBitDepth(nBits) || !m_pixels.Create(nWidth, nHeight)) return false;
    m_alpha.Clear();
    m_nBpp = kWrittenBpp;
    m_type = type;
    return true;
}

void CxImage::Destroy() {
    *this = CxImage();
}

bool CxImage::CreateFromHBITMAP(CPixels pixels) {
    if (pixels.IsEmpty()) return false;
    m_pixels = std::move(pixels);
    m_alpha.Clear();
    m_nBpp = kWrittenBpp;
    m_type = ImageType::kUnknown;
    return true;
}

bool CxImage::CreateFromHANDLE(std::span<const std::uint8_t> dib) {
    std::optional<CPixels> pixels = ReadDib(dib);
    return pixels && CreateFromHBITMAP(std::move(*pixels));
}

std::vector<std::uint8_t> CxImage::CopyToHandle() const {
    return WriteDib(m_pixels);
}

CColor CxImage::GetPixelColor(int x, int y) const {
    return IsInside(x, y) ? m_pixels.View().Get(x, GetHeight() - 1 - y) : CColor{};
}

void CxImage::SetPixelColor(int x, int y, CColor cr) {
    if (!IsInside(x, y)) return;
    const CPixelView view = MutableView();
    if (view.pBits != nullptr) view.Set(x, GetHeight() - 1 - y, cr);
}

std::span<std::uint8_t> CxImage::MutableBytes() {
    m_nBpp = kWrittenBpp;
    return m_pixels.MutableBytes();
}

CPixelView CxImage::MutableView() {
    m_nBpp = kWrittenBpp;
    return m_pixels.MutableView();
}

bool CxImage::ReplacePixels(CPixels pixels) {
    if (pixels.IsEmpty() || pixels.Width() != GetWidth() || pixels.Height() != GetHeight()) return false;
    m_pixels = std::move(pixels);
    m_nBpp = kWrittenBpp;
    return true;
}

bool CxImage::SetAlpha(std::span<const std::uint8_t> alpha) {
    if (alpha.empty()) {
        m_alpha.Clear();
        return true;
    }
    CSharedBytes bytes;
    if (alpha.size() != AreaOf(GetWidth(), GetHeight()) || !bytes.Allocate(alpha.size())) return false;
    std::memcpy(bytes.MutableData(), alpha.data(), alpha.size());
    m_alpha = std::move(bytes);
    return true;
}

bool CxImage::Resample(int nWidth, int nHeight, int nMode) {
    if (!IsValid() || nMode != 1 || nWidth <= 0 || nHeight <= 0) return false;
    const CSize sizeOld = GetSize();
    const CSize sizeNew{nWidth, nHeight};
    if (sizeNew == sizeOld) return true;

    CPixels pixels;
    CSharedBytes alpha;
    if (!pixels.CreateRaw(nWidth, nHeight)) return false;
    const auto make = [&](const std::uint8_t* pSrc, std::uint8_t* pDst) {
        ResamplePlane(pSrc, sizeOld, pDst, sizeNew, 1);
    };
    if (!RemakeAlpha(m_alpha, AreaOf(nWidth, nHeight), alpha, make)) return false;
    ResamplePlane(m_pixels.Bytes().data(), sizeOld, pixels.MutableView().pBits, sizeNew, 3);
    m_pixels = std::move(pixels);
    m_alpha = std::move(alpha);
    m_nBpp = kWrittenBpp;
    return true;
}

CPixels CxImage::ResampledRows(CSize size, int nTop, int nRows) const {
    CPixels pixels;
    if (!IsValid() || size.cx <= 0 || size.cy <= 0 || !pixels.CreateRaw(size.cx, nRows)) return {};
    ResampleRows(m_pixels.Bytes().data(), GetSize(), pixels.MutableView().pBits, size, 3, nTop, nRows);
    return pixels;
}

bool CxImage::Rotate(double fDegrees) {
    if (!IsValid() || (fDegrees != 90.0 && fDegrees != -90.0)) return false;
    const auto turn = fDegrees > 0 ? RotateClockwisePlane : RotateCounterPlane;
    return TurnInto(turn, {GetHeight(), GetWidth()});
}

bool CxImage::Rotate180() {
    return IsValid() && TurnInto(Rotate180Plane, GetSize());
}

bool CxImage::Mirror() {
    return IsValid() && TurnInto(MirrorPlane, GetSize());
}

bool CxImage::Flip() {
    return IsValid() && TurnInto(FlipPlane, GetSize());
}

bool CxImage::TurnInto(TurnCall turn, CSize sizeNew) {
    CPixels pixels;
    CSharedBytes alpha;
    const CSize sizeOld = GetSize();
    const auto make = [&](const std::uint8_t* pSrc, std::uint8_t* pDst) {
        turn(pSrc, pDst, sizeOld.cx, sizeOld.cy, 1);
    };
    if (!RemakeAlpha(m_alpha, AreaOf(sizeOld.cx, sizeOld.cy), alpha, make)) return false;
    if (!pixels.CreateRaw(sizeNew.cx, sizeNew.cy)) return false;
    turn(m_pixels.Bytes().data(), pixels.MutableView().pBits, sizeOld.cx, sizeOld.cy, 3);
    m_pixels = std::move(pixels);
    m_alpha = std::move(alpha);
    m_nBpp = kWrittenBpp;
    return true;
}

bool CxImage::HistogramEqualize() {
    if (!IsValid() || !m_pixels.Separate()) return false;
    EqualizeHistogram(MutableView());
    return true;
}

bool CxImage::Save(const std::string& strPath, ImageType type) const {
    if (!IsValid() || type == ImageType::kUnknown) return false;
    CAtomicFile file;
    if (!file.Open(strPath)) return false;
    const bool bEncoded = type == ImageType::kJpeg
                              ? EncodeJpeg(m_pixels, {m_nJpegQuality, m_nXDpi, m_nYDpi}, file)
                              : EncodeWithMagick({m_pixels, m_alpha, m_nXDpi, m_nYDpi}, type, file);
    return bEncoded && file.Commit();
}

void CxImage::SetJpegQuality(int nQuality) {
    m_nJpegQuality = std::clamp(nQuality, 1, 100);
}

void CxImage::SetXDPI(int nDpi) {
    m_nXDpi = std::clamp(nDpi, 1, 65535);
}

void CxImage::SetYDPI(int nDpi) {
    m_nYDpi = std::clamp(nDpi, 1, 65535);
}

CScaledImage LoadJpegScaled(const std::string& strPath, int nMinWidth, int nMinHeight) {
    const CSharedBytes file = ReadFileBytes(strPath);
    if (file.IsEmpty()) return {};
    std::optional<CJpegPicture> picture =
        DecodeJpeg(AsSpan(file), {std::max(nMinWidth, 1), std::max(nMinHeight, 1)});
    CScaledImage scaled;
    if (!picture || !scaled.image.CreateFromHBITMAP(std::move(picture->pixels))) return {};
    scaled.sizeFull = picture->sizeFull;
    return scaled;
}
