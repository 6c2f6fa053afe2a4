#pragma once

#include <QDesktopServices>
#include <QUrl>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "window/Shell.h"

class CMessageBoxes;

// Files are thrown into the system's own trash, and opened by the program that the desktop has for them.
class CQtShell : public CShell {
  public:
    using CLaunch = std::function<bool(const QUrl&)>;

    explicit CQtShell(CMessageBoxes& boxes, CLaunch fnLaunch = QDesktopServices::openUrl)
        : m_boxes(boxes), m_fnLaunch(std::move(fnLaunch)) {}

    [[nodiscard]] bool Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) override;
    void Open(const std::string& strPath) override;

  private:
    bool Ask(const std::vector<std::string>& arrPaths, bool bToBin);
    bool AskWithoutBin(const std::vector<std::string>& arrPaths);
    void Report(const std::vector<std::string>& arrPaths);

    CMessageBoxes& m_boxes;
    CLaunch m_fnLaunch;
};
