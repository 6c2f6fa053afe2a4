#pragma once

#include <QImage>
#include <QPixmap>
#include <map>
#include <string>

#include "image/Image.h"
#include "window/Bitmaps.h"

// The pixels as a Qt image on the same memory: good as long as they stand and are not written to. nDensity is
// the number of pixels to a client pixel in each direction.
QImage ViewPixels(const CPixels& pixels, int nDensity = 1);

// A picture with its alpha, if it has one, in memory of its own.
QImage CopyImage(const CxImage& image);

// Skin pictures by name, ready to be drawn by widgets.
class CPictures {
  public:
    explicit CPictures(CBitmaps& bitmaps) : m_bitmaps(bitmaps) {}

    CBitmaps& Bitmaps() { return m_bitmaps; }
    // In client pixels as large as the picture of density 1. Null if there is no picture of that name.
    const QPixmap* Find(const std::string& strName, int nDensity);

  private:
    CBitmaps& m_bitmaps;
    std::map<std::pair<int, std::string>, QPixmap> m_mapReady;
};
