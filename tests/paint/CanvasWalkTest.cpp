// Ten thousand random events and commands on the canvas.

#include <algorithm>
#include <random>

#include "paint/DrawBench.h"

namespace {

class CanvasWalk : public DrawBench {
  protected:
    int Pick(int nBelow) { return std::uniform_int_distribution<int>(0, nBelow - 1)(m_pick); }
    CColor PickColour() {
        // Few enough that a flood fill finds its own.
        return CColor::FromRef(
            static_cast<std::uint32_t>(Pick(3) * 0x7F0000 + Pick(3) * 0x7F00 + Pick(3) * 0x7F));
    }
    // Somewhere on the picture, in the margin or far outside.
    CPoint PickPoint() {
        const int nMost = Pick(10) == 0 ? 3000 : 90;
        return {Pick(nMost) - nMost / 6, Pick(nMost) - nMost / 6};
    }

    void Act() {
        const EMouseButton button = Pick(4) ? kLeft : kRight;
        const int nAct = Pick(24);
        if (nAct < 3) return Mouse(EMouseAction::Press, PickPoint(), button);
        if (nAct < 6) return Mouse(EMouseAction::Release, PickPoint(), button);
        if (nAct == 6) return Mouse(EMouseAction::DoubleClick, PickPoint(), button);
        if (nAct == 7) return SelectTool(ETool{1 + Pick(16)});
        if (nAct == 8) return PickSettings();
        if (nAct == 9 && Pick(4) == 0) return Zoom(std::max(1, 2 * Pick(4)));
        if (nAct == 10) return m_canvas.ScrollTo({Pick(500), Pick(500)});
        if (nAct == 11 && m_bTimer) return Tick();
        if (nAct == 12) return Command();
        Mouse(EMouseAction::Move, PickPoint());
    }

    void PickSettings() {
        m_tools.m_crForeground = PickColour();
        m_tools.m_crBackground = PickColour();
        m_tools.m_nLineWidth = 1 + Pick(5);
        m_tools.m_nFillMode = EFillMode{Pick(3)};
        m_tools.m_nBrushShape = Pick(12);
        m_tools.m_nSpraySize = Pick(3);
        m_tools.m_nEraserSize = Pick(4);
    }

    // The ones that leave little behind are rare.
    void Command() {
        const int nCommand = Pick(40);
        if (nCommand == 0) return Reset();
        if (nCommand == 1) return m_commands.OnCrop();
        if (nCommand == 2) return Open(NumberedImage(1 + Pick(120), 1 + Pick(90)));
        if (nCommand < 8) return m_commands.OnCopy();
        if (nCommand < 14) return m_commands.OnCut();
        if (nCommand < 20) return m_commands.OnPaste();
        if (nCommand < 26) return Undo();
        if (nCommand < 32) return Redo();
        // Another mode and back, as the switch does it.
        m_draw.DropFloat();
        m_draw.FetchCanvas();
        m_canvas.SetGuest(nullptr);
        m_canvas.OnInitialUpdate();
        Mouse(EMouseAction::Move, PickPoint());
        m_canvas.SetGuest(&m_draw);
        m_draw.LoadCanvas();
        SelectTool(ETool::Magnifier);
    }

    // What holds whenever no event is being handled.
    void Invariants() {
        m_canvas.Paint();
        const CPaper& paper = m_draw.Paper();
        const CSize size{paper.Width(), paper.Height()};
        // Both stores have the size of the working image.
        ASSERT_EQ(m_images.m_imgWork.GetSize(), size);
        ASSERT_EQ(paper.Scratch().Bounds().Size(), size);
        // A surface that has been drawn on since the last show is out of date on the screen until the next
        // one; all steps show what they have drawn, so the screen is the shown store.
        ExpectScreen(paper.Shown());
        // No picture that somebody keeps is painted on: the newest undo step is what the working image was.
        ASSERT_LE(m_images.m_stackUndo.Count(), CUndoStack<CUndoEntry>::kDepth);
        ASSERT_LE(m_images.m_stackRedo.Count(), CUndoStack<CUndoEntry>::kDepth);
        CheckKept();
        // The hand.
        const CHand& hand = m_draw.Hand();
        ASSERT_TRUE(hand.m_nVertexCount <= CHand::kMostVertices);
        ASSERT_NE(m_tools.m_nResumeTool, ETool::Float);
        // A float and its tool come and go together, and no mark stands beside it.
        ASSERT_EQ(m_draw.IsFloating(), m_tools.m_nTool == ETool::Float);
        ASSERT_FALSE(m_draw.IsFloating() && m_draw.Selection().IsMarked());
        ASSERT_LE(m_draw.Selection().m_free.Points().size(), CFreeOutline::kMostPoints);
        ASSERT_TRUE(m_draw.Selection().IsClipReady() || !m_draw.IsFloating());
        ASSERT_EQ(m_nWaits, 0);
    }

    // Every undo step keeps its pixels for as long as it is the one at its depth.
    void CheckKept() {
        if (m_images.m_stackUndo.IsEmpty()) return m_kept.Clear();
        const CPixels& top = m_images.m_stackUndo.Top().image.Pixels();
        if (!m_kept.SharesWith(top)) {
            m_kept = top;
            m_copy = top;
            ASSERT_TRUE(m_copy.Separate());
        }
        ASSERT_TRUE(top == m_copy);
    }

    std::mt19937 m_pick;
    CPixels m_kept;
    CPixels m_copy;
};

}  // namespace

TEST_F(CanvasWalk, TenThousandEvents) {
    const unsigned nSeed = std::random_device{}();
    m_pick.seed(nSeed);
    Open(NumberedImage(60, 50));
    for (int nStep = 0; nStep < 10000; ++nStep) {
        SCOPED_TRACE("seed " + std::to_string(nSeed) + ", step " + std::to_string(nStep) + ", tool " +
                     std::to_string(NumberOf(m_tools.m_nTool)));
        Act();
        m_arrBoxes.clear();
        Invariants();
        if (HasFailure()) return;
    }
}
