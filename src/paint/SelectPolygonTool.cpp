#include "paint/SelectPolygonTool.h"

// The last press has put a solid pen on the scratch store, and a double click need not have a move before it.
void CSelectPolygonTool::DoubleClick(CPoint /*pt*/) {
    const int nPoints = Hand().ClosePolygon();
    if (nPoints == 0) return;
    Scratch().SelectPen(SelectionPen());
    Scratch().SelectBrush(CBrush::Hollow());
    Scratch().Polygon(Vertices(nPoints));
    Paper().ShowScratch();
    m_env.selection.Mark();
    m_env.events.Tell(EEditEvent::SelectionMade);
}
