#include "paint/PolygonTool.h"

void CPolygonTool::Press(CPoint pt) {
    Hand().BeginPolygon(pt);
}

void CPolygonTool::Move(CPoint pt) {
    Paper().Revert();
    if (Hand().m_nVertexCount > 0) {
        const auto vertices = Vertices(Hand().m_nVertexCount);
        Scratch().Polyline(vertices);
        DrawLine(Scratch(), vertices.back(), pt);
    }
}

void CPolygonTool::Release(CPoint pt) {
    if (Hand().TakeRelease()) Hand().AddVertex(pt);
}

// The release of the first click has put a vertex here already, so this point is not part of the figure. That
// click may have merged a float instead: then there is no figure, but a step and an end all the same.
void CPolygonTool::DoubleClick(CPoint /*pt*/) {
    const bool bMayDraw = m_env.Snapshot();
    const int nPoints = Hand().ClosePolygon();
    if (bMayDraw) Committed().Polygon(Vertices(nPoints));
    Paper().Revert();
}
