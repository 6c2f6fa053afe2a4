// Frames from real libraries: a whole one, and all that can stand in its place.

#include "compose/StickerFrame.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <fstream>

#include "support/Pictures.h"
#include "support/TempFolder.h"
#include "window/LibraryFolders.h"

namespace fs = std::filesystem;

namespace {

constexpr char kName[] = "StickerFrameData.dll";

std::string FolderOf(const std::string& strKind) {
    return std::string(FOTARIUM_TEST_LIBRARIES) + "/" + strKind;
}

// True if all thinkable frames are refused there, and the picture stays.
bool HasNoFrames(const std::vector<std::string>& arrFolders, std::initializer_list<int> arrFrames = {1, 12}) {
    CLibraryFolders libraries(arrFolders);
    CStickerFrame frame(libraries);
    CxImage image = NumberedImage(32, 24);
    for (const int nFrame : arrFrames)
        if (frame.Compose(nFrame, image) != EComposed::NoFrame) return false;
    return image.Pixels() == NumberedPixels(32, 24);
}

}  // namespace

TEST(StickerFrame, TwelveFramesOfALibrary) {
    CLibraryFolders libraries({FolderOf("nowhere"), FolderOf("whole"), FolderOf("lacking")});
    CStickerFrame frame(libraries);
    for (int n = 1; n <= CStickerFrame::kCount; ++n) {
        CxImage image = NumberedImage(32, 24);
        ASSERT_EQ(frame.Compose(n, image), EComposed::Done);
        const auto byte = static_cast<std::uint8_t>(n);
        EXPECT_EQ(PixelAt(image.Pixels(), 3, 12),
                  (CColor{static_cast<std::uint8_t>(10 * n), static_cast<std::uint8_t>(20 * n), byte}));
        EXPECT_EQ(PixelAt(image.Pixels(), 4, 4), PixelAt(NumberedPixels(32, 24), 4, 4));
    }
}

TEST(StickerFrame, NoLibraryNoFunctionNoRecord) {
    EXPECT_TRUE(HasNoFrames({}));
    EXPECT_TRUE(HasNoFrames({FolderOf("nowhere")}));
    EXPECT_TRUE(HasNoFrames({FolderOf("lacking")}, {0, 3, 13}));
    EXPECT_TRUE(HasNoFrames({FolderOf("null")}, {5}));
    CLibraryFolders libraries({FolderOf("lacking")});
    CxImage image = NumberedImage(32, 24);
    EXPECT_EQ(CStickerFrame(libraries).Compose(4, image), EComposed::Done);
}

// A file that is no library, or half of one, a folder, a pipe that nobody writes to. The first of its name
// counts.
TEST(StickerFrame, SomethingElseInItsPlace) {
    std::ifstream whole(FolderOf("whole") + "/" + kName, std::ios::binary);
    const std::string strWhole{std::istreambuf_iterator<char>(whole), {}};
    ASSERT_GT(strWhole.size(), 4000U);
    std::vector<std::string> arrContents = {"", "no library", std::string(5000, '\0')};
    for (const std::size_t nLength : {16U, 64U, 100U, 600U, 1000U, 4000U})
        arrContents.push_back(strWhole.substr(0, nLength));
    arrContents.push_back(strWhole.substr(0, 64) + std::string(4000, '\x7f'));
    for (const std::string& strContent : arrContents) {
        const CTempFolder folder;
        std::ofstream(folder.Path(kName), std::ios::binary) << strContent;
        EXPECT_TRUE(HasNoFrames({folder.Path(), FolderOf("whole")})) << strContent.size();
    }
    const CTempFolder folder;
    fs::create_directory(folder.Path(kName));
    EXPECT_TRUE(HasNoFrames({folder.Path()}));
    fs::remove(folder.Path(kName));
    ASSERT_EQ(mkfifo(folder.Path(kName).c_str(), 0600), 0);
    EXPECT_TRUE(HasNoFrames({folder.Path()}));
}

TEST(StickerFrame, WhereAProgramHasItsLibraries) {
    ASSERT_EQ(unsetenv("FOTARIUM_LIBRARY_DIR"), 0);
    EXPECT_EQ(FoldersOfLibraries("/opt/f/bin"),
              (std::vector<std::string>{"/opt/f/lib/fotarium", "/opt/f/bin"}));
    setenv("FOTARIUM_LIBRARY_DIR", "", 1);
    EXPECT_EQ(FoldersOfLibraries("/opt/f/bin").size(), 2U);
    setenv("FOTARIUM_LIBRARY_DIR", "own frames", 1);
    EXPECT_EQ(FoldersOfLibraries("/opt/f/bin"),
              std::vector<std::string>{(fs::current_path() / "own frames").string()});
    unsetenv("FOTARIUM_LIBRARY_DIR");
}
