#include <set>

#include "app/Workshop.h"
#include "resources/ToolTable.h"

namespace {

// When a command is on, a letter a mode in the order THUM, EFFECT, STICK, FONT, DRAW: '+' on, '-' off, 'u'
// with an undo step, 'r' with a redo step.
struct CCommandRow {
    std::vector<int> arrIds;
    const char* szModes;
};
const CCommandRow kCommands[] = {
    {{kCmdOpen, kCmdNew, kCmdConnect}, "+++++"},
    {{kCmdSave, kCmdPrint, kCmdReset}, "-++++"},
    {{kCmdUndo}, "-uuuu"},
    {{kCmdRedo}, "-rrrr"},
    {{kCmdCut, kCmdCopy, kCmdPaste, kCmdCrop}, "-----"},
    {{kCmdSize, kCmdLarge, kCmdActual, kCmdSmall}, "-++--"},
    {{kCmdFlipVertical, kCmdFlipHorizontal, kCmdTurnLeft, kCmdTurnRight}, "-++-+"},
    {{kCmdSend, kCmdTake}, "-----"},  // no phone
};

std::size_t ColumnOf(int nMode) {
    constexpr std::size_t kColumns[] = {0, 4, 1, 3, 2};
    return kColumns[nMode];
}

// What is seen beside the top bar, tabs and info lines.
std::set<int> PanelOf(int nMode, bool bOpen) {
    std::set<int> setIds;
    switch (nMode) {
        case kModeThum:
            return {kFolderTree, kFileList};
        case kModeEffect:
            setIds = {kEffectList, kEffectPreview, kEffectLevel};
            break;
        case kModeStick:
            setIds = {1139, 1146, 1187, 1188, 1246, 1247};
            break;
        case kModeFont:
            setIds = {1050, 1051, 1052, 1053, 1054, 1248, 1249, 1057, 1064,
                      1058, 1148, 1150, 1151, 1119, 1250, 1122, 1121, 1028};
            break;
        default:
            for (int nId = 1168; nId <= 1184; ++nId) setIds.insert(nId);
    }
    if (bOpen) setIds.insert(kCanvas);
    if (bOpen && (nMode == kModeDraw || nMode == kModeFont)) setIds.insert(kHelpLine);
    return setIds;
}

class ModeTest : public Workshop {
  protected:
    void ExpectCommands(int nMode) {
        for (const CCommandRow& row : kCommands)
            for (const int nId : row.arrIds) {
                const char cRule = row.szModes[ColumnOf(nMode)];
                bool bOn = cRule == '+' || (cRule == 'u' && Undos() > 0) || (cRule == 'r' && Redos() > 0);
                if (!State().m_bImageOpen && nId != kCmdOpen && nId != kCmdNew && nId != kCmdConnect)
                    bOn = false;
                EXPECT_EQ(Controls().IsEnabled(nId), bOn) << "command " << nId << " in mode " << nMode;
            }
    }

    void ExpectLooks(int nMode) {
        const bool bOpen = State().m_bImageOpen;
        std::set<int> setWanted = PanelOf(nMode, bOpen);
        for (const CCommandRow& row : kCommands) setWanted.insert(row.arrIds.begin(), row.arrIds.end());
        for (const int nTabMode : kAllModes)
            if (nTabMode != nMode) setWanted.insert(TabOf(nTabMode));
        std::set<int> setShown;
        for (const CControl& control : Controls().All())
            if (control.bShown) setShown.insert(control.nId);
        // The lines of the browsed file belong to what is clicked in THUM; those of the edit to a picture.
        for (const int nId : {kBrowseName, kBrowseSize, kBrowseDepth}) setShown.erase(nId);
        const bool bLines = nMode != kModeThum && bOpen;
        for (const int nId : {kInfoName, kInfoSize, kInfoDepth}) {
            EXPECT_EQ(setShown.erase(nId) > 0, bLines) << nId;
            EXPECT_FALSE(bLines && Controls().IsShown(kBrowseName));
        }
        EXPECT_EQ(setShown, setWanted) << "mode " << nMode;
    }

    void ExpectFlags(int nMode) {
        const bool bOpen = State().m_bImageOpen;
        EXPECT_EQ(State().m_nMode, nMode);
        EXPECT_EQ(State().m_nLastMode, nMode);
        EXPECT_EQ(State().m_bThumbMode, nMode == kModeThum);
        EXPECT_EQ(State().m_bDrawMode, nMode == kModeDraw);
        EXPECT_EQ(State().m_bEffectMode, bOpen && nMode == kModeEffect);
        EXPECT_EQ(State().m_bFontMode, bOpen && nMode == kModeFont);
        EXPECT_EQ(State().m_bStickMode, bOpen && nMode == kModeStick);
        EXPECT_EQ(State().m_bEditSource, bOpen && nMode != kModeThum);
        EXPECT_EQ(State().m_bEditInfo, bOpen && nMode != kModeThum);
    }

    void ExpectFocus(int nMode) {
        const bool bOpen = State().m_bImageOpen;
        const int nFocus = Controls().Focus();
        const int nRadio = Images().m_bPhoneSize ? kRadioPhoneSize : kRadioImageSize;
        EXPECT_TRUE(nMode != kModeEffect || nFocus == kEffectList);
        EXPECT_TRUE(nMode != kModeStick || !bOpen || nFocus == nRadio);
        EXPECT_TRUE(nMode != kModeDraw || FindTool(nFocus) != 0);
    }

    void ExpectAll(int nMode) {
        ExpectCommands(nMode);
        ExpectLooks(nMode);
        ExpectFlags(nMode);
        ExpectFocus(nMode);
    }

    // Every mode after every other.
    void WalkAllPairs() {
        for (const int nFrom : kAllModes)
            for (const int nTo : kAllModes) {
                GoTo(nFrom);
                SCOPED_TRACE("from " + std::to_string(nFrom) + " to " + std::to_string(nTo));
                GoTo(nTo);
                ExpectAll(nTo);
            }
    }
};

}  // namespace

TEST_F(ModeTest, StartsInThumWithNothingOpen) {
    ExpectAll(kModeThum);
    EXPECT_TRUE(Controls().IsChecked(kCheckLines));
    EXPECT_TRUE(Controls().IsChecked(kRadioProjection) && !Controls().IsChecked(kRadioMesh));
    EXPECT_TRUE(Controls().IsChecked(kRadioImageSize) && !Controls().IsChecked(kRadioPhoneSize));
    EXPECT_EQ(Controls().Text(kTextInput), "Write in characters");
    EXPECT_EQ(Controls().Find(kTextInput)->nMaxText, 22);
}

TEST_F(ModeTest, AnyModeFollowsAnyWithoutAPicture) {
    WalkAllPairs();
}

TEST_F(ModeTest, AnyModeFollowsAnyWithAPicture) {
    OpenNumbered(60, 40);
    ExpectAll(kModeEffect);
    WalkAllPairs();
    Edit(10);
    Edit(20);
    WalkAllPairs();  // something to undo
    GoTo(kModeEffect);
    Click(kCmdUndo);
    WalkAllPairs();  // to undo and to redo
    GoTo(kModeEffect);
    Click(kCmdUndo);
    EXPECT_EQ(Undos(), 0);
    WalkAllPairs();  // to redo only
    GoTo(kModeStick);
    Click(kRadioPhoneSize);
    WalkAllPairs();  // under the phone's size
    EXPECT_EQ(Images().m_pImgWork->Pixels(), NumberedPixels(60, 40));
}

TEST_F(ModeTest, HistoryButtonsFollowTheirCounts) {
    OpenNumbered(20, 20);
    Edit(1);
    for (const int nMode : {kModeStick, kModeEffect, kModeFont, kModeDraw}) {
        GoTo(nMode);
        ExpectCommands(nMode);
        Click(kCmdUndo);
        ExpectCommands(nMode);
        EXPECT_TRUE(Controls().IsEnabled(kCmdRedo) && !Controls().IsEnabled(kCmdUndo));
        Click(kCmdRedo);
        ExpectCommands(nMode);
        EXPECT_TRUE(Controls().IsEnabled(kCmdUndo) && !Controls().IsEnabled(kCmdRedo));
    }
}

TEST_F(ModeTest, SliderAndLevelRestOnEntryToEffect) {
    OpenNumbered(20, 20);
    Controls().SetPosition(kEffectSlider, 3);
    Controls().SetText(kEffectLevel, "97");
    GoTo(kModeStick);
    EXPECT_EQ(Controls().Text(kEffectLevel), "     ");
    GoTo(kModeEffect);
    const CControl& slider = *Controls().Find(kEffectSlider);
    EXPECT_EQ((std::vector{slider.nMin, slider.nMax, slider.nPos}), (std::vector{-100, 100, 100}));
    EXPECT_FALSE(slider.bEnabled || slider.bShown);
    EXPECT_TRUE(State().m_bNoEffectLevel);
    EXPECT_FALSE(State().m_bEffectPending);
}

// The display image in each mode: ruled size, fitted, or the full working image.
TEST_F(ModeTest, DisplayImageFollowsTheMode) {
    OpenNumbered(700, 500);
    const CPixels work = NumberedPixels(700, 500);
    const auto expectSize = [&](int nMode, CSize size) {
        GoTo(nMode);
        EXPECT_EQ(Images().m_pImgDisplay->Pixels(), NaiveResample(work, size.cx, size.cy)) << nMode;
        EXPECT_EQ(Images().DisplaySize(), (CSize{700, 500}));
    };
    for (const bool bPhone : {false, true}) {
        const CSize sizeRuled = bPhone ? CSize{176, 144} : CSize{700, 500};
        for (const int nBefore : kAllModes) {
            for (const int nMode : {kModeEffect, kModeStick}) {
                GoTo(nBefore);
                expectSize(nMode, sizeRuled);
            }
            GoTo(nBefore);
            expectSize(kModeFont, {649, 464});  // 659/710
        }
        GoTo(kModeDraw);
        EXPECT_EQ(m_dialog.Canvas().Paper().Committed().Pixels(), work);
        GoTo(kModeStick);
        if (!bPhone) Click(kRadioPhoneSize);
    }
    EXPECT_EQ(Images().m_pImgOpened->Pixels(), work);
}

TEST_F(ModeTest, DrawBeginsWithTheMagnifierAtOneToOne) {
    OpenNumbered(20, 20);
    for (const int nMode : {kModeThum, kModeEffect, kModeFont, kModeStick}) {
        GoTo(nMode);
        GoTo(kModeDraw);
        EXPECT_EQ(m_dialog.Tools().CurrentTool(), 10);
        EXPECT_EQ(m_dialog.Tools().State().m_nZoom, 1);
    }
}

// Paint goes with every way out of DRAW but that to THUM; an untouched visit changes nothing.
TEST_F(ModeTest, AVisitToDrawLeavesThePixels) {
    OpenNumbered(61, 43);
    for (const int nMode : {kModeThum, kModeEffect, kModeFont, kModeStick}) {
        GoTo(kModeDraw);
        PaintOver(*Images().m_pImgWork, {1, 2, 3});  // the canvas has the picture, whatever this one holds
        GoTo(nMode);
        const bool bFetched = Images().m_pImgWork->Pixels() == NumberedPixels(61, 43);
        EXPECT_EQ(bFetched, nMode != kModeThum);
        if (!bFetched) OpenNumbered(61, 43);
    }
    EXPECT_EQ(Undos(), 0);
}
