#include "qt/QtPrinters.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "qt/ArrowCursor.h"
#include "qt/PaperNumbers.h"
#include "qt/PdfDevice.h"
#include "qt/PrintQueue.h"
#include "qt/QueueDevice.h"
#include "window/FileDialogs.h"

namespace {

// Null if the system has none.
QPrinterInfo DefaultPrinter() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (!info.isNull()) return info;
    const QStringList arrNames = QPrinterInfo::availablePrinterNames();
    return arrNames.isEmpty() ? info : QPrinterInfo::printerInfo(arrNames.constFirst());
}

// The finest that the printer offers, up to where every pixel of a large photograph is a dot or more: beyond,
// the pages only grow.
int ChooseResolution(const QPrinter& printer) {
    constexpr int kEnough = 600;
    QList<int> arrOffered = QPrinterInfo(printer).supportedResolutions();
    if (arrOffered.isEmpty()) return kEnough;
    std::sort(arrOffered.begin(), arrOffered.end());
    const auto it = std::upper_bound(arrOffered.cbegin(), arrOffered.cend(), kEnough);
    return it == arrOffered.cbegin() ? *it : *std::prev(it);
}

// As wide margins as the printer needs on this paper, and no wider.
void ReachAsFarAsItCan(QPrinter& printer) {
    QPageLayout layout = printer.pageLayout();
    layout.setMargins(layout.minimumMargins());
    printer.setPageLayout(layout);
}

std::unique_ptr<QPrinter> SetUpPrinter(const QPrinterInfo& info) {
    auto pPrinter = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (info.defaultPageSize().isValid()) pPrinter->setPageSize(info.defaultPageSize());
    if (QueueOrientation(info.printerName()) == EOrientation::Landscape)
        pPrinter->setPageOrientation(QPageLayout::Landscape);
    return pPrinter;
}

class CPrintWindow : public QPrintDialog {
  public:
    CPrintWindow(QPrinter& printer, QWidget* pParent) : QPrintDialog(&printer, pParent) {
        setOptions(PrintShowPageSize | PrintCollateCopies);
    }
    // Qt offers a choice of pages whatever the options are, and brings it back whenever it shows the window.
    void setVisible(bool bVisible) override {
        QPrintDialog::setVisible(bVisible);
        if (auto* pPages = findChild<QWidget*>("gbPrintRange")) pPages->hide();
    }
};

}  // namespace

std::optional<CDeviceMode> CQtPrinters::DefaultMode() {
    const QPrinterInfo info = DefaultPrinter();
    if (info.isNull()) return PaperModeOf(CPdfDevice::Paper().pageSize());
    CDeviceMode mode = PaperModeOf(info.defaultPageSize());
    mode.orientation = QueueOrientation(info.printerName());
    return mode;
}

std::unique_ptr<CPrintDevice> CQtPrinters::RunDialog() {
    const QPrinterInfo info = DefaultPrinter();
    if (info.isNull()) return AskForFile();
    const CArrowCursor arrow;
    std::unique_ptr<QPrinter> pPrinter = SetUpPrinter(info);
    CPrintWindow window(*pPrinter, QApplication::activeModalWidget());
    if (window.exec() != QDialog::Accepted) return nullptr;
    pPrinter->setResolution(ChooseResolution(*pPrinter));
    ReachAsFarAsItCan(*pPrinter);
    return std::make_unique<CQueueDevice>(std::move(pPrinter));
}

std::unique_ptr<CPrintDevice> CQtPrinters::AskForFile() {
    // The edit stays in the folder where it was.
    std::error_code error;
    const std::filesystem::path pathBefore = std::filesystem::current_path(error);
    const auto choice = m_files.RunSave(CPdfDevice::Request());
    if (!pathBefore.empty()) std::filesystem::current_path(pathBefore, error);
    return choice ? std::make_unique<CPdfDevice>(choice->strPath) : nullptr;
}
