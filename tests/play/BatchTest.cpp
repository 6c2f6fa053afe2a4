#include <cstdlib>

#include "play/ScriptTest.h"

// The program itself, on a script of this folder.
class ProgramTest : public ScriptTest {
  protected:
    static int Run(const std::string& strArguments) {
        const std::string strLine = "'" FOTARIUM_PLAY "' " + strArguments + " > out.txt 2> err.txt";
        const int nStatus = std::system(strLine.c_str());
        return WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
    }
    // A script of this folder can be done and prints what stands beside it.
    static void ExpectPlays(const std::string& strName) {
        const std::string strScript = FOTARIUM_SOURCE_DIR "/tests/play/" + strName;
        EXPECT_EQ(Run("--strict '" + strScript + ".play'"), 0) << ReadBytes("err.txt");
        EXPECT_EQ(ReadBytes("out.txt"), ReadBytes(strScript + ".expected"));
        EXPECT_EQ(ReadBytes("err.txt"), "");
    }
    // What a script dumped is the picture of that name in this folder.
    static void ExpectPictures(std::initializer_list<std::string> arrNames) {
        for (const std::string& strName : arrNames) {
            const CPixels expected = PixelsOf(FOTARIUM_SOURCE_DIR "/tests/play/" + strName + ".png");
            ASSERT_FALSE(expected.IsEmpty());
            EXPECT_EQ(Difference(PixelsOf(strName + ".ppm"), expected), "") << strName;
        }
    }
};

TEST_F(ProgramTest, PlaysTheWalk) {
    ExpectPlays("walk");
    // The skin is found beside the program: the ground of the window is painted.
    const CPixels window = PixelsOf("window.ppm");
    ASSERT_FALSE(window.IsEmpty());
    EXPECT_NE(PixelAt(window, 5, 5), CColor{});
    EXPECT_NE(PixelAt(window, 5, 5), PixelAt(window, 345, 400));
}

// The sample photographs: browsed, thrown away, turned, sized, saved, with the skin's folders in the list.
TEST_F(ProgramTest, PlaysTheBrowse) {
    std::filesystem::create_directories("photos/ZEFA肖像/旧");
    for (const auto& entry :
         std::filesystem::directory_iterator(FOTARIUM_SOURCE_DIR "/src/resources/samples"))
        if (entry.path().extension() == ".jpg")
            std::filesystem::copy(entry.path(), "photos/ZEFA肖像" / entry.path().filename());
    std::filesystem::copy("photos/ZEFA肖像/夜色.jpg", "photos/ZEFA肖像/旧/NIGHT.JPG");
    ExpectPlays("browse");
    EXPECT_TRUE(std::filesystem::exists("bin/花砖.jpg"));
    EXPECT_TRUE(std::filesystem::exists("bin/旧/NIGHT.JPG"));
    // Turned to the right: what was the bottom left corner is the top left one.
    const CPixels work = PixelsOf("work.ppm");
    const CPixels opened = PixelsOf("opened.ppm");
    ASSERT_FALSE(opened.IsEmpty());
    ASSERT_EQ(work.Width(), opened.Height());
    for (const CPoint pt : {CPoint{0, 0}, CPoint{100, 7}, CPoint{800, 500}})
        EXPECT_EQ(PixelAt(work, pt.x, pt.y), PixelAt(opened, pt.y, opened.Height() - 1 - pt.x));
    EXPECT_EQ(PixelsOf("display.ppm"), NaiveResample(work, 300, 400));
    EXPECT_EQ(CxImage("photos/ZEFA肖像/竖的.jpg", ImageType::kJpeg).GetSize(), (CSize{300, 400}));
}

// Every paint tool, the selections and the clipboard, against pictures that were looked at.
TEST_F(ProgramTest, PlaysThePaint) {
    ASSERT_TRUE(FlatImage(160, 120, {255, 255, 255}).Save("white.png", ImageType::kPng));
    ExpectPlays("paint");
    ExpectPictures({"painted", "floating", "cropped"});
}

// Words on photographs: in perspective, and bent by the mesh.
TEST_F(ProgramTest, PlaysTheWords) {
    for (const auto& [szSample, szName] : {std::pair("静物", "photo.png"), {"湖光", "lake.png"}}) {
        const std::string strSample = FOTARIUM_SOURCE_DIR "/src/resources/samples/" + std::string(szSample);
        CxImage image(strSample + ".jpg", ImageType::kJpeg);
        ASSERT_TRUE(image.Resample(320, 240) && image.Save(szName, ImageType::kPng));
    }
    ExpectPlays("words");
    ExpectPlays("mesh");
    ExpectPictures({"projected", "bent", "outlined"});
}

TEST_F(ProgramTest, ExitStatus) {
    m_folder.Write("bad.txt", "state mode\nmode 9\n");
    EXPECT_EQ(Run("bad.txt"), 1);
    EXPECT_EQ(ReadBytes("out.txt"), "mode 0 THUM\n");
    EXPECT_EQ(ReadBytes("err.txt"), "bad.txt:2: \"9\" is no mode\n");
    EXPECT_EQ(Run("- < bad.txt"), 1);
    EXPECT_EQ(ReadBytes("err.txt"), "-:2: \"9\" is no mode\n");
    EXPECT_EQ(Run("- < /dev/null"), 0);
    m_folder.Write("asks.txt", "command 1000\n");
    EXPECT_EQ(Run("asks.txt"), 0);
    EXPECT_EQ(Run("--strict asks.txt"), 1);
    EXPECT_EQ(Run("none.txt"), 2);
    EXPECT_EQ(Run(""), 2);
    EXPECT_EQ(Run("--fast bad.txt"), 2);
    EXPECT_EQ(Run("bad.txt bad.txt"), 2);
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_EQ(ReadBytes("out.txt"), HelpText());
}
