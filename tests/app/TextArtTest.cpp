// FONT from the panel and the canvas to the picture: words, their shape, colour and style, and what undo
// makes of them.

#include "app/Workshop.h"

namespace {

class TextArtTest : public Workshop {
  protected:
    void OpenInFont(int nWidth = 300, int nHeight = 200) {
        OpenNumbered(nWidth, nHeight);
        GoTo(EMode::Font);
        m_before = Work();
    }
    const CPixels& Work() const { return Images().m_imgWork.Pixels(); }
    const TextArtParam& Param() { return m_dialog.TextArt().Param(); }
    const CTextHandles& Handles() { return m_dialog.TextArt().Guest().Handles(); }
    void Apply(const std::string& strText) {
        EXPECT_EQ(m_host.Type(kTextInput, strText), "");
        Click(kTextApply);
    }
    void Mouse(EMouseAction action, CPoint pt, unsigned nKeys = 0) {
        const EMouseButton button = action == EMouseAction::Move ? EMouseButton::None : EMouseButton::Left;
        EXPECT_EQ(m_host.MouseOnView(kCanvas, action, button, pt, nKeys), "");
    }
    void Drag(CPoint ptFrom, CPoint ptTo, unsigned nKeys = 0) {
        Mouse(EMouseAction::Press, ptFrom, nKeys);
        Mouse(EMouseAction::Move, ptTo, nKeys);
        Mouse(EMouseAction::Release, ptTo, nKeys);
    }
    // The words that the engine draws on the picture as FONT began.
    CPixels Words(const std::string& strText, const TextArtParam& param, bool bBold = false) {
        CTextRasterizer& text = m_platform.Get().text;
        CTextMask mask = text.Rasterize({"黑体", 72, bBold ? 1000 : 100}, strText);
        for (std::uint8_t& n : mask.coverage) n = static_cast<std::uint8_t>(255 - n);
        CTextWarp warp;
        warp.SetBase(m_before);
        EXPECT_TRUE(warp.SetMask(mask.coverage, mask.nWidth, mask.nHeight) && warp.Render(param));
        return warp.Result();
    }
    CColor Canvas(int x, int y) { return m_dialog.Canvas().Surface().GetPixel(x, y); }

    CPixels m_before;
};

}  // namespace

TEST_F(TextArtTest, WordsAreDrawnOverThePictureAsItWas) {
    OpenInFont();
    EXPECT_EQ((CPoint{Param().nBoxX, Param().nBoxY}), (CPoint{329 - 75 - 177, 271 - 25 - 169}));
    Apply("Ab");
    EXPECT_EQ(Undos(), 1);
    EXPECT_EQ(m_dialog.TextArt().TextColor(), (CColor{217, 40, 200}));
    EXPECT_EQ((CColor{Param().byRed, Param().byGreen, Param().byBlue}), (CColor{217, 40, 200}));
    EXPECT_EQ(Work(), Words("Ab", Param()));
    EXPECT_NE(Work(), m_before);
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), Work());
    // Others take their place, and nothing adds up.
    Apply("文字");
    EXPECT_EQ(Work(), Words("文字", Param()));
    Apply("");
    EXPECT_EQ(Work(), m_before) << "no words";
    Apply("Ab");
    const CPixels words = Work();
    Click(kCmdUndo);
    EXPECT_EQ(Work(), m_before);
    Click(kCmdUndo);
    // What undo brings is the new base.
    m_before = Work();
    Apply("x");
    EXPECT_EQ(Work(), Words("x", Param()));
    // Behind FONT the words belong to the picture.
    GoTo(EMode::Effect);
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), Work());
    GoTo(EMode::Font);
    m_before = Work();
    Apply("y");
    EXPECT_EQ(Work(), Words("y", Param()));
}

TEST_F(TextArtTest, TheHandShapesThemAndTheEngineWaitsForItsRelease) {
    OpenInFont();
    Apply("Ab");
    const CPixels words = Work();
    const CPoint ptCorner = Handles().Quad()[1];
    Mouse(EMouseAction::Move, ptCorner);
    EXPECT_EQ(m_dialog.Canvas().Cursor(), ECursor::Handle);
    Mouse(EMouseAction::Press, ptCorner);
    Mouse(EMouseAction::Move, {ptCorner.x + 30, ptCorner.y - 20});
    EXPECT_EQ(Work(), words);
    EXPECT_EQ(Handles().Quad()[1], (CPoint{ptCorner.x + 30, ptCorner.y - 20}));
    Mouse(EMouseAction::Release, {ptCorner.x + 30, ptCorner.y - 20});
    EXPECT_EQ(Work(), Words("Ab", Param()));
    EXPECT_NE(Work(), words);
    EXPECT_EQ(Undos(), 1) << "shaping is no step";
    // A release beside the canvas is not heard of; the next move without a button forgets the hand's hold.
    Mouse(EMouseAction::Press, Handles().Quad()[1]);
    EXPECT_EQ(m_host.MouseOnWindow(EMouseAction::Release, EMouseButton::Left, {20, 700}), "");
    Mouse(EMouseAction::Move, {329, 271});
    EXPECT_EQ(m_dialog.Canvas().Cursor(), ECursor::Arrow);
    // Off the corners the whole goes along, from the press.
    const CPoint ptMiddle{329, 271};
    Mouse(EMouseAction::Press, ptMiddle);
    EXPECT_EQ(m_dialog.Canvas().Cursor(), ECursor::Move);
    Mouse(EMouseAction::Move, {ptMiddle.x + 5, ptMiddle.y + 7});
    Mouse(EMouseAction::Move, {ptMiddle.x + 10, ptMiddle.y + 9});
    Mouse(EMouseAction::Release, {ptMiddle.x + 10, ptMiddle.y + 9});
    EXPECT_EQ(Handles().Quad()[1], (CPoint{ptCorner.x + 40, ptCorner.y - 11}));
    Mouse(EMouseAction::Move, ptMiddle);
    EXPECT_EQ(m_dialog.Canvas().Cursor(), ECursor::Arrow);
    // With Shift it is drawn anew; a press beside the picture takes hold of nothing.
    Drag({250, 230}, {350, 260}, kMouseShift);
    EXPECT_EQ(Handles().Quad(), (CTextHandles::CQuad{{{250, 230}, {350, 230}, {350, 260}, {250, 260}}}));
    Drag({20, 20}, {300, 250});
    EXPECT_EQ(Handles().Quad()[0], (CPoint{250, 230}));
    EXPECT_EQ(Work(), Words("Ab", Param()));
    Click(kCmdUndo);
    EXPECT_EQ(Work(), m_before) << "back past all shaping";
}

TEST_F(TextArtTest, AMeshBendsThem) {
    OpenInFont();
    EXPECT_EQ(m_host.Click(kRadioMesh), "");
    EXPECT_EQ(Work(), m_before) << "there are no words yet";
    Apply("Ab");
    EXPECT_EQ(Param().nWarpKind, kWarpMesh);
    EXPECT_EQ(Work(), Words("Ab", Param()));
    const CPoint pt = Handles().Mesh()[5];
    Drag(pt, {pt.x + 12, pt.y + 6});
    EXPECT_NE(Param().fMeshDstX, Param().fMeshSrcX);
    EXPECT_EQ(Work(), Words("Ab", Param()));
    EXPECT_EQ(m_host.Click(kRadioProjection), "");
    EXPECT_EQ(Param().nWarpKind, kWarpProjection);
    EXPECT_EQ(Work(), Words("Ab", Param()));
    EXPECT_EQ(Undos(), 1);
}

TEST_F(TextArtTest, ColourFontAndStyleAreStepsOfTheirOwn) {
    OpenInFont();
    Apply("Ab");
    m_platform.AnswerColor({1, 200, 3});
    Click(kTextColor);
    EXPECT_EQ(Undos(), 2);
    EXPECT_EQ(Param().byGreen, 200);
    EXPECT_EQ(Work(), Words("Ab", Param()));
    EXPECT_EQ(m_host.Type(kTextInput, "Cd"), "");
    m_platform.AnswerFont("黑体", true);
    Click(kTextFont);
    EXPECT_EQ(Undos(), 3);
    EXPECT_EQ(Work(), Words("Cd", Param(), true)) << "what stands in the edit";
    EXPECT_EQ(m_host.SelectRow(kTextEffectList, kTextReversed), "");
    EXPECT_EQ(Undos(), 4);
    EXPECT_EQ(Param().nTextEffect, kTextReversed);
    EXPECT_EQ(Work(), Words("Cd", Param(), true));
    const auto& arrItems = Controls().Find(kTextEffectList)->arrItems;
    EXPECT_EQ(arrItems[0].strText, "265");
    EXPECT_EQ(arrItems[3].strText, "272");
    m_platform.TakeAsked();
    Click(kTextColor);
    Click(kTextFont);
    EXPECT_EQ(Undos(), 4) << "cancelled";
    const std::vector<CAsked> arrAsked = m_platform.TakeAsked();
    m_platform.TakeProblems();
    EXPECT_EQ(arrAsked.size(), 2U);
    // A new picture finds the panel as the engine is told.
    OpenNumbered(90, 60);
    GoTo(EMode::Font);
    EXPECT_EQ(Param().nTextEffect, kTextPlain);
    EXPECT_EQ(Controls().Selection(kTextEffectList), kTextPlain);
    EXPECT_EQ(arrItems[0].strText, "269");
    EXPECT_EQ(Param().byGreen, 200) << "the colour stays";
}

TEST_F(TextArtTest, WithoutAPictureOnlyTheColourIsTaken) {
    GoTo(EMode::Font);
    m_platform.AnswerColor({1, 200, 3});
    Click(kTextColor);
    EXPECT_EQ(m_dialog.TextArt().TextColor(), (CColor{1, 200, 3}));
    m_platform.AnswerFont("宋体", true);
    Click(kTextFont);
    Apply("Ab");
    EXPECT_EQ(m_host.Click(kRadioMesh), "");
    EXPECT_EQ(Param().nWarpKind, kWarpMesh);
    OpenInFont();
    Apply("Ab");
    EXPECT_EQ(Work(), Words("Ab", Param())) << "regular";
}

// A box of words without a margin is seen just where its lines are, at any scale.
TEST_F(TextArtTest, WordsAreSeenWhereTheirLinesAre) {
    for (const CSize size : {CSize{300, 200}, {1300, 1000}}) {
        SCOPED_TRACE(size.cx);
        OpenInFont(size.cx, size.cy);
        EXPECT_EQ(m_host.SelectRow(kTextEffectList, kTextReversed), "");
        Apply("Write in characters");
        Click(kCheckLines);
        const CPoint pt = Handles().Quad()[0];
        EXPECT_EQ(Canvas(pt.x + 2, pt.y + 2), (CColor{217, 40, 200}));
        EXPECT_NE(Canvas(pt.x - 2, pt.y + 2), (CColor{217, 40, 200}));
        EXPECT_NE(Canvas(pt.x + 2, pt.y - 2), (CColor{217, 40, 200}));
        Click(kCheckLines);
    }
}

TEST_F(TextArtTest, LinesAreDrawnOverThePictureAndGoWithoutATrace) {
    OpenInFont(800, 700);
    ASSERT_EQ(Images().DisplaySize(), (CSize{800, 700}));
    Apply("Ab");
    const CPixels shown = m_dialog.Canvas().Surface().Pixels();
    const CPoint ptCorner = Handles().Quad()[0];
    EXPECT_EQ(Canvas(ptCorner.x - 3, ptCorner.y - 3), (CColor{}));
    EXPECT_EQ(Canvas(ptCorner.x + 2, ptCorner.y + 2), (CColor{}));
    EXPECT_NE(Canvas(ptCorner.x - 4, ptCorner.y - 4), (CColor{}));
    int nInk = 0;
    for (int i = 5; i < 105; ++i) nInk += Canvas(ptCorner.x + i, ptCorner.y) == CColor{} ? 1 : 0;
    EXPECT_TRUE(nInk > 40 && nInk < 90) << "dashes and dots, not a whole line";
    Mouse(EMouseAction::Press, ptCorner);
    for (int i = 1; i < 40; ++i) Mouse(EMouseAction::Move, {ptCorner.x - i, ptCorner.y + i % 7});
    EXPECT_NE(m_dialog.Canvas().Surface().Pixels(), shown);
    Mouse(EMouseAction::Move, ptCorner);
    EXPECT_EQ(m_dialog.Canvas().Surface().Pixels(), shown);
    Mouse(EMouseAction::Release, ptCorner);
    // Lines that are not shown cannot be taken hold of.
    Click(kCheckLines);
    EXPECT_NE(Canvas(ptCorner.x - 3, ptCorner.y - 3), (CColor{}));
    Drag(ptCorner, {ptCorner.x - 20, ptCorner.y - 20});
    EXPECT_EQ(Handles().Quad()[0], ptCorner);
    Click(kLabelLines);
    EXPECT_EQ(m_dialog.Canvas().Surface().Pixels(), shown);
}

TEST_F(TextArtTest, NewAndResetBeginAnew) {
    OpenInFont();
    Apply("Ab");
    const CPoint pt = Handles().Quad()[2];
    Drag(pt, {pt.x - 9, pt.y - 9});
    Click(kCmdReset);
    EXPECT_EQ(Work(), m_before);
    EXPECT_EQ(Handles().Quad()[2], pt);
    Click(kCmdNew);
    m_before = Work();
    Apply("z");
    EXPECT_EQ(Work(), Words("z", Param()));
    EXPECT_EQ(Undos(), 1);
}
