// Throwing files away: where they go, what is asked, and what is told of those that cannot go. And the
// drives.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "qt/QtDrives.h"
#include "qt/QtShell.h"
#include "qt/Trash.h"
#include "support/TempFolder.h"
#include "window/MessageBoxes.h"

namespace fs = std::filesystem;

namespace {

class CTestBoxes : public CMessageBoxes {
  public:
    EBoxAnswer Show(const CMessageBox& box) override {
        m_arrBoxes.push_back(box);
        return box.buttons == EBoxButtons::Ok ? EBoxAnswer::Ok : m_answer;
    }
    std::vector<CMessageBox> m_arrBoxes;
    EBoxAnswer m_answer = EBoxAnswer::Yes;
};

class Shell : public testing::Test {
  protected:
    void SetUp() override {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.path() + "/data"));
        fs::create_directory(m_root / "data");
        Write("kept.txt");
        FillWork();
    }
    // Anew, so that a test may throw it away more than once.
    void FillWork() {
        fs::remove_all(m_root / "work");
        fs::create_directories(m_root / "work/folder/below");
        for (const char* szFile : {"a.jpg", "b.jpg", "folder/below/c.jpg"})
            Write("work/" + std::string(szFile));
        fs::create_directory_symlink(m_root, m_root / "work/link");
        fs::create_directory_symlink(m_root, m_root / "work/folder/link");
    }
    void TearDown() override {
        qunsetenv("XDG_DATA_HOME");
        fs::remove_all(m_root);  // Qt does not find names that are no valid text
    }

    void Write(const std::string& strName) { std::ofstream(m_root / strName) << strName; }
    std::string Path(const std::string& strName) { return (m_root / "work" / strName).string(); }
    bool Is(const std::string& strName) { return fs::exists(fs::symlink_status(Path(strName))); }
    bool IsInTrash(const std::string& strName) {
        return fs::exists(fs::symlink_status(m_root / "data/Trash/files" / strName));
    }
    bool Delete(std::vector<std::string> arrNames, bool bToBin, bool bAsk) {
        for (std::string& strName : arrNames) strName = Path(strName);
        return m_shell.Delete(arrNames, bToBin, bAsk);
    }
    std::string Text(std::size_t nBox) {
        return nBox < m_boxes.m_arrBoxes.size() ? m_boxes.m_arrBoxes[nBox].strText : "no such box";
    }

    QTemporaryDir m_folder;
    fs::path m_root{m_folder.path().toStdString()};
    CTestBoxes m_boxes;
    CQtShell m_shell{m_boxes};
};

}  // namespace

TEST_F(Shell, FilesFoldersAndLinksGoAsTheyAre) {
    for (const bool bToBin : {false, true}) {
        FillWork();
        EXPECT_TRUE(Delete({"a.jpg", "folder", "link"}, bToBin, false));
        for (const char* szName : {"a.jpg", "folder", "link"}) {
            EXPECT_FALSE(Is(szName)) << szName;
            EXPECT_EQ(IsInTrash(szName), bToBin) << szName;
        }
        EXPECT_TRUE(fs::exists(m_root / "kept.txt")) << "what a link leads to is left alone";
        EXPECT_TRUE(Is("b.jpg"));
    }
    EXPECT_TRUE(m_boxes.m_arrBoxes.empty());
    EXPECT_TRUE(IsInTrash("folder/below/c.jpg"));
    EXPECT_TRUE(fs::exists(m_root / "data/Trash/info/a.jpg.trashinfo"));
    // Two of one name do not overwrite each other there.
    Write("work/a.jpg");
    EXPECT_TRUE(Delete({"a.jpg"}, true, false));
    EXPECT_EQ(std::distance(fs::directory_iterator(m_root / "data/Trash/files"), {}), 4);
}

TEST_F(Shell, AsksAboutWhatItIsToDo) {
    m_boxes.m_answer = EBoxAnswer::No;
    EXPECT_FALSE(Delete({"a.jpg"}, false, true));
    EXPECT_FALSE(Delete({"folder"}, false, true));
    EXPECT_FALSE(Delete({"a.jpg", "b.jpg"}, true, true));
    EXPECT_FALSE(Delete({"a.jpg", "b.jpg"}, false, true));
    EXPECT_TRUE(Is("a.jpg") && Is("b.jpg") && Is("folder"));
    EXPECT_EQ(Text(0), "要永久删除“a.jpg”吗？");
    EXPECT_EQ(Text(1), "要永久删除文件夹“folder”吗？\n文件夹里的所有内容也会一起删除。");
    EXPECT_EQ(Text(2), "要把这 2 项移动到垃圾箱吗？");
    EXPECT_EQ(Text(3), "要永久删除这 2 项吗？");
    const char* const kTitles[] = {"确认文件删除", "确认文件夹删除", "确认删除多个文件", "确认删除多个文件"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(m_boxes.m_arrBoxes[i].strTitle, kTitles[i]);
        EXPECT_EQ(m_boxes.m_arrBoxes[i].buttons, EBoxButtons::YesNo);
    }
    m_boxes.m_answer = EBoxAnswer::Yes;
    EXPECT_TRUE(Delete({"a.jpg", "b.jpg"}, true, true));
    EXPECT_TRUE(IsInTrash("a.jpg") && IsInTrash("b.jpg"));
}

TEST_F(Shell, TheBinTakesNamesOfAnyBytesAndLinksToNowhere) {
    const std::string strOdd = "odd\xff\n.jpg";
    Write("work/" + strOdd);
    fs::create_symlink("nowhere", m_root / "work/dangling");
    const std::string strLong = std::string(240, 'x') + ".jpg";
    Write("work/" + strLong);
    EXPECT_TRUE(Delete({strOdd, "dangling", strLong}, true, false));
    EXPECT_TRUE(IsInTrash(strOdd) && IsInTrash("dangling"));
    const std::string strNote = ReadBytes(m_root / "data/Trash/info" / (strOdd + ".trashinfo"));
    EXPECT_TRUE(strNote.starts_with("[Trash Info]\nPath=" + fs::canonical(m_root / "work").string() +
                                    "/odd%FF%0A.jpg\n"))
        << strNote;
}

// A disk that is full before the note is whole: nothing has happened.
TEST_F(Shell, AFullDiskLeavesTheFileAndNoNote) {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto fnBefore = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit few{10, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &few), 0);
    const bool bMoved = MoveToTrash(Path("a.jpg"));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, fnBefore);
    EXPECT_FALSE(bMoved);
    EXPECT_TRUE(Is("a.jpg"));
    EXPECT_TRUE(fs::is_empty(m_root / "data/Trash/info"));
}

TEST_F(Shell, AnotherVolumeHasABinOfItsOwnOrAsks) {
    const fs::path trash = "/dev/shm/.Trash-" + std::to_string(getuid());
    QTemporaryDir other("/dev/shm/fotarium-XXXXXX");
    if (!other.isValid() || fs::exists(trash)) GTEST_SKIP() << "no second volume to try this on";
    const std::string strFile = other.path().toStdString() + "/a.jpg";
    // Something else bears the name of the trash: there can be none.
    std::ofstream(trash) << "x";
    m_boxes.m_answer = EBoxAnswer::No;
    std::ofstream(strFile) << "x";
    EXPECT_FALSE(m_shell.Delete({strFile}, true, false));
    EXPECT_TRUE(fs::exists(strFile));
    EXPECT_EQ(Text(0), "“a.jpg”不能移动到垃圾箱。\n要永久删除吗？");
    m_boxes.m_answer = EBoxAnswer::Yes;
    EXPECT_TRUE(m_shell.Delete({strFile, Path("b.jpg")}, true, false));
    EXPECT_FALSE(fs::exists(strFile));
    EXPECT_TRUE(IsInTrash("b.jpg")) << "what fits into the bin goes there";
    EXPECT_EQ(m_boxes.m_arrBoxes.size(), 2U);
    fs::remove(trash);
    std::ofstream(strFile) << "x";
    EXPECT_TRUE(m_shell.Delete({strFile}, true, false));
    EXPECT_FALSE(fs::exists(strFile));
    EXPECT_TRUE(fs::exists(trash / "files/a.jpg"));
    fs::remove_all(trash);
}

TEST_F(Shell, ReportsWhatStaysAndTakesTheRest) {
    for (const bool bToBin : {false, true}) {
        m_boxes.m_arrBoxes.clear();
        Write("work/a.jpg");
        EXPECT_FALSE(m_shell.Delete({"/proc/version", Path("a.jpg")}, bToBin, false));
        EXPECT_FALSE(Is("a.jpg"));
        ASSERT_FALSE(m_boxes.m_arrBoxes.empty());
        const CMessageBox& box = m_boxes.m_arrBoxes.back();
        EXPECT_EQ(box.strText, "以下项目无法删除：\n\nversion\n\n它可能正在使用，或者您没有删除它的权限。");
        EXPECT_EQ(box.icon, EBoxIcon::Stop);
    }
    // What has gone meanwhile is gone.
    m_boxes.m_arrBoxes.clear();
    EXPECT_TRUE(Delete({"vanished.jpg"}, true, false));
    EXPECT_TRUE(Delete({"vanished.jpg"}, false, false));
    EXPECT_TRUE(m_boxes.m_arrBoxes.empty());
}

TEST_F(Shell, OpensAFileByItsOwnBytes) {
    std::vector<std::string> arrUrls;
    bool bOpens = true;
    CQtShell shell(m_boxes, [&](const QUrl& url) {
        arrUrls.push_back(url.toEncoded().toStdString());
        return bOpens;
    });
    shell.Open("/tmp/a b;rm -rf #1?.jpg");
    shell.Open("/tmp/肖\xff.jpg");
    EXPECT_EQ(arrUrls, (std::vector<std::string>{"file:///tmp/a%20b%3Brm%20-rf%20%231%3F.jpg",
                                                 "file:///tmp/%E8%82%96%FF.jpg"}));
    EXPECT_TRUE(m_boxes.m_arrBoxes.empty());
    bOpens = false;
    shell.Open("/tmp/a.jpg");
    EXPECT_EQ(Text(0), "没有可以打开“a.jpg”的程序。");
}

TEST(Drives, VolumesGetLettersInTheOrderOfTheirPaths) {
    const std::vector<CVolume> arrVolumes = {
        {"/run/media/me/STICK", "", "vfat"},   {"/mnt/share", "Photos", "cifs"},
        {"/media/me/CARD", "CAMERA", "exfat"}, {"/home", "", "ext4"},
        {"/snap/core/1", "", "squashfs"},      {"/media/me/ram", "", "tmpfs"},
        {"/srv/pictures", "", "nfs4"},         {"/boot/efi", "", "vfat"},
        {"/mnt/share", "Photos", "cifs"},      {"/mnt/", "", "ext4"},
    };
    std::string str;
    for (const CDrive& drive : NameDrives("/home/me", arrVolumes, "/opt/samples"))
        str += drive.strDisplay + "=" + drive.strRoot + "\n";
    EXPECT_EQ(str,
              "主目录 (C:)=/home/me/\n文件系统 (D:)=/\nCAMERA (E:)=/media/me/CARD/\nPhotos (F:)=/mnt/share/\n"
              "STICK (G:)=/run/media/me/STICK/\npictures (H:)=/srv/pictures/\n示例 (I:)=/opt/samples/\n");
}

TEST(Drives, LettersEndWithTheAlphabetAndTheSamplesGetOne) {
    std::vector<CVolume> arrVolumes;
    for (int i = 10; i < 50; ++i) arrVolumes.push_back({"/media/v" + std::to_string(i), "", "ext4"});
    for (const char* szSamples : {"", "/samples"}) {
        const auto arrDrives = NameDrives("/root", arrVolumes, szSamples);
        ASSERT_EQ(arrDrives.size(), 24U);
        EXPECT_EQ(arrDrives.back().cLetter, 'Z');
        EXPECT_TRUE(arrDrives.back().strDisplay.ends_with("(Z:)"));
        EXPECT_EQ(arrDrives.back().strRoot, *szSamples == '\0' ? "/media/v31/" : "/samples/");
    }
}

TEST(Drives, TheSampleDriveIsThereWhileItsFolderIs) {
    const QTemporaryDir folder;
    CQtDrives drives;
    qputenv("FOTARIUM_SAMPLE_DRIVE", QFile::encodeName(folder.path()));
    EXPECT_EQ(drives.List().back().strRoot, folder.path().toStdString() + "/");
    qputenv("FOTARIUM_SAMPLE_DRIVE", QFile::encodeName(folder.path() + "/none"));
    const auto arrDrives = drives.List();
    qunsetenv("FOTARIUM_SAMPLE_DRIVE");
    EXPECT_EQ(arrDrives.back().strDisplay.find("示例"), std::string::npos);
    EXPECT_EQ(arrDrives[0].strRoot, QDir::homePath().toStdString() + "/");
    EXPECT_EQ(arrDrives[1].strRoot, "/");
}
