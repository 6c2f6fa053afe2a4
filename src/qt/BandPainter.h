#pragma once

#include <QImage>
#include <QPainter>

#include "image/Geometry.h"
#include "image/Pixels.h"

class QPagedPaintDevice;

// Draws pictures onto a printed page, a pixel each dot, in bands, so that a page of any number of dots needs
// little memory. A band that lies right below the one before repeats its last rows: a viewer that shows the
// page smaller would else let the paper shine through between the two.
class CBandPainter {
  public:
    // The device outlives what is drawn.
    [[nodiscard]] bool Begin(QPagedPaintDevice& device);
    // What lies outside of the printable area is left out. False if memory is short.
    [[nodiscard]] bool Draw(const CPixels& pixels, CPoint pt);
    [[nodiscard]] bool End();

  private:
    [[nodiscard]] bool DrawBand(const CPixels& pixels, CPoint pt, const CRect& rc);
    int RepeatedRows(const CRect& rc) const;

    QPainter m_painter;
    CRect m_rcPage;
    int m_nRepeat = 0;
    QImage m_imageLast;
    CRect m_rcLast;
};
