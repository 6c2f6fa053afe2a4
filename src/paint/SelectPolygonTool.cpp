#include "paint/SelectPolygonTool.h"

// The last press has put a solid pen on the scratch store, and a double click need not have a move before it.
void CSelectPolygonTool::DoubleClick(CPoint pt) {
    if (!Hand().IsShapeOpen()) return;
    const int nPoints = Hand().CloseShape(pt);
    Scratch().SelectPen(SelectionPen());
    Scratch().SelectBrush(CBrush::Hollow());
    Scratch().Polygon(Vertices(nPoints));
    Paper().ShowScratch();
    m_env.selection.m_bSelection = true;
    m_env.host.EnableSelectionCommands(true);
}
