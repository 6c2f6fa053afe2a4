#pragma once

#include <QFileDialog>
#include <QLabel>
#include <filesystem>
#include <string>

#include "qt/FileDateDelegate.h"
#include "qt/UnlistedFiles.h"
#include "window/FileDialogs.h"

// The window of the file dialogs: a list of the current folder with a line to type a name in. When opening, a
// name need not exist and need not match the filter. When saving, a name without extension gets the request's
// and an existing file is asked about.
class CFileWindow : public QFileDialog {
  public:
    CFileWindow(AcceptMode mode, const CFileDialogRequest& request, QWidget* pParent);

    // Puts a widget at the right of the list and the name line.
    void AddBeside(QWidget& widget);
    // Full path, as the file system has it.
    std::string ChosenPath() const;

  protected:
    void accept() override;

  private:
    void SetUpColumns();
    void SetUpUnlisted();
    void FillUnlisted();
    bool AskReplace(const std::string& strPath);
    void TellNoFolder(const std::filesystem::path& folder);

    CFileDateDelegate m_dates;
    QLabel m_labelUnlisted;
    CUnlistedFiles m_unlisted;
};
