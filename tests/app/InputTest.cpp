// Keys, the picture menu, the version plate, the mouse in DRAW.

#include "app/Workshop.h"
#include "resources/ToolTable.h"

namespace {

class InputTest : public Workshop {
  protected:
    void Press(EMouseButton button, CPoint pt) {
        EXPECT_EQ(m_host.MouseOnWindow(EMouseAction::Press, button, pt), "");
        EXPECT_EQ(m_host.MouseOnWindow(EMouseAction::Release, button, pt), "");
    }
    // A right click on the canvas; the items of the menu that came up, if one did.
    std::vector<CMenuItem> MenuItems(int nChoice = 0) {
        m_platform.TakeAsked();
        if (nChoice != 0) m_platform.AnswerMenu(nChoice);
        EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Press, EMouseButton::Right, {5, 5}), "");
        EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Release, EMouseButton::Right, {5, 5}), "");
        if (nChoice == 0) m_platform.TakeProblems();
        const std::vector<CAsked> arrAsked = m_platform.TakeAsked();
        EXPECT_LE(arrAsked.size(), 1U);
        return arrAsked.empty() ? std::vector<CMenuItem>{} : arrAsked[0].arrItems;
    }
};

}  // namespace

TEST_F(InputTest, CtrlKeysNeedAPictureAndTheCtrlKey) {
    for (const int nKey : std::vector<int>{'C', 'V', 'X', 'Y', 'Z'}) EXPECT_FALSE(CtrlKey(nKey));
    OpenNumbered(20, 20);
    Edit(1);
    Edit(2);
    Click(kCmdUndo);
    const CSnapshot before = Snapshot();
    for (const int nKey : std::vector<int>{'C', 'V', 'X', 'Y', 'Z', kKeyDelete})
        EXPECT_FALSE(m_dialog.OnKey({nKey, false, false}));
    for (const int nKey : std::vector<int>{'A', 'B', kKeyDelete}) EXPECT_FALSE(CtrlKey(nKey));
    EXPECT_TRUE(Snapshot() == before);
    // The paint clipboard's keys belong to the controls outside DRAW.
    for (const EMode nMode : kAllModes) {
        GoTo(nMode);
        for (const int nKey : std::vector<int>{'C', 'V', 'X'}) EXPECT_EQ(CtrlKey(nKey), nMode == EMode::Draw);
        // Nothing is selected.
        const CMessageBox copy{kTextNothingToCopy, kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok};
        const CMessageBox cut{kTextNothingToCut, kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok};
        ExpectBoxes(nMode == EMode::Draw ? std::vector{copy, copy, cut} : std::vector<CMessageBox>{});
    }
}

TEST_F(InputTest, TheMenuComesInEffectAndInStickAtThePicturesSize) {
    OpenNumbered(20, 20);
    EXPECT_EQ(MenuItems().size(), 11U);
    GoTo(EMode::Stick);
    EXPECT_EQ(MenuItems().size(), 11U);
    Click(kRadioPhoneSize);
    EXPECT_TRUE(MenuItems().empty());
    // The phone's size matters in STICK only.
    GoTo(EMode::Effect);
    EXPECT_EQ(MenuItems().size(), 11U);
    for (const EMode nMode : {EMode::Font, EMode::Draw}) {
        GoTo(nMode);
        EXPECT_TRUE(MenuItems().empty());
    }
}

TEST_F(InputTest, TheMenuIsGreyOnlyWhereThereIsNoStep) {
    OpenNumbered(20, 20);
    const auto expect = [&](bool bUndo, bool bRedo) {
        const std::vector<CMenuItem> arrItems = MenuItems();
        std::string strTexts;
        for (const CMenuItem& item : arrItems) {
            strTexts += item.strText + "|";
            const bool bGrey = (item.nId == 32782 && !bUndo) || (item.nId == 32783 && !bRedo);
            EXPECT_EQ(item.bEnabled, !bGrey) << item.strText;
        }
        EXPECT_EQ(strTexts, "变更大小|上下|左右|-90°|+90°|扩大|1 : 1|缩小|Undo|Redo|Reset|");
    };
    expect(false, false);
    Edit(1);
    expect(true, false);
    Click(kCmdUndo);
    expect(false, true);
    Edit(1);
    Edit(2);
    Click(kCmdUndo);
    Controls().Enable(kCmdUndo, false);  // the button does not count
    expect(true, true);
}

TEST_F(InputTest, TheVersionPlateAnswersInEveryMode) {
    const CMessageBox box{"Build Date : Dec  7 2005", "Orvo Fotarium Version", EBoxIcon::None,
                          EBoxButtons::Ok};
    OpenNumbered(20, 20);
    for (const EMode nMode : kAllModes) {
        GoTo(nMode);
        for (const CPoint pt : {CPoint{38, 676}, {49, 689}}) {
            Press(EMouseButton::Left, pt);
            ExpectBoxes({box});
        }
        for (const CPoint pt : {CPoint{37, 676}, {50, 680}, {40, 675}, {40, 690}})
            Press(EMouseButton::Left, pt);
        Press(EMouseButton::Right, {40, 680});
        ExpectBoxes({});
    }
}

// A left press beside the controls fetches what the canvas holds, in DRAW only and without an undo step.
TEST_F(InputTest, APressBesideTheControlsFetchesThePaint) {
    OpenNumbered(20, 20);
    for (const EMode nMode : kAllModes) {
        GoTo(nMode);
        PaintOver(Touch(Images().m_imgWork), {3, 3, 3});
        Press(EMouseButton::Right, {20, 400});
        EXPECT_EQ(WorkColor().r, 3);
        Press(EMouseButton::Left, {20, 400});
        EXPECT_EQ(Images().m_imgWork.Pixels() == NumberedPixels(20, 20), nMode == EMode::Draw);
        EXPECT_EQ(Undos(), 0);
        if (nMode != EMode::Draw) Click(kCmdNew);
        OpenNumbered(20, 20);
    }
}

TEST_F(InputTest, TheHelpLineFollowsTheMouseInDraw) {
    OpenNumbered(20, 20);
    GoTo(EMode::Draw);
    const auto helpAt = [&](CPoint pt) {
        EXPECT_EQ(m_host.MouseOnWindow(EMouseAction::Move, EMouseButton::None, pt), "");
        std::string strText = Controls().Text(kHelpLine);
        strText.erase(strText.find_last_not_of(' ') + 1);
        return strText;
    };
    std::string strWanted;
    for (const CToolRow& row : kTools) {
        ASSERT_TRUE(FindHelpText(100 + NumberOf(row.tool), strWanted));
        const CRect rc = Controls().Find(row.nButton)->rcPlace;
        EXPECT_EQ(helpAt({rc.left + 10, rc.top + 10}), strWanted);
    }
    EXPECT_EQ(helpAt({100, 510}), "点击选择前景色");
    EXPECT_EQ(helpAt({215, 500}), "双几左键选择前景色");
    EXPECT_EQ(helpAt({230, 510}), "双几左键选择前景色");  // where the wells overlap
    EXPECT_EQ(helpAt({250, 530}), "双击右键选择背景色");
    EXPECT_EQ(helpAt({241, 503}), "");
    EXPECT_EQ(helpAt({40, 30}), "");
    // In other modes the mouse does not touch the line.
    GoTo(EMode::Font);
    const std::string strFont = Controls().Text(kHelpLine);
    helpAt({40, 30});
    EXPECT_EQ(Controls().Text(kHelpLine), strFont);
}

TEST_F(InputTest, ALabelClickedDoesWhatItsControlDoes) {
    GoTo(EMode::Font);
    EXPECT_TRUE(Controls().IsChecked(kCheckLines));
    Click(kLabelLines);
    EXPECT_FALSE(Controls().IsChecked(kCheckLines));
    Click(kLabelLines);
    EXPECT_TRUE(Controls().IsChecked(kCheckLines));
    Click(kRadioMesh);
    EXPECT_TRUE(Controls().IsChecked(kRadioMesh) && !Controls().IsChecked(kRadioProjection));
}

TEST_F(InputTest, TheCloseBoxEndsWithoutAQuestion) {
    OpenNumbered(20, 20);
    Edit(1);
    m_dialog.OnClose();
    EXPECT_TRUE(m_dialog.HasEnded());
    m_dialog.OnDestroy();
    EXPECT_FALSE(State().m_bImageOpen);
    EXPECT_FALSE(Images().m_imgWork.IsValid());
    EXPECT_EQ(std::pair(Undos(), Redos()), std::pair(0, 0));
    EXPECT_EQ(m_platform.Timers().Count(), 0);
}
