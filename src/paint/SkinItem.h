#pragma once

#include "window/ClientArea.h"

// The edges that the platform draws around a rectangle. A style is a set of these; the first one counts.
enum ESkinEdge {
    kEdgeNone = 0,
    kEdgeSunken = 2,
    kEdgeRaised = 4,
    kEdgeBump = 8,
    kEdgeEtched = 16,
    kEdgeRaisedLine = 32,
    kEdgeSunkenLine = 64,
};

// A rectangle of the main window that is drawn, in client pixels.
class CSkinItem {
  public:
    CSkinItem(const CRect& rcFrame, int nStyle) : m_rcFrame(rcFrame), m_nStyle(nStyle), m_rcInner(rcFrame) {}
    virtual ~CSkinItem() = default;

    virtual void Draw(CClientArea& client) const = 0;

    const CRect& GetRect() const { return m_rcFrame; }
    void SetRect(const CRect& rc) { m_rcFrame = m_rcInner = rc; }

  protected:
    // Just inside m_rcInner.
    void DrawEdge(CClientArea& client) const;

  private:
    CRect m_rcFrame;
    int m_nStyle;
    CRect m_rcInner;  // where the edge runs
};
