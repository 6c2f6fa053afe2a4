// Flips, turns, sizes and zoom, as a person works them.

#include <functional>

#include "app/Workshop.h"

namespace {

const char* const kSizeRefusal = "以现画面大小显示图片\n\n大小变更，请选择当前照片大小的相框";

CMessageBox SizeError(bool bTooLarge) {
    return {bTooLarge ? "最大以上的大小" : "最小以下的大小", "图像大小变更", EBoxIcon::Stop, EBoxButtons::Ok};
}

class GeometryTest : public Workshop {
  protected:
    CPixels Work() const { return Images().m_imgWork.Pixels(); }
    CPixels Display() const { return Images().m_imgDisplay.Pixels(); }
    CSize DisplaySize() const { return Images().DisplaySize(); }
    void SetSize(CSize size) {
        m_platform.AnswerSize(size);
        Click(kCmdSize);
    }
    // The display is the working image at the display size.
    void ExpectDisplay(CSize size) {
        EXPECT_EQ(DisplaySize(), size);
        EXPECT_EQ(Display(), NaiveResample(Work(), size.cx, size.cy));
    }
};

}  // namespace

TEST_F(GeometryTest, EveryPixelOfAFlipAndATurnIsWhereItBelongsAndComesBack) {
    const std::pair<int, std::function<CPixels(const CPixels&)>> kCommands[] = {
        {kCmdFlipVertical, [](const CPixels& pixels) { return NaiveFlip(pixels, true); }},
        {kCmdFlipHorizontal, [](const CPixels& pixels) { return NaiveFlip(pixels, false); }},
        {kCmdTurnLeft, [](const CPixels& pixels) { return NaiveTurn(pixels, false); }},
        {kCmdTurnRight, [](const CPixels& pixels) { return NaiveTurn(pixels, true); }},
    };
    for (const CSize size : {CSize{60, 40}, CSize{23, 71}, CSize{1, 1}}) {
        for (const auto& [nCommand, fnNaive] : kCommands) {
            for (const EMode nMode : {EMode::Effect, EMode::Stick, EMode::Draw}) {
                SCOPED_TRACE(testing::Message() << size.cx << " command " << nCommand << " mode " << nMode);
                OpenNumbered(size.cx, size.cy);
                // The display size goes its own way.
                if (size.cx > 1) SetSize({300, 200});
                const CSize sizeBefore = DisplaySize();
                const int nUndos = Undos();
                GoTo(nMode);
                const CPixels before = Work();
                Click(nCommand);
                const CPixels after = fnNaive(before);
                EXPECT_EQ(Work(), after);
                const bool bTurn = nCommand == kCmdTurnLeft || nCommand == kCmdTurnRight;
                const CSize sizeAfter = bTurn ? CSize{sizeBefore.cy, sizeBefore.cx} : sizeBefore;
                ExpectDisplay(sizeAfter);
                if (nMode == EMode::Draw) {
                    EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), after);
                }
                EXPECT_EQ(Undos(), nUndos + 1);
                Click(kCmdUndo);
                EXPECT_EQ(Work(), before);
                EXPECT_EQ(DisplaySize(), sizeBefore);
                Click(kCmdRedo);
                EXPECT_EQ(Work(), after);
                EXPECT_EQ(DisplaySize(), sizeAfter);
                EXPECT_EQ(Images().m_imgOpened.Pixels(), NumberedPixels(size.cx, size.cy));
            }
        }
    }
}

TEST_F(GeometryTest, LargeAndSmallStepFromTheTruncatedSizeAndNeverTouchTheWorkingImage) {
    OpenNumbered(640, 480);
    const CSize kChain[] = {{640, 480}, {800, 600}, {1000, 750}, {1250, 937}, {1562, 1171}, {1952, 1463}};
    for (std::size_t n = 1; n < std::size(kChain); ++n) {
        Click(kCmdLarge);
        ExpectDisplay(kChain[n]);
    }
    for (std::size_t n = std::size(kChain) - 1; n-- > 0;) {
        Click(kCmdUndo);
        ExpectDisplay(kChain[n]);
    }
    Click(kCmdSmall);
    ExpectDisplay({480, 360});
    Click(kCmdSmall);
    ExpectDisplay({360, 270});
    EXPECT_EQ(Work(), NumberedPixels(640, 480));

    struct CCase {
        CSize size;
        int nCommand;
        CSize sizeNew;
        bool bRefused;
    };
    const CCase kCases[] = {
        {{2600, 1950}, kCmdLarge, {2600, 1950}, true}, {{2560, 1920}, kCmdLarge, {3200, 2400}, false},
        {{20, 2561}, kCmdLarge, {20, 2561}, true},     {{20, 2560}, kCmdLarge, {25, 3200}, false},
        {{27, 27}, kCmdSmall, {27, 27}, true},         {{28, 28}, kCmdSmall, {21, 21}, false},
        {{400, 27}, kCmdSmall, {400, 27}, true},       {{29, 400}, kCmdSmall, {21, 300}, false},
        {{3200, 20}, kCmdLarge, {3200, 20}, true},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(testing::Message() << test.size.cx << " by " << test.size.cy);
        OpenNumbered(64, 48);
        SetSize(test.size);
        Click(test.nCommand);
        ExpectDisplay(test.sizeNew);
        std::vector<CMessageBox> arrBoxes;
        if (test.bRefused) arrBoxes.push_back(SizeError(test.nCommand == kCmdLarge));
        ExpectBoxes(arrBoxes);
        // A refused step can be undone all the same.
        EXPECT_EQ(Undos(), 2);
        Click(kCmdUndo);
        ExpectDisplay(test.size);
        EXPECT_EQ(Redos(), 1);
    }
    // A picture that is larger as opened than Large allows, and one that is smaller than Small does.
    for (const CSize size : {CSize{3300, 10}, CSize{1, 1}}) {
        OpenNumbered(size.cx, size.cy);
        Click(size.cx > 1 ? kCmdLarge : kCmdSmall);
        ExpectBoxes({SizeError(size.cx > 1)});
        ExpectDisplay(size);
    }
}

TEST_F(GeometryTest, TheSizeDialogTakesSizesWithinItsLimits) {
    struct CCase {
        const char* szWidth;
        const char* szHeight;
        int nResult;  // 0: taken, 1: too large, -1: too small
    };
    const CCase kCases[] = {
        {"20", "20", 0},    {"3200", "3200", 0}, {"19", "400", -1},         {"400", "19", -1},
        {"3201", "10", 1},  {"10", "3201", 1},   {"3201", "3201", 1},       {"0", "100", -1},
        {"-1", "100", -1},  {"100", "", -1},     {"99999999999", "100", 1}, {"100", "-99999999999", -1},
        {"abc", "def", -1}, {"3200", "20", 0},   {"300", "200", 0},
    };
    OpenNumbered(60, 40);
    CSize sizeNow{60, 40};
    int nUndos = 0;
    for (const CCase& test : kCases) {
        SCOPED_TRACE(std::string(test.szWidth) + " by " + test.szHeight);
        m_platform.AnswerSize(test.szWidth, test.szHeight);
        Click(kCmdSize);
        if (test.nResult == 0) {
            sizeNow = {std::stoi(test.szWidth), std::stoi(test.szHeight)};
            ++nUndos;
            ExpectBoxes({});
        } else {
            ExpectBoxes({SizeError(test.nResult > 0)});
        }
        ExpectDisplay(sizeNow);
        EXPECT_EQ(Undos(), nUndos);
        EXPECT_EQ(Work(), NumberedPixels(60, 40));
    }
    // What is shown is what is saved.
    SaveAs(m_folder.Path("sized.png"));
    EXPECT_EQ(CxImage(m_folder.Path("sized.png"), ImageType::kPng).GetSize(), (CSize{300, 200}));
    m_platform.AnswerCancel();
    Click(kCmdSize);
    ExpectDisplay({300, 200});
}

TEST_F(GeometryTest, ActualGoesBackToTheOpenedSizeTurnedAsTheDisplayIs) {
    struct CCase {
        CSize sizeOpened;
        CSize sizeDisplay;
        int nTurns;
        CSize sizeActual;
    };
    const CCase kCases[] = {
        {{64, 48}, {320, 240}, 0, {64, 48}}, {{64, 48}, {320, 240}, 1, {48, 64}},
        {{64, 48}, {320, 240}, 2, {64, 48}}, {{64, 48}, {200, 200}, 0, {48, 64}},  // square counts as upright
        {{48, 64}, {50, 300}, 0, {48, 64}},  {{48, 64}, {300, 50}, 0, {64, 48}},
        {{50, 50}, {90, 20}, 1, {50, 50}},
    };
    for (const CCase& test : kCases) {
        SCOPED_TRACE(testing::Message() << test.sizeDisplay.cx << " turned " << test.nTurns);
        OpenNumbered(test.sizeOpened.cx, test.sizeOpened.cy);
        SetSize(test.sizeDisplay);
        for (int n = 0; n < test.nTurns; ++n) Click(kCmdTurnRight);
        const CPixels before = Work();
        const CSize sizeBefore = DisplaySize();
        Click(kCmdActual);
        // The working image takes that size too.
        EXPECT_EQ(Work(), NaiveResample(before, test.sizeActual.cx, test.sizeActual.cy));
        ExpectDisplay(test.sizeActual);
        Click(kCmdUndo);
        EXPECT_EQ(Work(), before);
        ExpectDisplay(sizeBefore);
    }
}

TEST_F(GeometryTest, UnderThePhoneSizeRuleFlipsRunAndTheRestIsRefused) {
    OpenNumbered(60, 40);
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    const CPixels before = Work();
    Click(kCmdFlipVertical);
    EXPECT_EQ(Work(), NaiveFlip(before, true));
    EXPECT_EQ(Display(), NaiveResample(Work(), 176, 144));
    EXPECT_EQ(DisplaySize(), (CSize{60, 40}));
    const std::pair<int, const char*> kRefused[] = {
        {kCmdSize, kSizeRefusal},
        {kCmdLarge, kSizeRefusal},
        {kCmdActual, kSizeRefusal},
        {kCmdSmall, kSizeRefusal},
        {kCmdTurnLeft, "以现画面大小显示图片\n\n照片翻转(-90°)，请选择当前照片大小的相框"},
        {kCmdTurnRight, "以现画面大小显示图片\n\n照片翻转(+90°)，请选择当前照片大小的相框"},
    };
    for (const EMode nMode : {EMode::Stick, EMode::Effect}) {
        GoTo(nMode);
        const CSnapshot snapshot = Snapshot();
        for (const auto& [nCommand, szText] : kRefused) {
            Click(nCommand);
            ExpectBoxes({{szText, "注意", EBoxIcon::Exclamation, EBoxButtons::Ok}});
            EXPECT_TRUE(Snapshot() == snapshot) << nCommand;
        }
    }
    // The step of the flip carries the phone's size, and so does the display behind its undo.
    Click(kCmdUndo);
    EXPECT_EQ(DisplaySize(), (CSize{176, 144}));
    EXPECT_EQ(Work(), before);
    // In DRAW a flip keeps the paper's own size.
    GoTo(EMode::Draw);
    Click(kCmdFlipHorizontal);
    EXPECT_EQ(Work(), NaiveFlip(before, false));
    EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), Work());
}

TEST_F(GeometryTest, AnItemOfThePictureMenuDoesWhatItsButtonDoes) {
    const std::pair<int, int> kItems[] = {
        {kMenuSize, kCmdSize},
        {kMenuFlipVertical, kCmdFlipVertical},
        {kMenuFlipHorizontal, kCmdFlipHorizontal},
        {kMenuTurnLeft, kCmdTurnLeft},
        {kMenuTurnRight, kCmdTurnRight},
        {kMenuLarge, kCmdLarge},
        {kMenuActual, kCmdActual},
        {kMenuSmall, kCmdSmall},
    };
    for (const auto& [nItem, nCommand] : kItems) {
        for (const EMode nMode : {EMode::Effect, EMode::Stick}) {
            CSnapshot snapshots[2];
            for (const bool bMenu : {false, true}) {
                OpenNumbered(60, 40);
                SetSize({90, 80});
                GoTo(nMode);
                if (nCommand == kCmdSize) m_platform.AnswerSize({30, 31});
                if (bMenu) m_platform.AnswerMenu(nItem);
                if (bMenu)
                    EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Press, EMouseButton::Right, {5, 5}),
                              "");
                else
                    Click(nCommand);
                snapshots[bMenu ? 1 : 0] = Snapshot();
            }
            EXPECT_EQ(snapshots[0].nUndo, 2);
            EXPECT_TRUE(snapshots[0] == snapshots[1]) << nItem << " in mode " << nMode;
        }
    }
}
