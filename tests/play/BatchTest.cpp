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
        // Paths stand there from the folder of the test on.
        std::string strOut = ReadBytes("out.txt");
        const std::string strHere = std::filesystem::current_path().string();
        for (std::size_t n = 0; (n = strOut.find(strHere, n)) != std::string::npos;)
            strOut.replace(n, strHere.size(), 1, '.');
        EXPECT_EQ(strOut, ReadBytes(strScript + ".expected"));
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

TEST_F(ProgramTest, PlaysThePrint) {
    MakePicture("lake.png", 700, 500);
    MakePicture("stamp.png", 90, 70);
    ExpectPlays("print");
    // 600 dots an inch, one of eight kept each way: the picture begins with its first pixel on white.
    const CPixels page = PixelsOf("page.ppm");
    ASSERT_EQ(page.Height(), 878);
    EXPECT_EQ(PixelAt(page, 29, 239), (CColor{255, 255, 255}));
    EXPECT_EQ(PixelAt(page, 30, 239), PixelAt(NumberedPixels(700, 500), 0, 1));
    EXPECT_EQ(PixelAt(page, 590, 638), PixelAt(NumberedPixels(700, 500), 699, 499));
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

// A phone in a folder, with these lines about it, and photographs of a phone's size.
class PhonePlay : public ProgramTest {
  protected:
    void MakePhone(const std::string& strName, const std::string& strFacts,
                   std::initializer_list<std::string> arrFiles, const std::string& strFaults = {}) {
        const std::string strFolder = std::string("phones/").append(strName).append("/");
        for (const std::string& strFile : arrFiles) MakePhoto(strFolder + strFile, 640, 480);
        std::filesystem::create_directories(strFolder);
        m_folder.Write(strFolder + "phone.txt", strFacts);
        m_folder.Write(strFolder + "faults", strFaults);
    }
    static void MakePhoto(const std::filesystem::path& path, int nWidth, int nHeight) {
        std::filesystem::create_directories(path.parent_path());
        CxImage image(FOTARIUM_SOURCE_DIR "/src/resources/samples/静物.jpg", ImageType::kJpeg);
        ASSERT_TRUE(image.Resample(nWidth, nHeight) && image.Save(path.string(), ImageType::kJpeg));
    }
};

TEST_F(PhonePlay, PicturesGoToAndFro) {
    std::filesystem::create_directories("photos/ZEFA肖像");
    MakePhone("first", "identity 4711\nmemory 4000000\n",
              {"inner/photo/IMG0002", "inner/photo/IMG0003", "inner/photo/生日"});
    MakePhoto("phones/first/inner/photo/IMG0001", 1280, 960);
    m_folder.Write("phones/first/closed", "photo/IMG0003\n");
    ExpectPlays("phone");
    EXPECT_EQ(CxImage("phones/first/inner/IMG0001.jpg", ImageType::kJpeg).GetSize(), (CSize{320, 240}));
    for (const char* szTaken : {"IMG0001", "IMG0002", "IMG0003"})
        EXPECT_EQ(std::filesystem::exists("photos/ZEFA肖像/" + std::string(szTaken) + ".jpg"),
                  std::string(szTaken) != "IMG0003");
    EXPECT_EQ(ReadBytes("photos/ZEFA肖像/IMG0001.jpg.jpg"), ReadBytes("phones/first/inner/IMG0001.jpg"));
    EXPECT_FALSE(std::filesystem::exists("phones/first/log.txt")) << "a call came when it may not";
}

TEST_F(PhonePlay, WhatGoesWrongIsTold) {
    for (const char* szName : {"a.jpg", "b.jpg"})
        MakePhoto("photos/ZEFA肖像/" + std::string(szName), 640, 480);
    MakePhone("first", "identity 4711\n", {});
    MakePhone("locked", "identity 4711\nlocked 1\n", {});
    MakePhone("called", "identity 4711\n", {}, "TransferFileToPhone 2 21\n");
    MakePhone("failing", "identity 4711\n", {"inner/one", "inner/two"},
              "GetFilefromPhone 1 17\nGetFileInfoListfromPhone 2 15\n");
    MakePhone("card", "identity 4712\ncard 1\ncardin 1\n", {"inner/three", "card/four"},
              "GetSDCardStatus 1 16\nGetFilefromPhone 2 16\n");
    MakePhone("again", "identity 4713\nnorestart 0\nrestartpolls 2\n", {"inner/five"});
    ExpectPlays("trouble");
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
