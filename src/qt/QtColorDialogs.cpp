#include "qt/QtColorDialogs.h"

#include <QApplication>
#include <QColorDialog>

#include "qt/ArrowCursor.h"

std::optional<CColor> CQtColorDialogs::Run(CColor colorStart) {
    const CArrowCursor arrow;
    QColorDialog window(QColor(colorStart.r, colorStart.g, colorStart.b), QApplication::activeModalWidget());
    window.setOption(QColorDialog::DontUseNativeDialog);
    window.setWindowTitle("颜色");
    if (window.exec() != QDialog::Accepted) return std::nullopt;
    const QRgb rgb = window.selectedColor().rgb();
    return CColor{static_cast<std::uint8_t>(qRed(rgb)), static_cast<std::uint8_t>(qGreen(rgb)),
                  static_cast<std::uint8_t>(qBlue(rgb))};
}
