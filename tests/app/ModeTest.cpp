#include <set>

#include "app/WantedKeys.h"
#include "app/Workshop.h"
#include "resources/ToolTable.h"

namespace {

std::size_t ColumnOf(EMode nMode) {
    constexpr std::size_t kColumns[] = {0, 4, 1, 3, 2};
    return kColumns[static_cast<std::size_t>(nMode)];
}

// What is seen beside the top bar, tabs and info lines.
std::set<int> PanelOf(EMode nMode, bool bOpen) {
    std::set<int> setIds;
    switch (nMode) {
        case EMode::Thum:
            return {kFolderTree, kFileList};
        case EMode::Effect:
            setIds = {kEffectList, kEffectPreview, kEffectLevel};
            break;
        case EMode::Stick:
            setIds = {1139, 1146, 1187, 1188, 1246, 1247};
            break;
        case EMode::Font:
            setIds = {1050, 1051, 1052, 1053, 1054, 1248, 1249, 1057, 1064,
                      1058, 1148, 1150, 1151, 1119, 1250, 1122, 1121, 1028};
            break;
        default:
            for (int nId = 1168; nId <= 1184; ++nId) setIds.insert(nId);
    }
    if (bOpen) setIds.insert(kCanvas);
    if (bOpen && (nMode == EMode::Draw || nMode == EMode::Font)) setIds.insert(kHelpLine);
    return setIds;
}

class ModeTest : public Workshop {
  protected:
    void ExpectCommands(EMode nMode) {
        for (const CWantedKey& key : kWantedKeys) {
            const char cRule = key.szRow[ColumnOf(nMode)];
            bool bOn = cRule == '+' || (cRule == 'u' && Undos() > 0) || (cRule == 'r' && Redos() > 0);
            const bool bAlways = key.nId == kCmdOpen || key.nId == kCmdNew || key.nId == kCmdConnect;
            if (bAlways || !State().m_bImageOpen) bOn = bAlways;
            EXPECT_EQ(Controls().IsEnabled(key.nId), bOn) << "command " << key.nId << " in mode " << nMode;
        }
    }

    void ExpectLooks(EMode nMode) {
        const bool bOpen = State().m_bImageOpen;
        std::set<int> setWanted = PanelOf(nMode, bOpen);
        for (const CWantedKey& key : kWantedKeys) setWanted.insert(key.nId);
        for (const EMode nTabMode : kAllModes)
            if (nTabMode != nMode) setWanted.insert(TabOf(nTabMode));
        std::set<int> setShown;
        for (const CControl& control : Controls().All())
            if (control.bShown) setShown.insert(control.nId);
        // The lines of the browsed file belong to what is clicked in THUM; those of the edit to a picture.
        for (const int nId : {kBrowseName, kBrowseSize, kBrowseDepth}) setShown.erase(nId);
        const bool bLines = nMode != EMode::Thum && bOpen;
        for (const int nId : {kInfoName, kInfoSize, kInfoDepth}) {
            EXPECT_EQ(setShown.erase(nId) > 0, bLines) << nId;
            EXPECT_FALSE(bLines && Controls().IsShown(kBrowseName));
        }
        EXPECT_EQ(setShown, setWanted) << "mode " << nMode;
    }

    void ExpectFlags(EMode nMode) {
        const bool bOpen = State().m_bImageOpen;
        EXPECT_EQ(State().m_nMode, nMode);
        EXPECT_EQ(State().IsUp(EMode::Thum), nMode == EMode::Thum);
        EXPECT_EQ(State().IsUp(EMode::Draw), nMode == EMode::Draw);
        EXPECT_EQ(State().IsAtWork(EMode::Effect), bOpen && nMode == EMode::Effect);
        EXPECT_EQ(State().IsAtWork(EMode::Font), bOpen && nMode == EMode::Font);
        EXPECT_EQ(State().IsAtWork(EMode::Stick), bOpen && nMode == EMode::Stick);
        EXPECT_EQ(m_dialog.Lines().IsEditInfo(), bOpen && nMode != EMode::Thum);
    }

    void ExpectFocus(EMode nMode) {
        const bool bOpen = State().m_bImageOpen;
        const int nFocus = Controls().Focus();
        const int nRadio = Images().IsPhoneSize() ? kRadioPhoneSize : kRadioImageSize;
        EXPECT_TRUE(nMode != EMode::Effect || nFocus == kEffectList);
        EXPECT_TRUE(nMode != EMode::Stick || !bOpen || nFocus == nRadio);
        EXPECT_TRUE(nMode != EMode::Draw || FindTool(nFocus));
    }

    void ExpectAll(EMode nMode) {
        ExpectCommands(nMode);
        ExpectLooks(nMode);
        ExpectFlags(nMode);
        ExpectFocus(nMode);
    }

    // Every mode after every other.
    void WalkAllPairs() {
        for (const EMode nFrom : kAllModes)
            for (const EMode nTo : kAllModes) {
                GoTo(nFrom);
                SCOPED_TRACE(testing::Message() << "from " << nFrom << " to " << nTo);
                GoTo(nTo);
                ExpectAll(nTo);
            }
    }
};

}  // namespace

TEST_F(ModeTest, StartsInThumWithNothingOpen) {
    ExpectAll(EMode::Thum);
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
    ExpectAll(EMode::Effect);
    WalkAllPairs();
    Edit(10);
    Edit(20);
    WalkAllPairs();  // something to undo
    GoTo(EMode::Effect);
    Click(kCmdUndo);
    WalkAllPairs();  // to undo and to redo
    GoTo(EMode::Effect);
    Click(kCmdUndo);
    EXPECT_EQ(Undos(), 0);
    WalkAllPairs();  // to redo only
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    WalkAllPairs();  // under the phone's size
    EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(60, 40));
}

// The display image in each mode: ruled size, fitted, or the full working image.
TEST_F(ModeTest, DisplayImageFollowsTheMode) {
    OpenNumbered(700, 500);
    const CPixels work = NumberedPixels(700, 500);
    const auto expectSize = [&](EMode nMode, CSize size) {
        GoTo(nMode);
        EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(work, size.cx, size.cy)) << nMode;
        EXPECT_EQ(Images().DisplaySize(), (CSize{700, 500}));
    };
    for (const bool bPhone : {false, true}) {
        const CSize sizeRuled = bPhone ? CSize{176, 144} : CSize{700, 500};
        for (const EMode nBefore : kAllModes) {
            for (const EMode nMode : {EMode::Effect, EMode::Stick}) {
                GoTo(nBefore);
                expectSize(nMode, sizeRuled);
            }
            GoTo(nBefore);
            expectSize(EMode::Font, {649, 464});  // 659/710
        }
        GoTo(EMode::Draw);
        EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), work);
        GoTo(EMode::Stick);
        if (!bPhone) Click(kRadioPhoneSize);
    }
    EXPECT_EQ(Images().m_imgOpened.Pixels(), work);
}
