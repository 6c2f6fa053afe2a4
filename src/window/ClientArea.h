#pragma once

#include <string>

#include "image/Color.h"
#include "image/Geometry.h"
#include "image/TextRasterizer.h"
#include "surface/Surface.h"
#include "window/Bitmaps.h"

// What a dialog has drawn of itself: the pixels below and beside its controls. Every coordinate is a client
// pixel; at density 2 each stands for two by two pixels of the surface, and the pictures come from the denser
// set.
class CClientArea {
  public:
    explicit CClientArea(CSize sizeClient);

    // Gives the area its pictures and its density, 1 or 2. What was drawn before is lost.
    void SetUp(CBitmaps* pBitmaps, int nDensity);

    CSize Size() const { return m_size; }
    int Density() const { return m_nDensity; }
    const CSurface& Surface() const { return m_surface; }

    // A picture that does not exist draws nothing.
    void DrawBitmap(const std::string& strName, int x, int y);
    void DrawBitmap(int nResource, int x, int y);
    // The same without the pixels that have the colour of the picture's top left one.
    void DrawKeyed(int nResource, int x, int y);
    void FillRect(const CRect& rc, CColor color);
    // Copies the surface with its top left corner at (x, y); at density 2 every pixel becomes two by two.
    void DrawSurface(const CSurface& surface, int x, int y);

    // Figures, in the area's own density: at density 2 edges are finer, and lines are two pixels wide. Boxes
    // leave out their right and bottom edge, a line its last point.
    void DrawBox(const CRect& rc, CColor crOutline, CColor crInside);
    void DrawEllipse(const CRect& rc, CColor color);
    void DrawLine(CPoint ptFrom, CPoint ptTo, CColor color);
    // One line of text with its cell's top left corner at the point, on a ground as large as the cell.
    void DrawTextLine(CTextRasterizer& rasterizer, const CTextFont& font, const std::string& strText,
                      CPoint pt, CColor crText, CColor crGround);

    // As long as it lives all drawing stays inside the box. One at a time.
    class CClip {
      public:
        CClip(CClientArea& client, const CRect& rc) : m_client(client) { m_client.m_rcClip = rc; }
        CClip(const CClip&) = delete;
        CClip& operator=(const CClip&) = delete;
        ~CClip() { m_client.m_rcClip = {}; }

      private:
        CClientArea& m_client;
    };

    // The box that has been drawn on since the last call.
    CRect TakeDamage();

  private:
    void DrawPicture(const CPixels& pixels, int x, int y, int nFactor);
    CRect Drawable() const;
    CSurface CopyOfPart(const CRect& rc) const;

    CSize m_size;
    int m_nDensity = 1;
    CSurface m_surface;
    CBitmaps* m_pBitmaps = nullptr;
    CRect m_rcDamage;
    CRect m_rcClip;
};
