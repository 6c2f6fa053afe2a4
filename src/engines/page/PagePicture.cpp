#include "engines/page/PagePicture.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr const char* kStampFace = "Tahoma";
constexpr int kStampWeight = 400;
constexpr CColor kStampColor{255, 79, 64};

// Makes the letters narrower where the line would be wider than that: another face than the one that was
// asked for would else run out of the picture.
class CNarrowRasterizer : public CTextRasterizer {
  public:
    CNarrowRasterizer(CTextRasterizer& rasterizer, int nMostWidth)
        : m_rasterizer(rasterizer), m_nMostWidth(nMostWidth) {}

    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override {
        CTextMask mask = m_rasterizer.Rasterize(font, strText);
        return mask.nWidth > m_nMostWidth ? Squeeze(mask) : mask;
    }

  private:
    // Each new column is the mean of the old ones that it covers.
    CTextMask Squeeze(const CTextMask& mask) const {
        if (m_nMostWidth <= 0) return {};
        CTextMask narrow{m_nMostWidth, mask.nHeight, {}};
        narrow.coverage.reserve(static_cast<std::size_t>(m_nMostWidth) *
                                static_cast<std::size_t>(mask.nHeight));
        const auto edge = [&](int x) {
            return static_cast<int>(std::int64_t{x} * mask.nWidth / m_nMostWidth);
        };
        for (int y = 0; y < mask.nHeight; ++y) {
            const std::uint8_t* const pRow =
                mask.coverage.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(mask.nWidth);
            for (int x = 0; x < m_nMostWidth; ++x) {
                int nSum = 0;
                for (int i = edge(x); i < edge(x + 1); ++i) nSum += pRow[i];
                narrow.coverage.push_back(static_cast<std::uint8_t>(nSum / (edge(x + 1) - edge(x))));
            }
        }
        return narrow;
    }

    CTextRasterizer& m_rasterizer;
    int m_nMostWidth;
};

}  // namespace

CPagePicture::CPagePicture(CxImage image, CSize size, CTextRasterizer& rasterizer,
                           std::optional<CDateStamp> stamp)
    : m_image(std::move(image)), m_size(size), m_rasterizer(rasterizer), m_stamp(std::move(stamp)) {}

CPixels CPagePicture::Rows(int nTop, int nRows) const {
    CPixels pixels = m_image.ResampledRows(m_size, nTop, nRows);
    if (pixels.IsEmpty() || !m_stamp) return pixels;
    const CStampPlace& place = m_stamp->place;
    const int nBottom = place.pt.y - nTop;
    if (nBottom <= 0 || nBottom - place.nSize >= nRows) return pixels;
    CNarrowRasterizer rasterizer(m_rasterizer, place.nReserved);
    CxImage::DrawTextA(pixels.MutableView(), rasterizer, place.pt.x, nBottom, m_stamp->strDate, kStampColor,
                       kStampFace, place.nSize, kStampWeight, false, false);
    return pixels;
}
