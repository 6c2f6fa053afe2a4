#pragma once

#include <memory>
#include <optional>
#include <string>

#include "editor/Editor.h"
#include "window/Dialog.h"
#include "window/FileDialogs.h"

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
        CMessageBoxes& boxes;
        CFileDialogs& files;
        CPreviewFactory& previews;
        CEditor& editor;
    };
    explicit CFileCommands(const CEnvironment& env) : m_env(env) {}

    // Asks for a file to open, or for the name of one to save as. Nothing if the user cancels.
    std::optional<CFileChoice> ChooseOpen();
    std::optional<CFileChoice> ChooseSave();

    // Opens the file. The edit's names are the file's from here on, whatever becomes of it. False if the open
    // picture stays: behind a message if the file is no picture, without one if its name has no extension.
    [[nodiscard]] bool Open(const CFileChoice& choice);
    // A white page in the shape of the open picture, 640 by 480 for a first one, as the mode shows it. False,
    // and nothing has changed, behind a message that there is no memory for it.
    [[nodiscard]] bool MakePage(EMode mode);
    // What a new page is called. The path stays that of the last file.
    void NamePage();
    // Writes the image; a name without a point becomes a JPEG's. False behind a message.
    [[nodiscard]] bool Save(const CFileChoice& choice, const CxImage& image);

  private:
    CEnvironment m_env;
};
