#include "qt/BandPainter.h"

#include <QPagedPaintDevice>
#include <cstring>

namespace {

constexpr int kBandRows = 256;
// Of a dot, on each side. Whoever turns the page into dots widens a picture to all that it touches: where its
// edge is exactly that of a dot, by one more, with all its pixels blurred.
constexpr double kInset = 1.0 / 64;
// No seams down to a twelfth of the printer's dots at 600 an inch.
constexpr int kSeamDotsPerInch = 50;

// Whether the band is kept dot by dot: drawings, and all that the page shows enlarged, which repeats itself.
// The grain of a photograph that has nearly as many pixels as the page has dots would cost seconds to
// deflate; at such a size nobody sees what a JPEG of high quality makes of it. A few rows tell.
bool IsKeptExact(const CPixels& pixels, int nTop, int nRows) {
    constexpr int kProbeRows = 4;
    constexpr int kFewer = 4;
    const int nProbe = std::min(kProbeRows, nRows);
    const std::uint8_t* const pRows = pixels.Row(nTop + (nRows - nProbe) / 2).data();
    const auto nBytes = static_cast<qsizetype>(pixels.Stride()) * nProbe;
    return qCompress(pRows, nBytes, 1).size() * kFewer < nBytes;
}

void CopyRow(const std::uint8_t* pSource, QRgb* pTarget, int nWidth) {
    for (int x = 0; x < nWidth; ++x, pSource += 3) pTarget[x] = qRgb(pSource[0], pSource[1], pSource[2]);
}

}  // namespace

bool CBandPainter::Begin(QPagedPaintDevice& device) {
    m_imageLast = {};
    m_rcPage = CRect::FromPlace(0, 0, device.width(), device.height());
    m_nRepeat = device.logicalDpiY() / kSeamDotsPerInch;
    return m_painter.begin(&device);
}

bool CBandPainter::Draw(const CPixels& pixels, CPoint pt) {
    const CRect rc = CRect::FromPlace(pt.x, pt.y, pixels.Width(), pixels.Height()).Intersect(m_rcPage);
    for (int y = rc.top; y < rc.bottom; y += kBandRows)
        if (!DrawBand(pixels, pt, {rc.left, y, rc.right, std::min(y + kBandRows, rc.bottom)})) return false;
    return true;
}

int CBandPainter::RepeatedRows(const CRect& rc) const {
    const bool bBelow = !m_imageLast.isNull() && rc.left == m_rcLast.left && rc.right == m_rcLast.right &&
                        rc.top == m_rcLast.bottom;
    return bBelow ? std::min(m_nRepeat, m_imageLast.height()) : 0;
}

// pt: where the pixels stand, rc: what of them the band is, both on the page.
bool CBandPainter::DrawBand(const CPixels& pixels, CPoint pt, const CRect& rc) {
    const int nRepeated = RepeatedRows(rc);
    QImage band(rc.Width(), nRepeated + rc.Height(), QImage::Format_RGB32);
    if (band.isNull()) return false;
    const auto row = [&](int y) { return reinterpret_cast<QRgb*>(band.scanLine(y)); };
    for (int y = 0; y < nRepeated; ++y)
        std::memcpy(row(y), m_imageLast.constScanLine(m_imageLast.height() - nRepeated + y),
                    static_cast<std::size_t>(rc.Width()) * sizeof(QRgb));
    const std::size_t nLeft = std::size_t{3} * static_cast<std::size_t>(rc.left - pt.x);
    for (int y = 0; y < rc.Height(); ++y)
        CopyRow(pixels.Row(rc.top - pt.y + y).subspan(nLeft).data(), row(nRepeated + y), rc.Width());
    m_painter.setRenderHint(QPainter::LosslessImageRendering,
                            IsKeptExact(pixels, rc.top - pt.y, rc.Height()));
    const QRectF rcDots(rc.left, rc.top - nRepeated, band.width(), band.height());
    m_painter.drawImage(rcDots.adjusted(kInset, kInset, -kInset, -kInset), band);
    m_imageLast = std::move(band);
    m_rcLast = rc;
    return true;
}

bool CBandPainter::End() {
    m_imageLast = {};
    return m_painter.isActive() && m_painter.end();
}
