#include "play/ScriptTest.h"

namespace {

struct CCase {
    const char* szScript;
    const char* szErr;
};

}  // namespace

// The first line that cannot be done ends the script; what stands before it has been done.
TEST_F(ScriptTest, NamesTheLineThatCannotBeDone) {
    MakePicture("a.png", 30, 20);
    m_folder.Write("a.txt", "");
    const std::string strFolder = std::filesystem::current_path().string();
    const CCase arrCases[] = {
        {"# one\n\nstate mode\nfly 1\nstate undo", "test:4: \"fly\" is no verb\n"},
        {"open a b", "test:1: it is open PATH\n"},
        {"open \"a.png", "test:1: a quote is not closed where a word ends\n"},
        {"open a.txt", "test:1: \"a.txt\" is no name of a picture\n"},
        {"command 9", "test:1: there is no control 9\n"},
        {"command 10x", "test:1: \"10x\" is no number of a control\n"},
        {"command 1004", "test:1: control 1004 is disabled\n"},
        {"command 1022", "test:1: control 1022 is hidden\n"},
        {"command 1117", "test:1: control 1117 is nothing to click\n"},
        {"command 32784", "test:1: no menu comes up here\n"},
        // In the phone's size there is no menu, and the answer does not lie in wait for a later one.
        {"command 1027\nmode 4\ncheck 1188\ncommand 32784", "test:4: no menu comes up here\n"},
        {"command 1027\ncommand 32782", "test:2: menu item 32782 is grey\n"},
        {"mode 0", "test:1: that mode is up already\n"},
        {"mode -1", "test:1: \"-1\" is no mode\n"},
        {"select 1117 0", "test:1: list 1117 has no item 0, only 0 from 0 on\n"},
        {"key f13", "test:1: \"f13\" is no key\n"},
        {"text 1051 x", "test:1: control 1051 is hidden\n"},
        {"mouse press left 1 1", "test:1: control 59648 is hidden\n"},
        {"command 1027\nmouse press left 659 1",
         "test:2: (659,1) is outside of the view, which is 659 by 543\n"},
        {"command 1027\nmouse release left 5 1", "test:2: that mouse button is not down\n"},
        {"command 1027\nmouse press left 5 1 alt", "test:2: \"alt\" is no key beside shift and ctrl\n"},
        {"command 1027\nscroll 1 0", "test:2: the view scrolls no further than (0,0)\n"},
        {"window press left 40 30", "test:1: (40,30) is on control 1000\n"},
        {"slider far 1", "test:1: it is slider POS\n"},
        {"command 1027\nslider far", "test:2: \"far\" is no number\n"},
        {"state weather", "test:1: \"weather\" is no state\n"},
        {"dump work a.ppm", "test:1: there is no picture\n"},
        {"answer box maybe", "test:1: there is no such answer\n"},
        {"answer color gg8000", "test:1: there is no such answer\n"},
        {"answer color ff80", "test:1: there is no such answer\n"},
        {"answer font 黑体 bold\ncommand 1000",
         "test:2: no answer waits for a question of the kind open, but one of the kind font\n"},
        {"answer box yes\nwindow press left 40 680",
         "test:2: the box \"Build Date : Dec  7 2005\" has no such button\n"},
    };
    for (const CCase& entry : arrCases) {
        const CResult result = Play(entry.szScript);
        EXPECT_FALSE(result.bDone) << entry.szScript;
        EXPECT_EQ(result.strErr, entry.szErr);
    }
    EXPECT_EQ(Play("open none.png").strErr, "test:1: there is no file \"" + strFolder + "/none.png\"\n");
    EXPECT_EQ(Play("command 1027\ndump work no/a.ppm").strErr,
              "test:2: \"" + strFolder + "/no/a.ppm\" cannot be written\n");
    EXPECT_EQ(Play("state mode\nfly\nstate mode").strOut, "mode 0 THUM\n");
}

TEST_F(ScriptTest, StrictIsForThoseWhoLookAway) {
    m_folder.Write("bad.jpg", "no picture");
    EXPECT_TRUE(Play("open bad.jpg").bDone);
    EXPECT_EQ(Play("open bad.jpg", true).strErr, "test:1: no answer waits for a question of the kind box\n");
    EXPECT_TRUE(Play("answer box ok\nopen bad.jpg", true).bDone);

    EXPECT_TRUE(Play("command 1000").bDone);
    EXPECT_EQ(Play("command 1000", true).strErr, "test:1: no answer waits for a question of the kind open\n");

    const std::string strWaits = "command 1027\nanswer color ff0000\nstate mode";
    CResult result = Play(strWaits);
    EXPECT_TRUE(result.bDone);
    EXPECT_EQ(result.strErr, "test:2: note: nobody has asked for this answer\n");
    result = Play(strWaits, true);
    EXPECT_FALSE(result.bDone);
    EXPECT_EQ(result.strErr, "test:2: nobody has asked for this answer\n");
}
