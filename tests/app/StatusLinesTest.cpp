#include "app/StatusLines.h"

#include "app/Workshop.h"
#include "resources/MainDialog.h"

namespace {

class StatusLinesTest : public testing::Test {
  protected:
    StatusLinesTest()
        : m_controls(kMainDialog.arrControls),
          m_desk({m_state, m_images, m_selection, m_controls, [] { return false; }}),
          m_lines(m_state, m_images, m_controls, m_desk) {}

    void ExpectPairs(bool bEdit) {
        for (const int nId : {kInfoName, kInfoSize, kInfoDepth}) EXPECT_EQ(m_controls.IsShown(nId), bEdit);
        for (const int nId : {kBrowseName, kBrowseSize, kBrowseDepth})
            EXPECT_EQ(m_controls.IsShown(nId), !bEdit);
    }

    CEditState m_state;
    CWorkingImages m_images;
    CControlSet m_controls;
    CSelection m_selection;
    CControlDesk m_desk;
    CStatusLines m_lines;
};

std::string Blanks(int nCount) {
    return std::string(static_cast<std::size_t>(nCount), ' ');
}

using InfoLinesTest = Workshop;

}  // namespace

// A Chinese character stands two columns wide.
TEST(PadColumnsTest, CountsTwoColumnsForACharacterBeyondAscii) {
    EXPECT_EQ(PadColumns("ab", 5), "ab   ");
    EXPECT_EQ(PadColumns("", 3), "   ");
    EXPECT_EQ(PadColumns("编辑模式", 14), "编辑模式" + Blanks(6));
    EXPECT_EQ(PadColumns("照x片", 6), "照x片 ");
    for (const char* const szText : {"toolong", "编辑"}) EXPECT_EQ(PadColumns(szText, 4), szText);
    EXPECT_EQ(PadColumns("编辑", 3), "编辑");
}

TEST_F(InfoLinesTest, SayWhatEachModeHasToSay) {
    OpenNumbered(640, 480);
    const std::string strName = "文件名: numbered.png" + Blanks(62 - 12);
    const auto expect = [&](EMode nMode, const std::string& strSize) {
        GoTo(nMode);
        EXPECT_EQ(Controls().Text(kInfoSize), strSize) << nMode;
        EXPECT_EQ(Controls().Text(kInfoName), strName);
        EXPECT_EQ(Controls().Text(kInfoDepth), "色度: 24 ");
    };
    expect(EMode::Effect, "大小 :  640X480      ");
    expect(EMode::Stick, "大小 :  640X480      ");
    expect(EMode::Font, "大小 :编辑模式       ");
    expect(EMode::Draw, "大小 :编辑模式       ");
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    // Under the phone's size STICK tells that one, EFFECT the display size.
    expect(EMode::Stick, "大小 :  176X144      ");
    expect(EMode::Effect, "大小 :  640X480      ");
    expect(EMode::Font, "大小 :编辑模式       ");
    Click(kCmdNew);
    EXPECT_EQ(Controls().Text(kInfoName), "文件名: No Title" + Blanks(62 - 8));
}

TEST_F(InfoLinesTest, TellTheDepthOfTheFile) {
    Open(m_folder.Write("grey.pgm", "P5\n2 2\n255\nabcd"));
    EXPECT_EQ(Controls().Text(kInfoDepth), "色度: 8  ");
    // Paint takes 24 bits.
    GoTo(EMode::Draw);
    GoTo(EMode::Effect);
    EXPECT_EQ(Controls().Text(kInfoDepth), "色度: 24 ");
}

TEST_F(InfoLinesTest, GoBlankInAnEditModeWithoutAPicture) {
    for (const EMode nMode : {EMode::Effect, EMode::Stick, EMode::Font, EMode::Draw}) {
        for (const int nId : {kBrowseName, kBrowseSize, kBrowseDepth}) Controls().SetText(nId, "old");
        GoTo(nMode);
        EXPECT_EQ(Controls().Text(kBrowseName), Blanks(90));
        EXPECT_EQ(Controls().Text(kBrowseSize), Blanks(60));
        EXPECT_EQ(Controls().Text(kBrowseDepth), Blanks(20));
        GoTo(EMode::Thum);
    }
}

TEST_F(StatusLinesTest, TellOfAFolderByItsName) {
    for (const bool bEdit : {false, true}) {
        bEdit ? m_lines.TellOfEdit() : m_lines.TellOfBrowsing();
        m_lines.ShowFileInfo("a/照", EFileInfo::Folder);
        ExpectPairs(bEdit);
        EXPECT_EQ(m_controls.Text(bEdit ? kInfoName : kBrowseName), "文件名 : a/照" + Blanks(58));
        EXPECT_EQ(m_controls.Text(bEdit ? kInfoSize : kBrowseSize), Blanks(60));
        EXPECT_EQ(m_controls.Text(bEdit ? kInfoDepth : kBrowseDepth), Blanks(24));
        m_lines.ShowFileInfo("", EFileInfo::Clear);
        EXPECT_EQ(m_controls.Text(bEdit ? kInfoName : kBrowseName), Blanks(90));
        EXPECT_EQ(m_controls.Text(bEdit ? kInfoDepth : kBrowseDepth), Blanks(20));
    }
}

TEST_F(StatusLinesTest, TellOfAPictureFileBySizeAndDepth) {
    CTempFolder folder;
    ASSERT_TRUE(NumberedImage(123, 45).Save(folder.Path("a.JPG"), ImageType::kJpeg));
    folder.Write("grey.pgm", "P5\n2 2\n255\nabcd");
    folder.Write("bad.jpg", "words");
    const std::string strBytes = ReadBytes(folder.Path("a.JPG"));
    folder.Write("cut.jpg", strBytes.substr(0, strBytes.size() - 2));
    folder.Write("more.jpg", strBytes + "and more");
    struct {
        const char* szName;
        const char* szSize;
        const char* szDepth;
    } const kCases[] = {{"a.JPG", "大小 :  123X45       ", "色度: 24 "},
                        {"grey.pgm", "大小 :    2X2        ", "色度: 8  "},
                        {"bad.jpg", "大小 :    0X0        ", "色度: 0  "},
                        {"cut.jpg", "大小 :    0X0        ", "色度: 0  "},
                        {"more.jpg", "大小 :  123X45       ", "色度: 24 "},
                        {"none.jpg", "大小 :    0X0        ", "色度: 0  "}};
    for (const auto& row : kCases) {
        m_lines.ShowFileInfo(folder.Path(row.szName), EFileInfo::Picture);
        EXPECT_EQ(m_controls.Text(kBrowseName).find(std::string("文件名: ") + row.szName), 0U);
        EXPECT_EQ(m_controls.Text(kBrowseSize), row.szSize);
        EXPECT_EQ(m_controls.Text(kBrowseDepth), row.szDepth);
    }
    // A name without extension stops before any of this.
    m_lines.ShowFileInfo("plain", EFileInfo::Picture);
    EXPECT_EQ(m_controls.Text(kBrowseSize), "大小 :    0X0        ");
}

TEST_F(StatusLinesTest, AnUnknownHelpCodeShowsTheLineAndLeavesItsText) {
    std::string strShown;
    for (int nCode = -5; nCode <= 400; ++nCode) {
        m_controls.Show(kHelpLine, false);
        m_lines.SetHelp(nCode);
        EXPECT_TRUE(m_controls.IsShown(kHelpLine));
        const bool bKnown = (nCode >= 101 && nCode <= 119) || nCode == 200 || nCode == 300;
        EXPECT_EQ(m_controls.Text(kHelpLine) != strShown, bKnown) << nCode;
        strShown = m_controls.Text(kHelpLine);
        // Whatever stood there before is covered to the line's end.
        EXPECT_TRUE(!bKnown || PadColumns(strShown, 180) == strShown);
        EXPECT_TRUE(!bKnown || strShown.back() == ' ');
    }
    EXPECT_EQ(strShown, Blanks(180));
}
