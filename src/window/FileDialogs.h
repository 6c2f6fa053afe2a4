#pragma once

#include <optional>
#include <string>

class CFileDialogPanel;

struct CFileDialogRequest {
    // Pairs of label and pattern, each closed by a bar, the whole closed by one more:
    // "JPG Files (*.JPG)|*.jpg||".
    std::string strFilter;
    std::string strDefaultName;
    std::string strSuffix = "jpg";  // of a name that is typed without one, when saving
};

struct CFileChoice {
    std::string strPath;  // full path
    std::string strName;  // bare name
    bool operator==(const CFileChoice&) const = default;
};

// The system's file dialogs. On OK the folder of the chosen file becomes the process's current folder.
class CFileDialogs {
  public:
    virtual ~CFileDialogs() = default;
    // Offers existing files; a name may be typed that does not exist. The panel, which may be null, is shown
    // beside the list for as long as the dialog is up. Nothing when the user cancels.
    virtual std::optional<CFileChoice> RunOpen(const CFileDialogRequest& request,
                                               CFileDialogPanel* pPanel) = 0;
    // Asks before an existing file is chosen. Nothing when the user cancels.
    virtual std::optional<CFileChoice> RunSave(const CFileDialogRequest& request) = 0;
};
