#pragma once

#include <array>

#include "image/Color.h"
#include "image/Geometry.h"

// What the hand is doing on the canvas. Points are picture pixels; those that a press gives may lie outside.
struct CHand {
    static constexpr int kMostVertices = 100;

    // A button went down on the canvas and has not come up there.
    bool m_bButtonDown = false;
    // Where it went down, kept inside the picture; for stroke tools the last sample.
    CPoint m_ptStart;
    // The colour of the button that went down, and that of the other one.
    CColor m_crPrimary;
    CColor m_crSecondary;

    // A shape of several clicks. Its points so far, or the curve's step; above 0: a shape is open. A shape
    // that a double click has closed leaves -1, and the release behind it 0.
    int m_nVertexCount = -1;
    std::array<CPoint, kMostVertices> m_ptVertex;
    // One more than the points of the polygon that was closed last.
    int m_nClosedCount = 0;
    // The curve: both ends and the two points that pull it, and where the cursor was last.
    std::array<CPoint, 4> m_ptBezier;
    CPoint m_ptBezierCur;

    bool IsShapeOpen() const { return m_nVertexCount > 0; }
    // A press: begins a shape of several clicks if none is open.
    void BeginShape(CPoint pt);
    // A release: one more point. Behind the last one that there is room for, further points are not taken.
    void AddVertex(CPoint pt);
    // A double click: closes the shape with the points that stood before it; the count of these. 0: none was
    // open.
    int CloseShape(CPoint pt);
};
