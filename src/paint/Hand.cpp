#include "paint/Hand.h"

#include <algorithm>

void CHand::BeginShape(CPoint pt) {
    if (IsShapeOpen()) return;
    m_ptVertex[0] = pt;
    m_nVertexCount = 1;
}

void CHand::AddVertex(CPoint pt) {
    if (m_nVertexCount >= kMostVertices) return;
    if (m_nVertexCount >= 0) m_ptVertex[static_cast<std::size_t>(m_nVertexCount)] = pt;
    ++m_nVertexCount;
}

int CHand::CloseShape(CPoint pt) {
    const int nPoints = std::max(0, m_nVertexCount);
    if (IsShapeOpen()) {
        AddVertex(pt);
        m_nClosedCount = nPoints + 1;
    }
    m_nVertexCount = -1;
    return nPoints;
}
