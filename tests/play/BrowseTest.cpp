#include "play/ScriptTest.h"

// Scripts in THUM, on a machine with two drives.
class BrowseTest : public ScriptTest {
  protected:
    BrowseTest() {
        for (const char* szFolder : {"c/b", "c/a/in", "d/ZEFA肖像/old/deep", "d/音乐"})
            std::filesystem::create_directories(szFolder);
        MakePicture("d/ZEFA肖像/a.jpg", 40, 30);
        MakePicture("d/ZEFA肖像/z.JPG", 30, 40);
        MakePicture("d/ZEFA肖像/p.png", 8, 8);
        MakePicture("d/ZEFA肖像/old/o 1.jpg", 20, 20);
        m_folder.Write("d/ZEFA肖像/bad.jpg", "no picture");
    }
    std::string Browse(const std::string& strScript) {
        return Print("drive C c\ndrive d d\nbin bin\n" + strScript);
    }
    static bool Exists(const std::string& strPath) { return std::filesystem::exists(strPath); }
};

TEST_F(BrowseTest, StartsOnTheFolderOfThePortraits) {
    EXPECT_EQ(Browse("state tree\nstate list\nshow 1033\nshow 1117\nstate mode"),
              "tree \"D:/ZEFA肖像/\"\n"
              "list 1 3 \"D:/ZEFA肖像/\"\n"
              "show 1033 shown enabled unchecked \"\"\n"
              "  \"我的电脑\" open\n"
              "    \"磁盘 (C:)\" closed\n"
              "    \"磁盘 (D:)\" open\n"
              "      \"ZEFA肖像\" open selected\n"
              "        \"old\" closed\n"
              "      \"音乐\"\n"
              "show 1117 shown enabled unchecked \"\"\n"
              "  \"old\" picture\n"
              "  \"a.jpg\" picture\n"
              "  \"bad.jpg\" empty\n"
              "  \"z.JPG\" picture\n"
              "mode 0 THUM\n");
    EXPECT_EQ(Print("drive C c\nstate tree\nstate list\nshow 1033"),
              "tree \"\"\nlist 0 0 \"\"\nshow 1033 shown enabled unchecked \"\"\n"
              "  \"我的电脑\" open\n    \"磁盘 (C:)\" open\n      \"a\" closed\n      \"b\"\n");
}

// On the way to a folder all above it open, and the hand takes the keyboard along.
TEST_F(BrowseTest, OpensWhatItPasses) {
    EXPECT_EQ(Browse("tree select C:/a/in\nstate tree\nlist key delete\nstate focus\ncommand 1027\n"
                     "select 1041 0\nstate focus"),
              "tree \"C:/a/in/\"\nfocus 1117\nfocus 1041\n");
}

// A drive that comes or goes is seen when the drives are read the next time.
TEST_F(BrowseTest, DrivesComeAndGo) {
    EXPECT_EQ(Browse("drive D\ndrive E c\ntree close /\ntree open /\nshow 1033"),
              "show 1033 shown enabled unchecked \"\"\n  \"我的电脑\" open\n    \"磁盘 (C:)\" open\n"
              "      \"a\" closed\n      \"b\"\n    \"磁盘 (E:)\" closed\n");
}

// The program asks about one file on its way to the bin, the system about everything else.
TEST_F(BrowseTest, Deletes) {
    const std::string strBox =
        "boxes 1\nbox \"文件删除确认\" exclamation \"\\n要把 'a.jpg' 移动到垃圾箱吗?\\n\\n\"\n";
    EXPECT_EQ(Browse("list click a.jpg\nanswer box no\nlist key delete\nboxes\nshell\nstate list"),
              strBox + "shell 0\nlist 1 3 \"D:/ZEFA肖像/\"\n");
    EXPECT_EQ(Browse("list click a.jpg\nanswer box yes\nlist key delete\nboxes\nshell\nstate list\nstate "
                     "selected"),
              strBox +
                  "shell 1\nbin unasked done \"D:/ZEFA肖像/a.jpg\"\nlist 1 2 \"D:/ZEFA肖像/\"\n"
                  "selected 0\n");
    EXPECT_TRUE(Exists("bin/a.jpg"));

    EXPECT_EQ(Browse("list click z.JPG\nanswer delete no\nlist key shift+delete\nanswer delete yes\n"
                     "list click bad.jpg\nlist key delete shift\nboxes\nshell\nstate list"),
              "boxes 0\nshell 2\ndelete asked refused \"D:/ZEFA肖像/z.JPG\"\n"
              "delete asked done \"D:/ZEFA肖像/bad.jpg\"\nlist 1 1 \"D:/ZEFA肖像/\"\n");
    EXPECT_FALSE(Exists("bin/bad.jpg") || Exists("d/ZEFA肖像/bad.jpg"));

    // What the system refuses stays in list and tree; what is gone leaves both.
    const std::string strRefused = "bin refuse\nlist click old\nanswer box yes\nlist key delete\nshell\n";
    EXPECT_EQ(Browse(strRefused + "state list\nbin bin\nlist select z.JPG old\nanswer delete yes\n"
                                  "list key delete\nshell\nstate list\nlist click"),
              "shell 1\nbin unasked refused \"D:/ZEFA肖像/old\"\nlist 1 1 \"D:/ZEFA肖像/\"\n"
              "shell 1\nbin asked done \"D:/ZEFA肖像/old\" \"D:/ZEFA肖像/z.JPG\"\n"
              "list 0 0 \"D:/ZEFA肖像/\"\n");
    EXPECT_TRUE(Exists("bin/old/deep"));

    // Without a bin nothing is thrown away that could not be had back; two of one name do not meet in it.
    const std::string strScript = "list click p.jpg\nanswer box yes\nlist key delete\n";
    MakePicture("d/ZEFA肖像/p.jpg", 8, 8);
    EXPECT_EQ(Play("drive D d\n" + strScript, true).strErr, "test:4: there is no recycle bin\n");
    EXPECT_TRUE(Exists("d/ZEFA肖像/p.jpg"));
    m_folder.Write("bin/p.jpg", "");
    Browse(strScript);
    EXPECT_TRUE(Exists("bin/p.jpg 2"));
}

// Cells, names, what is selected: all where they stand.
TEST_F(BrowseTest, WindowShowsTreeAndList) {
    Browse("dump window before.ppm\nlist click z.JPG\ntree close D:/ZEFA肖像\ndump window after.ppm");
    const CPixels before = PixelsOf("before.ppm");
    const CPixels after = PixelsOf("after.ppm");
    constexpr CColor kFrame{211, 214, 255};
    constexpr CColor kGround{109, 121, 126};
    constexpr CColor kSelected{232, 143, 54};
    // The second cell holds a picture, the third none, the fourth another one.
    EXPECT_EQ(PixelAt(before, 465, 131), kFrame);
    EXPECT_EQ(PixelAt(before, 574, 240), kFrame);
    EXPECT_EQ(PixelAt(before, 595, 131), kGround);
    EXPECT_EQ(PixelAt(before, 725, 131), kFrame);
    EXPECT_EQ(PixelAt(before, 726, 246), kGround);
    EXPECT_EQ(PixelAt(after, 726, 246), kSelected);
    // What stood below the closed item has moved up.
    int nChanged = 0;
    for (int y = 130; y < 674; ++y)
        for (int x = 37; x < 287; ++x) nChanged += PixelAt(before, x, y) != PixelAt(after, x, y) ? 1 : 0;
    EXPECT_GT(nChanged, 0);
    EXPECT_LT(nChanged, 1000);
}

TEST_F(BrowseTest, NamesTheLineThatCannotBeDone) {
    const std::string strFolder = std::filesystem::current_path().string();
    const std::pair<const char*, std::string> arrCases[] = {
        {"drive 5 c", "\"5\" is no letter of a drive"},
        {"drive E none", "there is no folder \"" + strFolder + "/none\""},
        {"tree shake D:", "\"shake\" is no thing to do in the tree"},
        {"tree open old", "\"old\" is no path that begins with a drive"},
        {"tree open \"\"", "\"\" is no path that begins with a drive"},
        {"tree select D:/none/old", "the tree has no \"D:/none/old\""},
        {"tree open D:", "\"磁盘 (D:)\" is open already"},
        {"tree open D:/音乐", "\"音乐\" has nothing to open"},
        {"tree select Q:", "the tree has no \"Q:\""},
        {"list click b.jpg", "the list has no \"b.jpg\""},
        {"list click a.jpg alt", "\"alt\" is no key beside shift and ctrl"},
        {"list shake a.jpg", "there is no such thing to do in the list"},
        {"mode 3\nlist click a.jpg", "control 1117 is hidden"},
        {"answer delete maybe", "there is no such answer"},
    };
    for (const auto& [szScript, strWhy] : arrCases) {
        const CResult result = Play("drive C c\ndrive D d\n" + std::string(szScript));
        EXPECT_FALSE(result.bDone) << szScript;
        const int nLine = std::string(szScript).starts_with("mode") ? 4 : 3;
        EXPECT_EQ(result.strErr, "test:" + std::to_string(nLine) + ": " + strWhy + "\n") << szScript;
    }
}
