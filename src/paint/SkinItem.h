#pragma once

#include "window/ClientArea.h"

// The edges that the platform draws around a rectangle.
enum class ESkinEdge { Bump, SunkenLine };

// A rectangle of the main window that is drawn with an edge, in client pixels.
class CSkinItem {
  public:
    const CRect& GetRect() const { return m_rcFrame; }

  protected:
    CSkinItem(const CRect& rcFrame, ESkinEdge edge) : m_rcFrame(rcFrame), m_edge(edge) {}
    // Just inside the rectangle.
    void DrawEdge(CClientArea& client) const;

  private:
    CRect m_rcFrame;
    ESkinEdge m_edge;
};
