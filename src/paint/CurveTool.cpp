#include "paint/CurveTool.h"

namespace {

constexpr int kLastStep = 3;

}  // namespace

void CCurveTool::Press(CPoint pt) {
    Hand().BeginCurve(pt);
}

// The first run of a move draws the curve as it was, the second one as it is.
void CCurveTool::Move(CPoint pt) {
    Paper().Revert();
    Scratch().Bezier(Hand().m_ptBezier);
    Pull(pt);
}

void CCurveTool::Release(CPoint pt) {
    Pull(pt);
    if (!Hand().TakeRelease() || ++Hand().m_nCurveStep <= kLastStep) return;
    if (m_env.Snapshot()) Committed().Bezier(Hand().m_ptBezier);
    Paper().Revert();
    Hand().EndShape();
}

// The first drag moves the end, the second one pulls both control points, the third one the far one alone.
// One that began beside the canvas moves all but the start.
void CCurveTool::Pull(CPoint pt) {
    if (Hand().m_bReleaseSpent) return;
    auto& points = Hand().m_ptBezier;
    switch (Hand().m_nCurveStep) {
        case 0:
            points[1] = points[2] = points[3] = pt;
            break;
        case 1:
            points[2] = points[3] = pt;
            break;
        case 2:
            points[1] = points[2] = pt;
            break;
        default:
            points[2] = pt;
    }
}
