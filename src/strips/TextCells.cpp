#include "strips/TextCells.h"

#include <QFontMetrics>
#include <QPainter>

#include "engines/warp/TextWarp.h"
#include "resources/Grounds.h"
#include "resources/MainDialog.h"

namespace {

// The engine works on type of this height, and on a cell so many times as large as it is shown: the smaller
// the type, the wider is an outline beside its letters, and the larger the cell, the smoother it ends up.
constexpr int kTypeHeight = 48;
constexpr int kFiner = 4;
constexpr int kRoom = 5;  // beside the words, for what an effect draws around them
constexpr char kWords[] = "I love You";
// Around the words in the cell.
constexpr int kSideMargin = 10;
constexpr int kTopMargin = 2;
const QColor kWarm(232, 143, 54);

// The words as a mask: ink 0, ground 255.
bool MakeMask(CTextWarp& warp, QSize& size) {
    QFont font("WenQuanYi Zen Hei");
    font.setPixelSize(kTypeHeight * 4 / 5);
    font.setBold(true);
    const QFontMetrics metrics(font);
    QImage image(metrics.horizontalAdvance(kWords) + 2 * kRoom, kTypeHeight, QImage::Format_Grayscale8);
    image.fill(255);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPoint(kRoom, metrics.ascent()), kWords);
    painter.end();
    std::vector<std::uint8_t> mask;
    for (int y = 0; y < image.height(); ++y)
        mask.insert(mask.end(), image.constScanLine(y), image.constScanLine(y) + image.width());
    size = image.size();
    return warp.SetMask(mask, image.width(), image.height());
}

// Seen against the ground of a cell at rest and of a lit one.
void Colour(TextArtParam& param, bool bSelected) {
    const QColor color = bSelected ? QColor(140, 40, 130) : QColor(250, 226, 150);
    param.byRed = static_cast<std::uint8_t>(color.red());
    param.byGreen = static_cast<std::uint8_t>(color.green());
    param.byBlue = static_cast<std::uint8_t>(color.blue());
}

}  // namespace

QImage RenderTextCell(int nTextEffect, bool bSelected, int nDensity) {
    const QSize sizeCell = QSize(kTextEffectCellSize.cx, kTextEffectCellSize.cy) * nDensity;
    const QSize size = sizeCell * kFiner;
    const CColor ground = bSelected ? CColor{252, 230, 194} : Grounds::kList;
    TextArtParam param;
    param.nTextEffect = nTextEffect;
    Colour(param, bSelected);
    CTextWarp warp;
    QSize sizeMask;
    if (!MakeMask(warp, sizeMask)) return {};
    param.nBoxX = kSideMargin * nDensity * kFiner;
    param.nBoxY = kTopMargin * nDensity * kFiner;
    param.nBoxHeight = size.height() - 2 * param.nBoxY;
    param.nBoxWidth = sizeMask.width() * param.nBoxHeight / sizeMask.height();
    const auto w = static_cast<float>(param.nBoxWidth);
    const auto h = static_cast<float>(param.nBoxHeight);
    param.fQuad = {0, 0, w, 0, w, h, 0, h};
    warp.SetBase(CPixels::MakeFilled(size.width(), size.height(), ground));
    if (!warp.Render(param)) return {};
    const CPixels& pixels = warp.Result();
    QImage image = QImage(pixels.Bytes().data(), size.width(), size.height(),
                          static_cast<qsizetype>(pixels.Stride()), QImage::Format_RGB888)
                       .scaled(sizeCell, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB888);
    QPainter painter(&image);
    if (bSelected) {
        painter.setPen(QPen(kWarm, nDensity));
        painter.drawRect(image.rect().adjusted(0, 0, -1, -1));
    }
    return image;
}
