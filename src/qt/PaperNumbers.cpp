#include "qt/PaperNumbers.h"

#include <QPageSize>
#include <QSizeF>
#include <cmath>

namespace {

constexpr int kMostNumber = 41;
constexpr int kUnknownPaper = kOwnPaper + 1;

// Qt numbers papers the same way but for these: its sheets C to E are the larger ones of architects, and it
// has no number for the folio. Both sheets that are called B4 are of the shape that the table has.
int NumberOf(QPageSize::PageSizeId id) {
    switch (id) {
        case QPageSize::AnsiC:
            return 24;
        case QPageSize::AnsiD:
            return 25;
        case QPageSize::AnsiE:
            return 26;
        case QPageSize::ArchC:
        case QPageSize::ArchD:
        case QPageSize::ArchE:
            return kUnknownPaper;
        case QPageSize::Folio:
            return 14;
        case QPageSize::B4:
            return 12;
        default:
            break;
    }
    const int nNumber = QPageSize::windowsId(id);
    return nNumber >= 1 && nNumber <= kMostNumber ? nNumber : kUnknownPaper;
}

int Tenths(double fMillimetres) {
    return static_cast<int>(std::lround(fMillimetres * 10));
}

}  // namespace

CDeviceMode PaperModeOf(const QPageSize& size) {
    CDeviceMode mode;
    if (!size.isValid()) return mode;
    // A printer's own names stand beside the sizes that somebody has typed.
    if (size.id() != QPageSize::Custom)
        mode.nPaper = NumberOf(size.id());
    else if (!size.key().startsWith("Custom"))
        mode.nPaper = kUnknownPaper;
    else {
        const QSizeF typed = size.size(QPageSize::Millimeter);
        mode.nPaper = kOwnPaper;
        mode.sizeOwn = {Tenths(typed.width()), Tenths(typed.height())};
    }
    return mode;
}
