#pragma once

#include <array>
#include <utility>

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

    // The points of the polygon that is open; 0: none is.
    int m_nVertexCount = 0;
    std::array<CPoint, kMostVertices> m_ptVertex;
    // The points of the polygon that was closed last.
    int m_nClosedCount = 0;
    // The drag that bends the curve, from 1 to 3; 0: none is open.
    int m_nCurveStep = 0;
    // Both ends of the curve and, between them, the two points that pull it.
    std::array<CPoint, 4> m_ptBezier;
    // A box figure has been begun. A command takes it for one that is open, however often it was finished.
    bool m_bBoxBegun = false;
    // The shape is over and a release may still be to come: the one of a double click, or of a drag in which
    // the shape was given up. It adds nothing to the next one.
    bool m_bReleaseSpent = true;

    bool IsShapeOpen() const { return m_nVertexCount > 0 || m_nCurveStep > 0 || m_bBoxBegun; }
    // A press: begins a shape if none is open.
    void BeginPolygon(CPoint pt);
    void BeginCurve(CPoint pt);
    void BeginBox();
    // A release; false for the one that is spent.
    bool TakeRelease() { return !std::exchange(m_bReleaseSpent, false); }
    // Behind the last point that there is room for, further ones are not taken.
    void AddVertex(CPoint pt);
    // A double click: closes the polygon; the count of its points. 0: none was open.
    int ClosePolygon();
    // Whatever is open is over.
    void EndShape();
};
