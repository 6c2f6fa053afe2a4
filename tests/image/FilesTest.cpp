#include <gtest/gtest.h>
#include <sys/stat.h>

#include "image/JpegFiles.h"
#include "image/TestPictures.h"
#include "support/FullDisk.h"

namespace {

class Files : public CFolderTest {
  protected:
    // What has no picture has no head either.
    static bool Opens(const std::string& strPath) {
        const ImageType type = FindImageTypeOfName(strPath);
        const bool bOpens = LoadPicture(strPath, type).IsValid();
        EXPECT_EQ(ReadImageHead(strPath, type) != CImageHead(), bOpens) << strPath;
        return bOpens;
    }
};

TEST_F(Files, TheNameAloneTellsTheType) {
    for (const char* const szName :
         {"a.jpeg", "a..jpg", "archive.tar.jpg", "photo.JPG", "\xE7\x85\xA7\xE7\x89\x87.Jpeg"})
        EXPECT_EQ(FindImageTypeOfName(szName), ImageType::kJpeg) << szName;
    for (const char* const szName : {"", "jpg", "a.", "a.jpg.", "a.jpg ", "a.jpge", "a.b/photo", "a.jpg\n"})
        EXPECT_EQ(FindImageTypeOfName(szName), ImageType::kUnknown) << szName;
    EXPECT_EQ(FindImageType("JPG"), ImageType::kUnknown) << "the caller lowers the case";
    EXPECT_EQ(GetFileExtension("C:\\a.b\\photo"), "b\\photo");
}

TEST_F(Files, WhatIsNoPictureOrClaimsTooMuchIsNotValid) {
    ASSERT_TRUE(SmoothPicture(9, 9).Save(Path("png.jpg"), ImageType::kPng));
    ASSERT_EQ(mkfifo(Path("pipe.jpg").c_str(), 0600), 0);
    WriteText(Path("a.ppm"), "P6 65500 65500 255\n" + std::string(3000, 'x'));
    Bytes bmp = {'B', 'M', 0, 0,    0,    0, 0, 0,    0,    0, 54, 0, 0, 0, 40,
                 0,   0,   0, 0xDC, 0xFF, 0, 0, 0xDC, 0xFF, 0, 0,  1, 0, 24};
    bmp.resize(54 + 3000);
    WriteBytes(Path("a.bmp"), bmp);
    for (const std::string& strName : Listing()) EXPECT_FALSE(Opens(Path(strName))) << strName;
    EXPECT_FALSE(Opens(Path("missing.jpg")));
    EXPECT_FALSE(Opens(Path(std::string("png.jpg") + '\0' + ".jpg")));
}

TEST_F(Files, NamesMayHoldAnything) {
    const auto fnOpen = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const auto nOpen = fnOpen();
    const CxImage picture = SmoothPicture(12, 9);
    for (const char* const szName : {"\xE7\x85\xA7 \xE7\x89\x87.jpg", "a 'b' `d` $e;\n%s%d@~*?[.jpg",
                                     "-rf.jpg", "png:x.jpg", "\xFF\xFE.jpg"}) {
        ASSERT_TRUE(picture.Save(Path(szName), ImageType::kJpeg)) << szName;
        EXPECT_TRUE(Opens(Path(szName))) << szName;
    }
    const std::string strLong = std::string(251, 'n') + ".jpg";
    EXPECT_TRUE(picture.Save(Path(strLong), ImageType::kJpeg)) << "as long as a name can be";
    EXPECT_FALSE(picture.Save(Path("n" + strLong), ImageType::kJpeg));
    EXPECT_EQ(fnOpen(), nOpen) << "files are closed again";
}

TEST_F(Files, ASaveThatFailsLeavesEverythingAsItWas) {
    const CxImage old = SmoothPicture(12, 9);
    const CxImage large = SmoothPicture(900, 700);
    const std::string strPath = Path("old.jpg");
    ASSERT_TRUE(old.Save(strPath, ImageType::kJpeg));
    const Bytes file = BytesOf(strPath);
    std::filesystem::create_directory(Path("folder.jpg"));
    ASSERT_EQ(mkfifo(Path("pipe.jpg").c_str(), 0600), 0);
    std::filesystem::create_symlink("ring.jpg", Path("ring.jpg"));
    const std::set<std::string> names = Listing();
    const auto OpenFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const auto nOpenFiles = OpenFiles();

    for (const ImageType type : {ImageType::kJpeg, ImageType::kPng, ImageType::kBmp}) {
        const CFullDisk disk(2000);
        EXPECT_FALSE(large.Save(strPath, type)) << "a full disk";
        EXPECT_FALSE(large.Save(Path("new.jpg"), type));
    }
    EXPECT_FALSE(large.Save(strPath, ImageType::kWmf));
    EXPECT_FALSE(large.Save(Path("folder.jpg"), ImageType::kJpeg));
    EXPECT_FALSE(large.Save(Path("pipe.jpg"), ImageType::kJpeg)) << "a pipe is not replaced by a file";
    EXPECT_FALSE(large.Save(Path("ring.jpg"), ImageType::kJpeg));
    EXPECT_FALSE(large.Save(Path("missing/new.jpg"), ImageType::kJpeg));
    EXPECT_FALSE(large.Save(strPath + "/new.jpg", ImageType::kJpeg)) << "a file is no folder";
    EXPECT_FALSE(large.Save("/proc/new.jpg", ImageType::kJpeg)) << "a folder that not even root can write";
    EXPECT_FALSE(large.Save(Path("folder.jpg/"), ImageType::kJpeg));
    EXPECT_FALSE(large.Save("", ImageType::kJpeg));

    EXPECT_EQ(BytesOf(strPath), file);
    EXPECT_EQ(Listing(), names) << "no temporary file is left behind";
    EXPECT_EQ(OpenFiles(), nOpenFiles);
    EXPECT_TRUE(large.Save(strPath, ImageType::kJpeg));
    EXPECT_EQ(Listing(), names);
}

TEST_F(Files, SavingOverAFileKeepsItsRightsAndItsLinks) {
    const std::string strPath = Path("photo.jpg");
    struct stat status {};
    const mode_t nMask = umask(0027);
    ASSERT_TRUE(SmoothPicture(12, 9).Save(strPath, ImageType::kJpeg));
    umask(nMask);
    ASSERT_EQ(stat(strPath.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U) << "a new file's are the user's own";
    ASSERT_EQ(chmod(strPath.c_str(), 0604), 0);
    std::filesystem::create_directory(Path("links"));
    std::filesystem::create_symlink("../photo.jpg", Path("links/photo.jpg"));

    CxImage image(Path("links/photo.jpg"), ImageType::kJpeg);
    ASSERT_TRUE(image.Rotate(90.0));
    ASSERT_TRUE(image.Save(Path("links/photo.jpg"), ImageType::kJpeg)) << "over the opened file itself";
    EXPECT_TRUE(std::filesystem::is_symlink(Path("links/photo.jpg")));
    EXPECT_EQ(CxImage(strPath, ImageType::kJpeg).GetSize(), (CSize{9, 12}));
    ASSERT_EQ(stat(strPath.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0604U);
}

}  // namespace
