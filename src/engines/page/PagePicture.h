#pragma once

#include <optional>
#include <string>
#include <utility>

#include "engines/page/PageLayout.h"
#include "image/Image.h"

struct CDateStamp {
    std::string strDate;
    CStampPlace place;
};

// The picture as it goes onto the page: resampled by the nearest pixel, with the date in its lower right
// corner if there is one. It is made in strips, since at a printer's resolution the whole of it would take
// hundreds of megabytes; where it is cut does not show in its pixels.
class CPagePicture {
  public:
    // The rasterizer outlives the object. A size with a side of 0 or less is a picture without pixels.
    CPagePicture(CxImage image, CSize size, CTextRasterizer& rasterizer,
                 std::optional<CDateStamp> stamp = std::nullopt);

    CSize Size() const { return m_size; }
    // nRows rows from nTop on, counted from the top; they have to lie inside. Empty if memory is short.
    [[nodiscard]] CPixels Rows(int nTop, int nRows) const;
    [[nodiscard]] CPixels Whole() const { return Rows(0, m_size.cy); }

  private:
    CxImage m_image;
    CSize m_size;
    CTextRasterizer& m_rasterizer;
    std::optional<CDateStamp> m_stamp;
};
