#include "engines/page/PageLayout.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// Millimetres in an inch, as all of the reckoning has them.
constexpr double kInch = 25.399;

// The reference page at a resolution of its own: A4 lying has the sides swapped.
constexpr CSize kReference{640, 905};

// A picture smaller than this in either direction is small.
constexpr CSize kSmall{101, 76};

// The sides can be anything that an int holds.
struct CSides {
    std::int64_t w = 0;
    std::int64_t h = 0;
};

int ToInt(std::int64_t n) {
    return static_cast<int>(std::clamp<std::int64_t>(n, std::numeric_limits<int>::min() / 2,
                                                     std::numeric_limits<int>::max() / 2));
}

int ToInt(double f) {
    constexpr double kFarthest = 1e18;
    return ToInt(static_cast<std::int64_t>(std::clamp(f, -kFarthest, kFarthest)));
}

CSides Sides(CSize size) {
    return {size.cx, size.cy};
}

bool IsSmall(CSize size) {
    return size.cx < kSmall.cx || size.cy < kSmall.cy;
}

// --- steps that both share ---

// A picture that is larger than the reference page fills the page inside the margin; a smaller one keeps the
// share of the page that it has of the reference page.
CSides Fit(CSides picture, const CPage& page, EOrientation orientation) {
    CSides room{std::int64_t{page.nWidth} - page.nMargin, std::int64_t{page.nHeight} - page.nMargin};
    CSides reference = Sides(kReference);
    if (orientation == EOrientation::Landscape) {
        std::swap(room.w, room.h);
        std::swap(reference.w, reference.h);
    }
    if (picture.w <= reference.w && picture.h <= reference.h)
        return {picture.w * room.w / reference.w, room.w * picture.h / reference.w};
    if (picture.h * reference.w < picture.w * reference.h) return {room.w, picture.h * room.w / picture.w};
    return {picture.w * room.h / picture.h, room.h};
}

// Makes the sides no wider than that, in proportion; then no higher.
CSides Limit(CSides sides, std::int64_t nWidth, std::int64_t nHeight) {
    if (sides.w > nWidth && sides.w != 0) sides = {nWidth, nWidth * sides.h / sides.w};
    if (sides.h > nHeight && sides.h != 0) sides = {nHeight * sides.w / sides.h, nHeight};
    return sides;
}

// In the middle of the target where it is larger, else from its edge on.
CRect Place(CSides sides, CSize sizeTarget) {
    const std::int64_t nRight = std::int64_t{sizeTarget.cx} - sides.w;
    const std::int64_t nBelow = std::int64_t{sizeTarget.cy} - sides.h;
    return CRect::FromPlace(ToInt(std::max<std::int64_t>(0, nRight) / 2),
                            ToInt(std::max<std::int64_t>(0, nBelow) / 2), ToInt(sides.w), ToInt(sides.h));
}

CStampPlace MakeStamp(CSides sides, std::int64_t nSize, double fReserved) {
    const int nReserved = ToInt(fReserved);
    return {
        ToInt(nSize), nReserved, {ToInt(sides.w - nReserved), ToInt(static_cast<double>(sides.h) * 0.985)}};
}

// --- the preview ---

CPage PreviewPage(CSize sizeClient) {
    const std::int64_t nWidth = std::int64_t{sizeClient.cy} * kReference.cx / kReference.cy;
    return {ToInt(nWidth), sizeClient.cy, ToInt(nWidth * 20 / 210)};
}

CStampPlace PreviewStamp(CSize sizePicture, CSides sides) {
    const bool bSmall = IsSmall(sizePicture);
    const std::int64_t nSize = 2 * std::min(sides.w, sides.h) / (bSmall ? 29 : 75) + (bSmall ? 0 : 5);
    return MakeStamp(
        sides, nSize,
        static_cast<double>(nSize) * 118.1148864128509 / 25.0 + static_cast<double>(sides.w) * 0.005);
}

// --- the print ---

CPage PrintPage(CSize sizeDpi) {
    return {ToInt(sizeDpi.cx * 210.0 / kInch), ToInt(sizeDpi.cy * 297.0 / kInch),
            ToInt((sizeDpi.cx * 10.0 + sizeDpi.cx * 10.0) / kInch)};
}

std::int64_t Millimetres(std::int64_t nDots, int nDpi) {
    return nDpi == 0 ? 0 : static_cast<std::int64_t>(static_cast<double>(nDots) * kInch / nDpi);
}

CStampPlace PrintStamp(const CPage& page, CSize sizeDpi, CSides sides) {
    const std::int64_t nBase = std::int64_t{25} * std::max(sizeDpi.cx, sizeDpi.cy) / 300;
    const CSides millimetres{Millimetres(sides.w, sizeDpi.cx), Millimetres(sides.h, sizeDpi.cy)};
    const bool bLarge = sides.w > (std::int64_t{page.nWidth} - page.nMargin) * 100 / kReference.cx &&
                        sides.h > (std::int64_t{page.nHeight} - page.nMargin) * 75 / kReference.cy;
    const int nPart = bLarge ? 80 : 25;
    const int nStep = bLarge ? 7 : 1;
    const CSize sizeAdded = bLarge ? sizeDpi : CSize{3, 3};
    const std::int64_t nSize = millimetres.w > millimetres.h
                                   ? nBase * millimetres.h / nPart + sizeAdded.cy / nStep
                                   : nBase * millimetres.w / nPart + sizeAdded.cx / nStep;
    const std::int64_t nTenths = nSize * 10 / 25;
    return MakeStamp(sides, nSize,
                     static_cast<double>(nTenths * 300) / kInch + static_cast<double>(sides.w) * 0.01);
}

}  // namespace

CPreviewLayout LayOutPreview(CSize sizePicture, CSize sizeClient, const CDeviceMode& mode) {
    const CPage page = PreviewPage(sizeClient);
    CSides sides = Fit(Sides(sizePicture), page, mode.orientation);
    // The sheet is as large as the client area allows one of its proportions; on a smaller paper the picture
    // takes more of it.
    const CSides paper = Sides(PaperSize(mode));
    CSides sheet = Sides(sizeClient);
    if (paper.h <= paper.w) {
        sheet.h = sheet.w * paper.h / paper.w;
        sides = {sides.w * 297 / paper.w, sides.h * 297 / paper.w};
    } else {
        sheet.w = sheet.h * paper.w / paper.h;
        sides = {sides.w * 297 / paper.h, sides.h * 297 / paper.h};
    }
    if (mode.orientation == EOrientation::Landscape) std::swap(sheet.w, sheet.h);
    sides = Limit(sides, sheet.w - page.nMargin, sheet.h - page.nMargin);

    CPreviewLayout layout;
    layout.page = page;
    layout.rcPicture = Place(sides, sizeClient);
    layout.rcSheet = CRect::FromPlace(ToInt((sizeClient.cx - sheet.w) / 2),
                                      ToInt((sizeClient.cy - sheet.h) / 2), ToInt(sheet.w), ToInt(sheet.h));
    layout.bTiny = IsSmall(sizePicture);
    layout.stamp = PreviewStamp(sizePicture, sides);
    return layout;
}

CPageLayout LayOutPrint(CSize sizePicture, CSize sizeDpi, CSize sizePrintable, EOrientation orientation) {
    const CPage page = PrintPage(sizeDpi);
    const CSides sides =
        Limit(Fit(Sides(sizePicture), page, orientation), sizePrintable.cx, sizePrintable.cy);
    return {page, Place(sides, sizePrintable), PrintStamp(page, sizeDpi, sides)};
}
