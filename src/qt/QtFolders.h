#pragma once

#include "window/Folders.h"

class CQtFolders : public CFolders {
  public:
    char Separator() const override;
    std::string CurrentFolder() const override;
    [[nodiscard]] bool SetCurrentFolder(const std::string& strFolder) override;
    std::string InstallValue() const override;
};
