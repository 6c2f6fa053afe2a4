#include <filesystem>

#include "app/Workshop.h"
#include "support/FullDisk.h"

namespace {

const CMessageBox kSaveFailed{"Error: Saving a File", "Orvo Fotarium V 1.0", EBoxIcon::Exclamation,
                              EBoxButtons::Ok};

class SaveTest : public Workshop {
  protected:
    SaveTest() {
        OpenNumbered(200, 150);
        Edit(1);
        Edit(2);
        Click(kCmdUndo);
        PaintOver(Touch(Images().m_imgWork), {60, 120, 180});
        GoTo(EMode::Effect);
    }

    CxImage Load(const std::string& strName) {
        return CxImage(m_folder.Path(strName), FindImageTypeOfName(strName));
    }

    // The save fails with the box and leaves edit, names and folder alone.
    void ExpectRefused(const std::string& strPath) {
        const CSnapshot before = Snapshot();
        const std::set<std::string> setNames = m_folder.Names();
        SaveAs(strPath);
        ExpectBoxes({kSaveFailed});
        EXPECT_TRUE(Snapshot() == before);
        EXPECT_EQ(m_folder.Names(), setNames);
    }
};

}  // namespace

TEST_F(SaveTest, TheNameDecidesTheFormat) {
    struct {
        const char* szTyped;
        const char* szFile;
        const char* szStart;  // of the file's bytes
    } const kCases[] = {
        {"plain", "plain.jpg", "\xFF\xD8\xFF\xE0"},
        {"照片 一", "照片 一.jpg", "\xFF\xD8"},
        {"a.jpg", "a.jpg", "\xFF\xD8"},
        {"B.JPG", "B.JPG", "\xFF\xD8"},
        {"c.png", "c.png", "\x89PNG"},
        {"d.BMP", "d.BMP", "BM"},
        {"e.tar.tif", "e.tar.tif", "II"},
        {"quo\"te.gif", "quo\"te.gif", "GIF8"},
        {"new\nline.ppm", "new\nline.ppm", "P6"},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.szTyped);
        SaveAs(m_folder.Path(row.szTyped));
        const std::string strBytes = ReadBytes(m_folder.Path(row.szFile));
        EXPECT_EQ(strBytes.substr(0, std::string(row.szStart).size()), row.szStart);
        EXPECT_EQ(Load(row.szFile).GetSize(), (CSize{200, 150}));
        // Nothing of the edit follows the name of the file that was written.
        EXPECT_EQ(State().m_strFileName, "numbered.png");
        EXPECT_EQ(State().m_strFilePath, m_folder.Path("numbered.png"));
        EXPECT_EQ(std::pair(Undos(), Redos()), std::pair(1, 1));
        EXPECT_TRUE(Controls().IsEnabled(kCmdUndo) && Controls().IsEnabled(kCmdRedo));
        EXPECT_EQ(Controls().Focus(), kEffectList);
    }
    // A point in a folder's name is none of the file's.
    std::filesystem::create_directory(m_folder.Path("dotted.folder"));
    SaveAs(m_folder.Path("dotted.folder/inside"));
    EXPECT_TRUE(Load("dotted.folder/inside.jpg").IsValid());
}

TEST_F(SaveTest, AsksWithTheNameOfThePicture) {
    m_platform.TakeAsked();
    const CSnapshot before = Snapshot();
    const std::set<std::string> setNames = m_folder.Names();
    m_platform.AnswerCancel();
    Click(kCmdSave);
    EXPECT_TRUE(Snapshot() == before);
    EXPECT_EQ(m_folder.Names(), setNames);
    const std::vector<CAsked> arrAsked = m_platform.TakeAsked();
    ASSERT_EQ(arrAsked.size(), 1U);
    EXPECT_EQ(arrAsked[0].question, EQuestion::Save);
    EXPECT_EQ(arrAsked[0].request.strFilter, "JPEG Files (*.JPG)|*.jpg||");
    EXPECT_EQ(arrAsked[0].request.strDefaultName, "numbered.png");
}

TEST_F(SaveTest, EachModeWritesWhatItShows) {
    OpenNumbered(700, 500);
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    Click(kRadioImageSize);
    Click(kCmdUndo);
    Click(kRadioImageSize);
    const CPixels work = NumberedPixels(700, 500);
    const CSize sizeDisplay{176, 144};
    ASSERT_EQ(Images().DisplaySize(),
              sizeDisplay);  // smaller than the working image, by the rule of the edit

    struct {
        EMode nMode;
        CSize size;
    } const kCases[] = {{EMode::Effect, sizeDisplay},
                        {EMode::Stick, sizeDisplay},
                        {EMode::Font, {649, 464}},
                        {EMode::Draw, {700, 500}}};
    for (const auto& [nMode, size] : kCases) {
        GoTo(nMode);
        SCOPED_TRACE(nMode);
        SaveAs(m_folder.Path("out.png"));
        EXPECT_EQ(Load("out.png").Pixels(), NaiveResample(work, size.cx, size.cy));
        EXPECT_EQ(State().m_nMode, nMode);
        EXPECT_EQ(Images().m_imgWork.Pixels(), work);
    }
    EXPECT_EQ(m_dialog.Draw().Paper().Committed().Pixels(), work);
}

TEST_F(SaveTest, OverTheOpenedFileItself) {
    SaveAs(m_folder.Path("numbered.png"));
    EXPECT_EQ(Load("numbered.png").Pixels(), Images().m_imgWork.Pixels());
    EXPECT_EQ(Images().m_imgOpened.Pixels(), NumberedPixels(200, 150));
    Click(kCmdReset);
    EXPECT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(200, 150));
}

TEST_F(SaveTest, WhatCannotBeWrittenIsReportedAndLeavesTheEdit) {
    std::filesystem::create_directory(m_folder.Path("folder.jpg"));
    m_folder.Write("file", "a file and no folder");
    for (const EMode nMode : {EMode::Effect, EMode::Stick, EMode::Font, EMode::Draw}) {
        GoTo(nMode);
        // DRAW has fetched the canvas before it writes.
        if (nMode == EMode::Draw) SaveAs(m_folder.Path("first.jpg"));
        for (const char* const szName : {"photo.unknown", "photo.", "photo.emf", "photo.wmf",
                                         "none/photo.jpg", "none/photo", "file/photo.jpg", "folder.jpg"}) {
            SCOPED_TRACE(szName);
            ExpectRefused(m_folder.Path(szName));
        }
        ExpectRefused("/proc/photo.jpg");
        ExpectRefused(m_folder.Path(std::string(300, 'x') + ".jpg"));
    }
}

TEST_F(SaveTest, AFullDiskCostsNoOldFile) {
    for (const char* const szName : {"old.jpg", "old.png", "old.bmp"}) {
        SCOPED_TRACE(szName);
        SaveAs(m_folder.Path(szName));
        const std::string strOld = ReadBytes(m_folder.Path(szName));
        for (const rlim_t nBytes : {rlim_t{0}, rlim_t{100}, static_cast<rlim_t>(strOld.size() - 1)}) {
            const CFullDisk disk(nBytes);
            ExpectRefused(m_folder.Path(szName));
        }
        EXPECT_TRUE(ReadBytes(m_folder.Path(szName)) == strOld);
        SaveAs(m_folder.Path(szName));
        EXPECT_TRUE(ReadBytes(m_folder.Path(szName)) == strOld);
    }
}
