#pragma once

#include <QImage>
#include <QString>

#include "window/Clock.h"
#include "window/Printers.h"

class CFileDialogs;

// The printer of the walk, the same wherever it runs: the program's own, which makes PDF files. Its paper can
// be laid the other way, and it is always the same day.
class CTourPrinters : public CPrinters, public CClock {
  public:
    // The dialogs outlive the printers.
    explicit CTourPrinters(CFileDialogs& files) : m_files(files) {}

    void Lay(EOrientation orientation) { m_orientation = orientation; }

    std::optional<CDeviceMode> DefaultMode() override;
    std::unique_ptr<CPrintDevice> RunDialog() override;
    CDate Today() override { return {2006, 1, 2}; }

  private:
    CFileDialogs& m_files;
    EOrientation m_orientation = EOrientation::Portrait;
};

// The page of a PDF file at 100 dots an inch; null if there is none, or no tool to read it.
QImage LookAtPage(const QString& strPdf);
