#include "play/ScriptTest.h"
#include "resources/MainDialog.h"

// Every verb once, with what it does.

TEST_F(ScriptTest, StartsInTheFirstModeWithoutAPicture) {
    EXPECT_EQ(Print("state\nboxes"),
              "mode 0 THUM\nundo 0\nredo 0\ndisp 0 0\nwork none\nimage 0\ntool 1\nzoom 1\npanel 1\ncolors "
              "000000 FFFFFF\nframe 0\n"
              "effect 0\nlevel 0\npreview none\npending 0\nfloat 0\nselection 0\nconnected 0\nsizerule "
              "image\ntree \"\"\nlist 0 0 \"\"\nselected 0\nbanded "
              "0\npath \"\"\nname \"\"\nfocus 0\nboxes 0\n");
}

TEST_F(ScriptTest, OpensByAQuotedChinesePathAndDumpsThePixels) {
    std::filesystem::create_directory("照片 夹");
    MakePicture("照片 夹/海 \"边\".png", 90, 40);
    EXPECT_EQ(Print("open \"照片 夹/海 \\\"边\\\".png\"\nstate mode\nstate name\nstate image\nstate disp\n"
                    "dump opened a.ppm\ndump display \"b c.ppm\"\ndump work d.ppm"),
              "mode 2 EFFECT\nname \"海 \\\"边\\\".png\"\nimage 1 90 40\ndisp 90 40\n");
    for (const char* szName : {"a.ppm", "b c.ppm", "d.ppm"})
        EXPECT_EQ(PixelsOf(szName), NumberedPixels(90, 40)) << szName;
}

// The process follows the dialogs into their folders; a script's paths do not.
TEST_F(ScriptTest, PathsCountFromTheStart) {
    std::filesystem::create_directory("sub");
    MakePicture("sub/a.png", 20, 10);
    const std::string strStart = std::filesystem::current_path().string();
    EXPECT_EQ(Print("open sub/a.png\nanswer save sub/b.bmp\ncommand 1002\nanswer open sub/../sub/./b.bmp\n"
                    "command 1000\ndump work c.ppm\nstate path"),
              "path \"" + strStart + "/sub/b.bmp\"\n");
    EXPECT_EQ(PixelsOf("c.ppm"), NumberedPixels(20, 10));
    EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(m_folder.Path()));
}

TEST_F(ScriptTest, HistoryByButtonMenuAndKey) {
    EXPECT_EQ(Print("command 1027\nmode 4\ncheck 1188\nstate undo\nstate sizerule\nstate image\n"
                    "show 1187\nshow 1188\nmode 2\ncommand 1004\nstate redo\nstate sizerule\n"
                    "command 32783\nstate undo\nkey Ctrl+Z\nstate undo\nkey ctrl+y\nstate undo\n"
                    "key enter\nkey esc\nstate mode"),
              "undo 1\nsizerule phone\nimage 1 176 144\n"
              "show 1187 shown enabled unchecked \"\"\nshow 1188 shown enabled checked \"\"\n"
              "redo 1\nsizerule image\nundo 1\nundo 0\nundo 1\nmode 2 EFFECT\n");
}

TEST_F(ScriptTest, TextIsCutToWhatTheEditTakes) {
    EXPECT_EQ(
        Print("command 1027\nmode 3\ntext 1051 \"一二三四五六七八九十一二三四五六七八九十一二三四\"\nshow "
              "1051\ntext 1051 short\nshow 1051\ncheck 1119\nshow 1119"),
        "show 1051 shown enabled unchecked \"一二三四五六七八九十一二三四五六七八九十一二\"\n"
        "show 1051 shown enabled unchecked \"short\"\nshow 1119 shown enabled unchecked \"\"\n");
}

TEST_F(ScriptTest, AnswersReachTheirQuestions) {
    MakePicture("a.png", 30, 20);
    // Each answer finds the question of its kind, in whichever order they were given.
    EXPECT_EQ(Print("answer menu 32784\nanswer save out.png\nopen a.png\ncommand 1002\n"
                    "mouse press right 5 5\nmouse release right 5 5\nstate undo\n"
                    "answer cancel\ncommand 1000\nstate name"),
              "undo 1\nname \"a.png\"\n");
    EXPECT_EQ(PixelsOf("out.png"), NumberedPixels(30, 20));
}

TEST_F(ScriptTest, BoxesAreToldOnce) {
    m_folder.Write("bad.jpg", "no picture");
    EXPECT_EQ(Print("window press left 40 680\nanswer box ok\nopen bad.jpg\nboxes\nboxes"),
              "boxes 2\nbox \"Orvo Fotarium Version\" none \"Build Date : Dec  7 2005\"\n"
              "box \"文件打开错误\" stop \"照片格式或文件错误.\"\nboxes 0\n");
}

TEST_F(ScriptTest, MouseBesideTheControls) {
    const std::string strHelp = Print(
        "command 1027\nmode 1\nwindow move 215 495\nshow 1161\nwindow move 76 213\nshow 1161\n"
        "window move 5 700\nshow 1161");
    // The foreground well, the first tool's button, the bare ground.
    EXPECT_NE(strHelp.find("双几左键选择前景色"), std::string::npos);
    EXPECT_NE(strHelp.find("单击-拖拉可 选择四边形区域"), std::string::npos);
    EXPECT_EQ(strHelp.substr(strHelp.rfind("show"))
                  .find_first_not_of(' ', std::string("show 1161 shown enabled unchecked \"").size()),
              strHelp.size() - 2 - strHelp.rfind("show"));
}

// The mouse over a key gives it the focus, which shows in the window's picture.
TEST_F(ScriptTest, HoverAndTime) {
    EXPECT_EQ(Print("command 1027\nwindow move 70 20\nstate focus\ntick 999\ntick 1\nstate focus\n"
                    "window move 400 300\nstate focus"),
              "focus 1027\nfocus 1027\nfocus 1027\n");
}

TEST_F(ScriptTest, CanvasAndWindowDumps) {
    MakePicture("a.png", 100, 50);
    Print("open a.png\ndump canvas canvas.ppm\ndump window window.ppm");
    const CPixels canvas = PixelsOf("canvas.ppm");
    const CPixels window = PixelsOf("window.ppm");
    ASSERT_EQ(canvas.Width(), 659);
    ASSERT_EQ(window.Width(), kMainDialog.sizeClient.cx);
    ASSERT_EQ(window.Height(), kMainDialog.sizeClient.cy);
    // The picture stands in the middle of the canvas, the canvas at its place in the window.
    for (const CPoint pt : {CPoint{0, 0}, CPoint{99, 0}, CPoint{0, 49}, CPoint{99, 49}}) {
        EXPECT_EQ(PixelAt(canvas, 279 + pt.x, 246 + pt.y), PixelAt(NumberedPixels(100, 50), pt.x, pt.y));
        EXPECT_EQ(PixelAt(window, 325 + 279 + pt.x, 130 + 246 + pt.y),
                  PixelAt(NumberedPixels(100, 50), pt.x, pt.y));
    }
}

TEST_F(ScriptTest, ScrollsALargePicture) {
    MakePicture("a.png", 900, 800);
    Print("open a.png\nscroll 250 260\ndump canvas c.ppm");
    EXPECT_EQ(PixelAt(PixelsOf("c.ppm"), 3, 4), PixelAt(NumberedPixels(900, 800), 253, 264));
}

TEST_F(ScriptTest, CommentsBlanksAndLineEnds) {
    EXPECT_EQ(Print("# all of it\n\n   \t\n  state mode # and so on\r\nstate \"undo\"\r\n"),
              "mode 0 THUM\nundo 0\n");
}

TEST_F(ScriptTest, HelpNamesWhatThereIs) {
    const std::string strHelp = HelpText();
    for (const char* szWord :
         {"open PATH",    "command ID",   "mode N",        "select ID ROW", "slider POS",  "mouse press",
          "window press", "key CHORD",    "text ID",       "check ID",      "answer box",  "answer open",
          "answer save",  "answer color", "answer font",   "answer size",   "answer menu", "answer cancel",
          "tick N",       "show ID",      "state [NAME]",  "boxes",         "dump work",   "sizerule",
          "drive LETTER", "bin PATH",     "tree open",     "list click",    "list double", "list right",
          "list select",  "list key",     "answer delete", "size keep",     "shell",       "banded"})
        EXPECT_NE(strHelp.find(szWord), std::string::npos) << szWord;
}

TEST_F(ScriptTest, AnEffectFromTheListToThePicture) {
    MakePicture("a.png", 200, 120);
    EXPECT_EQ(
        Print("seed 7\nopen a.png\nselect 1041 23\nslider 6\nstate effect\nstate level\nstate preview\n"
              "state pending\nshow 1047\ndump preview small.ppm\ncommand 1022\nstate pending\n"
              "state preview\nstate undo\ndump work one.ppm\n"
              "command 1004\nseed 7\nselect 1041 22\ncommand 1029\nselect 1041 23\nslider 6\n"
              "dump preview again.ppm\ncommand 1022\ndump work two.ppm"),
        "effect 23\nlevel 4\npreview 158 94\npending 1\nshow 1047 shown enabled unchecked \"\" at 6 of 0 "
        "to 10\npending 0\npreview none\nundo 1\n");
    EXPECT_EQ(PixelsOf("small.ppm"), PixelsOf("again.ppm"));
    EXPECT_EQ(PixelsOf("one.ppm"), PixelsOf("two.ppm")) << "one seed, one picture";
    EXPECT_NE(PixelsOf("one.ppm"), PixelsOf("a.png"));
}

// Airbrush and effects draw from one sequence.
TEST_F(ScriptTest, OneSeedRepeatsAirbrushAndEffects) {
    const std::string strSpray = "mouse press left 300 250\ntick 30\nmouse release left 300 250\n";
    const auto spray = [&](const std::string& strSeed, const std::string& strName) {
        return "seed " + strSeed + "\n" + strSpray + "dump scratch " + strName + ".ppm\nkey ctrl+z\n";
    };
    EXPECT_EQ(Print("command 1027\nmode 1\ncommand 1180\n" + spray("7", "one") + spray("8", "other") +
                    spray("7", "again") + "state undo"),
              "undo 0\n");
    EXPECT_EQ(PixelsOf("one.ppm"), PixelsOf("again.ppm"));
    EXPECT_NE(PixelsOf("one.ppm"), PixelsOf("other.ppm"));
    // What was sprayed before an effect is missing from the effect's numbers.
    MakePicture("a.png", 200, 120);
    const auto tile = [&](const std::string& strBetween, const std::string& strName) {
        return "open a.png\nmode 1\ncommand 1180\nseed 7\n" + strBetween +
               "mode 2\nopen a.png\nselect 1041 23\nslider 6\ndump preview " + strName +
               ".ppm\nselect 1041 4\ncommand 1029\n";
    };
    Print(tile("", "tile") + tile(strSpray, "later") + tile("", "same"));
    EXPECT_EQ(PixelsOf("tile.ppm"), PixelsOf("same.ppm"));
    EXPECT_NE(PixelsOf("tile.ppm"), PixelsOf("later.ppm"));
}
