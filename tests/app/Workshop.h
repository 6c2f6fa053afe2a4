#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "app/MainDlg.h"
#include "play/ScriptedPlatform.h"
#include "resources/Ids.h"
#include "resources/Texts.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

inline constexpr EMode kAllModes[] = {EMode::Thum, EMode::Draw, EMode::Effect, EMode::Font, EMode::Stick};

inline int TabOf(EMode mode) {
    constexpr int kTabs[] = {kTabThum, kTabDraw, kTabEffect, kTabFont, kTabStick};
    return kTabs[static_cast<std::size_t>(mode)];
}

inline std::ostream& operator<<(std::ostream& out, EMode mode) {
    return out << static_cast<int>(mode);
}

// All that a refused command must leave alone.
struct CSnapshot {
    EMode mode = EMode::Thum;
    int nUndo = 0;
    int nRedo = 0;
    CSize sizeDisplay;
    bool bPhoneSize = false;
    bool bImageOpen = false;
    CPixels opened, work, display;
    std::string strPath, strName;
    std::vector<int> arrShown, arrEnabled;
    bool operator==(const CSnapshot&) const = default;
};

// The main window on a platform without windows, with a folder of its own.
class Workshop : public testing::Test {
  protected:
    Workshop() : m_dialog(m_platform.Get()), m_host(m_platform, m_dialog) { m_host.Init(); }

    void TearDown() override {
        for (const CProblem& problem : m_platform.TakeProblems()) ADD_FAILURE() << problem.strText;
        EXPECT_EQ(m_platform.WaitDepth(), 0);
        EXPECT_TRUE(m_platform.TakeBoxes().empty());
    }

    const CEditState& State() const { return m_dialog.State(); }
    const CWorkingImages& Images() const { return m_dialog.Images(); }
    CControlSet& Controls() { return m_dialog.Controls(); }
    int Undos() const { return Images().m_stackUndo.Count(); }
    int Redos() const { return Images().m_stackRedo.Count(); }

    void Click(int nId) { EXPECT_EQ(m_host.Click(nId), "") << "control " << nId; }
    bool CtrlKey(int nKey) { return m_dialog.OnKey({nKey, true, false}); }
    void GoTo(EMode nMode) {
        if (State().m_nMode != nMode) Click(TabOf(nMode));
    }

    std::string SavePicture(const std::string& strName, const CxImage& image) {
        EXPECT_TRUE(image.Save(m_folder.Path(strName), FindImageTypeOfName(strName)));
        return m_folder.Path(strName);
    }
    void Open(const std::string& strPath) {
        m_platform.AnswerOpen(strPath);
        Click(kCmdOpen);
    }
    void SaveAs(const std::string& strPath) {
        m_platform.AnswerSave(strPath);
        Click(kCmdSave);
    }
    // Opens a numbered picture from a lossless file.
    void OpenNumbered(int nWidth, int nHeight, int nBlue = 0) {
        Open(SavePicture("numbered.png", NumberedImage(nWidth, nHeight, nBlue)));
        ASSERT_EQ(Images().m_imgWork.Pixels(), NumberedPixels(nWidth, nHeight, nBlue));
    }
    // A picture of the edit as something else would have left it.
    static CxImage& Touch(const CxImage& image) { return const_cast<CxImage&>(image); }
    // One step of an edit: a push, and the working image in a new colour. Stays in STICK.
    void Edit(std::uint8_t nColor) {
        GoTo(EMode::Stick);
        Click(Images().IsPhoneSize() ? kRadioPhoneSize : kRadioImageSize);
        PaintOver(Touch(Images().m_imgWork), {nColor, nColor, nColor});
    }
    CColor WorkColor() const { return PixelAt(Images().m_imgWork.Pixels(), 0, 0); }

    CSnapshot Snapshot() const {
        const CWorkingImages& images = Images();
        CSnapshot now{State().m_nMode,
                      Undos(),
                      Redos(),
                      images.DisplaySize(),
                      images.IsPhoneSize(),
                      State().m_bImageOpen,
                      {},
                      {},
                      {},
                      State().m_strFilePath,
                      State().m_strFileName,
                      {},
                      {}};
        if (State().m_bImageOpen) {
            now.opened = images.m_imgOpened.Pixels();
            now.work = images.m_imgWork.Pixels();
            now.display = images.m_imgDisplay.Pixels();
        }
        for (const CControl& control : m_dialog.Controls().All()) {
            if (control.bShown) now.arrShown.push_back(control.nId);
            if (control.bEnabled) now.arrEnabled.push_back(control.nId);
        }
        return now;
    }

    // The boxes since the last call are just these.
    void ExpectBoxes(const std::vector<CMessageBox>& arrBoxes) {
        EXPECT_EQ(m_platform.TakeBoxes(), arrBoxes);
        // Nobody is made to answer a box that only tells something.
        m_platform.TakeProblems();
    }

    CTempFolder m_folder;
    CScriptedPlatform m_platform;
    CMainDlg m_dialog;
    CPlayHost m_host;
};
