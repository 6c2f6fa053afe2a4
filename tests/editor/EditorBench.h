#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "editor/Editor.h"
#include "editor/FileCommands.h"
#include "editor/GeometryCommands.h"
#include "resources/Ids.h"
#include "support/Pictures.h"

// An edit with what it asks of a platform played, and with all that it tells kept.
class EditorBench : public testing::Test,
                    private CEditEvents,
                    private CMessageBoxes,
                    private CFileDialogs,
                    private CModalDialogs,
                    private CPreviewFactory {
  protected:
    EditorBench()
        : m_editor({m_images, *this, *this}),
          m_files({m_state, m_images, *this, *this, *this, m_editor}),
          m_geometry({m_state, m_images, *this, *this, m_editor}) {}

    // A numbered picture of 30 by 20 in that mode.
    void Open(EMode mode) {
        m_editor.TakePicture(NumberedImage(30, 20));
        m_images.SetDisplaySize({30, 20});
        m_state.m_bImageOpen = true;
        m_state.m_nMode = mode;
        m_arrEvents.clear();
    }
    const CxImage& Work() const { return m_images.m_imgWork; }
    std::vector<EEditEvent> TakeEvents() { return std::exchange(m_arrEvents, {}); }
    std::vector<CMessageBox> TakeBoxes() { return std::exchange(m_arrBoxes, {}); }

    CEditState m_state;
    CWorkingImages m_images;
    std::function<void(CDialog&)> m_fnRun = [](CDialog&) {};
    CEditor m_editor;
    CFileCommands m_files;
    CGeometryCommands m_geometry;

  private:
    void Tell(EEditEvent event) override { m_arrEvents.push_back(event); }
    EBoxAnswer Show(const CMessageBox& box) override {
        m_arrBoxes.push_back(box);
        return EBoxAnswer::Ok;
    }
    std::optional<CFileChoice> RunOpen(const CFileDialogRequest&, CFileDialogPanel*) override { return {}; }
    std::optional<CFileChoice> RunSave(const CFileDialogRequest&) override { return {}; }
    int Run(CDialog& dialog) override {
        dialog.OnInitDialog();
        m_fnRun(dialog);
        return dialog.HasEnded() ? dialog.EndCode() : CDialog::kDialogCancel;
    }
    std::unique_ptr<CFileDialogPanel> MakePreview() override { return nullptr; }

    std::vector<EEditEvent> m_arrEvents;
    std::vector<CMessageBox> m_arrBoxes;
};
