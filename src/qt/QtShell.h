#pragma once

#include <string>
#include <vector>

#include "window/Shell.h"

class CMessageBoxes;

// Files are thrown into the system's own trash, and opened by the program that the desktop has for them.
class CQtShell : public CShell {
  public:
    explicit CQtShell(CMessageBoxes& boxes) : m_boxes(boxes) {}

    bool Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) override;
    void Open(const std::string& strPath) override;

  private:
    bool Ask(const std::vector<std::string>& arrPaths, bool bToBin);
    bool AskWithoutBin(const std::vector<std::string>& arrPaths);
    void Report(const std::vector<std::string>& arrPaths);

    CMessageBoxes& m_boxes;
};
