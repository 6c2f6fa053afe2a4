#pragma once

#include <string>

#include "editor/Editor.h"
#include "window/Dialog.h"
#include "window/FileDialogs.h"
#include "window/Folders.h"

// What the open command shows beside the list of files; made anew for each run of the dialog.
class CPreviewFactory {
  public:
    virtual ~CPreviewFactory() = default;
    virtual std::unique_ptr<CFileDialogPanel> MakePreview() = 0;
};

// The commands that begin and end an edit: Open, New, Save. No question about unsaved work is asked.
class CFileCommands {
  public:
    // All of these outlive the commands.
    struct CEnvironment {
        CEditState& state;
        CWorkingImages& images;
        CControlSet& controls;
        CCanvasPort& canvas;
        CToolPort& tools;
        CEditorHost& host;
        CMessageBoxes& boxes;
        CWaitCursor& wait;
        CFileDialogs& files;
        CFolders& folders;
        CPreviewFactory& previews;
        CEditor& editor;
    };
    explicit CFileCommands(const CEnvironment& env) : m_env(env) {}

    // Chooses a file and opens it.
    void OnOpen();
    // Opens a file of the file list; the folder may or may not end in a separator.
    void OpenFileByName(const std::string& strFolder, const std::string& strName);
    // A white page in the shape of the open picture, 640 by 480 for a first one.
    void OnNew();
    // Writes the display image.
    void OnSave();

  private:
    bool TakeNames(const std::string& strPath, const std::string& strName);
    bool Load(CxImage& image);
    void StartEdit(const CxImage& image);
    void EnterEdit();
    void SaveTo(CFileChoice choice);

    CEnvironment m_env;
};
