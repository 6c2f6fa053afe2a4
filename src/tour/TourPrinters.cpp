#include "tour/TourPrinters.h"

#include <QProcess>

#include "qt/PdfDevice.h"
#include "window/FileDialogs.h"

std::optional<CDeviceMode> CTourPrinters::DefaultMode() {
    return CDeviceMode{.orientation = m_orientation};
}

std::unique_ptr<CPrintDevice> CTourPrinters::RunDialog() {
    QPageLayout layout = CPdfDevice::Paper();
    if (m_orientation == EOrientation::Landscape) layout.setOrientation(QPageLayout::Landscape);
    const auto choice = m_files.RunSave(CPdfDevice::Request());
    return choice ? std::make_unique<CPdfDevice>(choice->strPath, layout) : nullptr;
}

QImage LookAtPage(const QString& strPdf) {
    QProcess tool;
    tool.start("pdftoppm", {"-r", "100", "-png", "-singlefile", strPdf});
    if (!tool.waitForFinished()) return {};
    return QImage::fromData(tool.readAllStandardOutput(), "png");
}
