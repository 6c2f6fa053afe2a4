#include "app/ControlDesk.h"

#include <gtest/gtest.h>

#include <string>

#include "app/WantedKeys.h"
#include "resources/MainDialog.h"

namespace {

using enum EEditEvent;

class ControlDeskTest : public testing::Test {
  protected:
    ControlDeskTest()
        : m_controls(kMainDialog.arrControls),
          m_desk({m_state, m_images, m_selection, m_controls, [this] { return m_bConnected; }}) {
        m_state.m_bImageOpen = true;
    }
    void Enter(EMode mode) {
        m_state.m_nMode = mode;
        m_desk.EnterMode();
    }
    void Tell(std::initializer_list<EEditEvent> events) {
        for (const EEditEvent event : events) m_desk.Tell(event);
    }
    // A letter a key: 'x' for one that is on.
    std::string On(std::initializer_list<int> ids) const {
        std::string strOn;
        for (const int nId : ids) strOn += m_controls.IsEnabled(nId) ? 'x' : '-';
        return strOn;
    }
    std::string History() const { return On({kCmdUndo, kCmdRedo}); }

    CEditState m_state;
    CWorkingImages m_images;
    CSelection m_selection;
    CControlSet m_controls;
    bool m_bConnected = false;
    CControlDesk m_desk;
};

char LetterOf(EKey key) {
    return std::string(".+-urcpnsi")[static_cast<std::size_t>(key)];
}

}  // namespace

TEST(CommandTable, IsTheOneThatWasWrittenByHand) {
    ASSERT_EQ(std::size(kCommandTable), std::size(kWantedKeys));
    for (std::size_t i = 0; i < std::size(kWantedKeys); ++i) {
        const CCommandRow& row = kCommandTable[i];
        std::string strRow;
        for (const EKey key : {row.thum, row.effect, row.stick, row.font, row.draw}) strRow += LetterOf(key);
        strRow += ' ';
        for (const EKey key : {row.previewBegun, row.previewEnded, row.previewDropped})
            strRow += LetterOf(key);
        EXPECT_EQ(row.nId, kWantedKeys[i].nId);
        EXPECT_EQ(strRow, kWantedKeys[i].szRow) << row.nId;
    }
}

// A push lights its key and the last step that goes puts it out, whatever the mode or a preview says
// meanwhile.
TEST_F(ControlDeskTest, StepsLightAndPutOutTheirKeys) {
    m_images.m_stackUndo.Push({});
    m_images.m_stackUndo.Push({});
    Enter(EMode::Effect);
    EXPECT_EQ(History(), "x-");
    Tell({LevelPreviewBegun});
    EXPECT_EQ(History(), "--");
    m_images.m_stackUndo.Pop();
    m_images.m_stackRedo.Push({});
    Tell({RedoPushed});
    EXPECT_EQ(History(), "-x");
    Tell({PreviewEnded});
    EXPECT_EQ(History(), "xx");
    Enter(EMode::Thum);
    EXPECT_EQ(History(), "--");
    Tell({UndoPushed});
    EXPECT_EQ(History(), "x-");
    Tell({RedoPushed, UndoEmptied, RedoEmptied});
    EXPECT_EQ(History(), "--");
}

TEST_F(ControlDeskTest, APreviewTakesTheKeysAndGivesThemBack) {
    const auto keys = {kCmdReset, kCmdNew, kCmdSize, kCmdSend, kCmdTake, kCmdConnect};
    Enter(EMode::Effect);
    EXPECT_EQ(On(keys), "xxx--x");
    m_bConnected = true;
    Tell({PhoneFound});
    EXPECT_EQ(On(keys), "xxxxx-");
    for (const EEditEvent begun : {PreviewBegun, LevelPreviewBegun}) {
        const bool bLevel = begun == LevelPreviewBegun;
        Tell({begun});
        EXPECT_EQ(On(keys), "------");
        EXPECT_TRUE(m_controls.IsShown(kConfirm) && m_controls.IsShown(kCancel));
        EXPECT_EQ(m_controls.IsShown(kEffectSlider), bLevel);
        EXPECT_EQ(m_controls.IsEnabled(kEffectSlider), bLevel);
        Tell({PreviewEnded});
        EXPECT_EQ(On(keys), "xxxxx-");
        EXPECT_FALSE(m_controls.IsShown(kConfirm) || m_controls.IsShown(kEffectPreview));
        EXPECT_FALSE(m_controls.IsShown(kEffectSlider) || m_controls.IsEnabled(kEffectSlider));
    }
    Tell({LevelMoved});
    EXPECT_EQ(On(keys), "-xxxx-");
    // What no mode's own row would bring back comes back with the drop.
    Tell({LevelPreviewBegun, PreviewDropped});
    Enter(EMode::Font);
    EXPECT_EQ(On(keys), "xx-xx-");
    m_bConnected = false;
    Tell({PhoneLost});
    EXPECT_EQ(On(keys), "xx---x");
}

// With nothing to send a connect leaves Send off; what has only come back does not put it out.
TEST_F(ControlDeskTest, ThePhoneSwitchesItsThree) {
    const auto keys = {kCmdConnect, kCmdTake, kCmdSend};
    m_state.m_bImageOpen = false;
    Enter(EMode::Stick);
    for (const auto& [event, szKeys] :
         {std::pair{PhoneFound, "-x-"}, {PhoneLost, "x--"}, {PhoneReady, "xx-"}, {TakeLineFailed, "x--"}}) {
        Tell({event});
        EXPECT_EQ(On(keys), szKeys);
    }
    m_state.m_nMode = EMode::Thum;
    Tell({PhoneFound, PhoneReady});
    EXPECT_EQ(On(keys), "-xx");
    Tell({SendLineFailed});
    EXPECT_EQ(On(keys), "-x-");
    m_state.m_bImageOpen = true;
    Tell({PhoneReady});
    EXPECT_EQ(On(keys), "-xx");
}

TEST_F(ControlDeskTest, SelectionAndClipboardSwitchTheirFour) {
    const auto keys = {kCmdCut, kCmdCopy, kCmdPaste, kCmdCrop};
    Enter(EMode::Draw);
    EXPECT_EQ(On(keys), "----");
    Tell({SelectionMade});
    EXPECT_EQ(On(keys), "xx-x");
    Tell({ClipFilled});
    EXPECT_EQ(On(keys), "xxxx");
    Tell({SelectionGone});
    EXPECT_EQ(On(keys), "--x-");
    Tell({SelectionMade, Cropped});
    EXPECT_EQ(On(keys), "----");
    m_selection.SetClipReady();
    Enter(EMode::Effect);
    EXPECT_EQ(On(keys), "----");
    Enter(EMode::Draw);
    EXPECT_EQ(On(keys), "--x-");
}

TEST_F(ControlDeskTest, WithoutAPictureAModeSwitchesOnlySend) {
    m_state.m_bImageOpen = false;
    m_bConnected = true;
    for (const EMode mode : {EMode::Effect, EMode::Stick, EMode::Font, EMode::Draw}) {
        Enter(EMode::Thum);
        EXPECT_EQ(On({kCmdOpen, kCmdNew, kCmdSave, kCmdSend}), "xx-x");
        Enter(mode);
        EXPECT_EQ(On({kCmdOpen, kCmdNew, kCmdSave, kCmdSend}), "xx--");
        EXPECT_FALSE(m_controls.IsShown(kCanvas) || m_controls.IsShown(kFileList));
    }
}

// The bar belongs to a fill, and is seen in THUM only.
TEST_F(ControlDeskTest, ListCanvasAndProgressFollowTheBrowser) {
    const auto shown = [this] {
        std::string strShown;
        for (const int nId : {kFileList, kCanvas, kProgress}) strShown += m_controls.IsShown(nId) ? 'x' : '-';
        return strShown;
    };
    Enter(EMode::Effect);
    Tell({FillBegun});
    EXPECT_EQ(shown(), "-x-");
    Enter(EMode::Thum);
    EXPECT_EQ(shown(), "x-x");
    Tell({FileShown});
    EXPECT_EQ(shown(), "x--");
    Tell({FillBegun, FolderShown});
    EXPECT_EQ(shown(), "x-x");
    Tell({FillEnded});
    EXPECT_EQ(shown(), "x--");
}
