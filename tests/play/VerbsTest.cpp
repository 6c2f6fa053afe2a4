#include "play/ScriptTest.h"

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
                    "key enter\r\nkey esc\n \t\nstate mode # and so on\r\n"),
              "undo 1\nsizerule phone\nimage 1 176 144\n"
              "show 1187 shown enabled unchecked \"\"\nshow 1188 shown enabled checked \"\"\n"
              "redo 1\nsizerule image\nundo 1\nundo 0\nundo 1\nmode 2 EFFECT\n");
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

// The canvas shows the part of a large picture that is scrolled to, and stands at its place in the window.
TEST_F(ScriptTest, CanvasAndWindowDumps) {
    MakePicture("a.png", 900, 800);
    Print("open a.png\nscroll 250 260\ndump canvas canvas.ppm\ndump window window.ppm");
    EXPECT_EQ(PixelAt(PixelsOf("canvas.ppm"), 3, 4), PixelAt(NumberedPixels(900, 800), 253, 264));
    EXPECT_EQ(PixelAt(PixelsOf("window.ppm"), 325 + 3, 130 + 4), PixelAt(NumberedPixels(900, 800), 253, 264));
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

// Frames by mouse and key, from a library or without one; a person's arrow means nothing elsewhere.
TEST_F(ScriptTest, FramesAndTheirLibrary) {
    MakePicture("a.png", 30, 20);
    EXPECT_EQ(Print("libraries none\nopen a.png\nmode 4\nselect 1146 12\nshow 1146\nboxes\nstate frame\n"
                    "key left\nshow 1146\nselect 1146 -1\nstate undo\nselect 1146 0\nstate frame"),
              "show 1146 shown enabled unchecked \"\" row 12 of 13\nboxes 1\n"
              "box \"Orvo Fotarium V 1.0\" exclamation \"没有搜索到StickerFrameData.dll文件\"\nframe 1\n"
              "show 1146 shown enabled unchecked \"\" row 11 of 13\nundo 3\nframe 0\n");
    EXPECT_FALSE(Play("libraries nowhere").bDone);
    EXPECT_FALSE(Play("open a.png\nkey down").bDone);
}
