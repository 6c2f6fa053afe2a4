#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

// A picture that is drawn in pixels of single density and holds nDensity times as many in each direction.
class CSheet {
  public:
    CSheet(QSize size, int nDensity, const QColor& crGround = Qt::transparent);

    int Density() const { return m_nDensity; }
    const QImage& Image() const { return m_image; }
    QImage& Image() { return m_image; }

    // The pixels at rcPlace, which is in pixels of single density.
    CSheet Cut(const QRect& rcPlace) const;

    // Copies the whole of another sheet of the same density to ptPlace.
    void Lay(const CSheet& sheet, QPoint ptPlace);

  private:
    explicit CSheet(QImage image, int nDensity) : m_image(std::move(image)), m_nDensity(nDensity) {}

    QImage m_image;
    int m_nDensity;
};

// A painter on a sheet whose unit is a pixel of single density, edges smoothed.
class CSheetPainter : public QPainter {
  public:
    explicit CSheetPainter(CSheet& sheet);
};

enum class ETextAlign { Left, Centre };

// Writes one line of text, its characters on whole pixels. The type of 12 and 13 pixels has shapes made by
// hand for those sizes, which are taken at single density; everything else is smoothed.
void DrawText(CSheet& sheet, const QRect& rcPlace, const QString& strText, const QColor& crInk, int nPixels,
              ETextAlign eAlign);

// The width of the text in pixels of single density, rounded up.
int TextWidth(const QString& strText, int nPixels, int nDensity);
