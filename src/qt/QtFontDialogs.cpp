#include "qt/QtFontDialogs.h"

#include <QApplication>

#include "qt/ArrowCursor.h"
#include "qt/FontWindow.h"

std::optional<CFontChoice> CQtFontDialogs::Run(const CFontChoice& start) {
    const CArrowCursor arrow;
    CFontWindow window(start, QApplication::activeModalWidget());
    if (window.exec() != QDialog::Accepted) return std::nullopt;
    return window.Choice();
}
