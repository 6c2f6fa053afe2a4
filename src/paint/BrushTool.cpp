#include "paint/BrushTool.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kFirstSquare = 3;
constexpr int kFirstRising = 6;
constexpr int kFirstFalling = 9;

// What the stroke of each round and square brush is drawn with.
constexpr std::array kPenWidth = {7, 5, 3, 8, 5, 2};

// The square ends, as distances from the cursor; the middle one ends a stroke a pixel further right.
constexpr std::array<CRect, 3> kStart = {CRect{-4, -4, 4, 4}, {-2, -2, 2, 3}, {-1, -1, 1, 1}};
constexpr std::array<CRect, 3> kEnd = {CRect{-4, -4, 4, 4}, {-1, -2, 3, 3}, {-1, -1, 1, 1}};

// Half the extent of the slanted brushes.
constexpr std::array kSlash = {4, 2, 1};

bool IsSlanted(int nShape) {
    return nShape >= kFirstRising;
}
bool IsSquare(int nShape) {
    return nShape >= kFirstSquare && nShape < kFirstRising;
}

}  // namespace

// The snapshot comes behind the first dab, which lies on the scratch store only: so one undo takes it back
// too.
void CBrushTool::Press(CPoint pt) {
    const int nShape = m_env.options.m_nBrushShape;
    const CColor color = Hand().m_crPrimary;
    Paper().Commit();
    if (!IsSlanted(nShape)) {
        // The dot of a square brush is drawn with the pen as the press has prepared it.
        if (!IsSquare(nShape))
            Scratch().SelectPen(CPen::Solid(kPenWidth[static_cast<std::size_t>(nShape)], color));
        DrawLine(Scratch(), pt, pt);
        if (IsSquare(nShape))
            Scratch().FillRect(kStart[static_cast<std::size_t>(nShape - kFirstSquare)].Offset(pt.x, pt.y),
                               color);
        Hand().m_ptStart = pt;
    }
    Paper().ShowScratch();
    if (!m_env.Snapshot()) Paper().Revert();
}

void CBrushTool::Move(CPoint pt) {
    const int nShape = m_env.options.m_nBrushShape;
    Paper().Commit();
    if (IsSlanted(nShape)) {
        Slash(pt);
    } else {
        Scratch().SelectPen(CPen::Solid(kPenWidth[static_cast<std::size_t>(nShape)], Hand().m_crPrimary));
        DrawLine(Scratch(), Hand().m_ptStart, pt);
        Hand().m_ptStart = pt;
    }
    Paper().ShowScratch();
}

void CBrushTool::Release(CPoint pt) {
    const int nShape = m_env.options.m_nBrushShape;
    if (IsSlanted(nShape))
        Slash(pt);
    else if (IsSquare(nShape))
        Scratch().FillRect(kEnd[static_cast<std::size_t>(nShape - kFirstSquare)].Offset(pt.x, pt.y),
                           Hand().m_crPrimary);
    Paper().Commit();
}

void CBrushTool::Slash(CPoint pt) {
    const int nShape = m_env.options.m_nBrushShape;
    const bool bFalling = nShape >= kFirstFalling;
    const int n = kSlash[static_cast<std::size_t>(nShape - (bFalling ? kFirstFalling : kFirstRising))];
    const int dy = bFalling ? n : -n;
    DrawLine(Scratch(), {pt.x - n, pt.y - dy}, {pt.x + n, pt.y + dy});
}
