#pragma once

#include "window/Printers.h"

class CFileDialogs;

// The system's printers. Where there is none, a printer of our own stands in for them, which puts the page
// into a PDF file that the user names.
class CQtPrinters : public CPrinters {
  public:
    explicit CQtPrinters(CFileDialogs& files) : m_files(files) {}

    std::optional<CDeviceMode> DefaultMode() override;
    std::unique_ptr<CPrintDevice> RunDialog() override;

  private:
    std::unique_ptr<CPrintDevice> AskForFile();

    CFileDialogs& m_files;
};
