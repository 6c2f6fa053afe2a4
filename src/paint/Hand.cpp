#include "paint/Hand.h"

void CHand::BeginPolygon(CPoint pt) {
    if (IsShapeOpen()) return;
    m_bReleaseSpent = false;
    m_ptVertex[0] = pt;
    m_nVertexCount = 1;
}

void CHand::BeginCurve(CPoint pt) {
    if (IsShapeOpen()) return;
    m_bReleaseSpent = false;
    m_ptBezier.fill(pt);
    m_nCurveStep = 1;
}

void CHand::BeginBox() {
    if (IsShapeOpen()) return;
    m_bReleaseSpent = false;
    m_bBoxBegun = true;
}

void CHand::AddVertex(CPoint pt) {
    if (m_nVertexCount < kMostVertices) m_ptVertex[static_cast<std::size_t>(m_nVertexCount++)] = pt;
}

int CHand::ClosePolygon() {
    const int nPoints = m_nVertexCount;
    if (nPoints > 0) m_nClosedCount = nPoints;
    EndShape();
    return nPoints;
}

void CHand::EndShape() {
    m_nVertexCount = 0;
    m_nCurveStep = 0;
    m_bBoxBegun = false;
    m_bReleaseSpent = true;
}
