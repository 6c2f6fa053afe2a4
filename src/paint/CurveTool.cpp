#include "paint/CurveTool.h"

namespace {

// The count of steps behind the third drag.
constexpr int kDone = 4;

}  // namespace

void CCurveTool::Press(CPoint pt) {
    if (Hand().IsShapeOpen()) return;
    Hand().m_nVertexCount = 1;
    Hand().m_ptBezierCur = pt;
    Hand().m_ptBezier.fill(pt);
}

// The first run of a move draws the curve as it was, the second one as it is.
void CCurveTool::Move(CPoint pt) {
    Paper().Revert();
    Scratch().SelectBrush(CBrush::Hollow());
    Scratch().Bezier(Hand().m_ptBezier);
    Pull(pt);
    Paper().ShowScratch();
}

void CCurveTool::Release(CPoint pt) {
    Pull(pt);
    if (++Hand().m_nVertexCount != kDone) return;
    if (m_env.Snapshot()) Committed().Bezier(Hand().m_ptBezier);
    Paper().Revert();
    Hand().m_nVertexCount = -1;
}

// The first drag moves the end, the second one pulls both control points, the third one the far one alone.
void CCurveTool::Pull(CPoint pt) {
    Hand().m_ptBezierCur = pt;
    auto& points = Hand().m_ptBezier;
    switch (Hand().m_nVertexCount) {
        case 0:
            points[1] = points[2] = points[3] = pt;
            break;
        case 1:
            points[2] = points[3] = pt;
            break;
        case 2:
            points[1] = points[2] = pt;
            break;
        case 3:
            points[2] = pt;
            break;
        default:
            break;
    }
}
