#include "qt/IconDelegate.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

#include "browse/Thumbnail.h"
#include "qt/Pictures.h"
#include "qt/SkinColors.h"
#include "qt/Text.h"

namespace {

constexpr int kSideMargin = 4;  // beside the picture: the name is wider by as much
constexpr int kTopMargin = 5;
constexpr int kNameGap = 5;
constexpr int kNameHeight = 32;
constexpr int kBottomMargin = 2;
constexpr QSize kCell(kThumbnailSide + 2 * kSideMargin,
                      kTopMargin + kThumbnailSide + kNameGap + kNameHeight + kBottomMargin);
constexpr QSize kRoomAround(8, 5);
constexpr int kRimWidth = 3;
constexpr QColor kEmptyWell(103, 115, 120);
constexpr QColor kEmptyRim(92, 103, 108);

QRect PictureOf(const QRect& rcCell) {
    return {rcCell.left() + kSideMargin, rcCell.top() + kTopMargin, kThumbnailSide, kThumbnailSide};
}

QRect NameOf(const QRect& rcCell) {
    return {rcCell.left(), rcCell.top() + kTopMargin + kThumbnailSide + kNameGap, kCell.width(), kNameHeight};
}

// A name in one or two lines; a long one loses its middle, so that its beginning and its extension are seen.
QStringList BreakName(const QString& strName, const QFont& font, int nWidth) {
    const QFontMetrics metrics(font);
    if (metrics.horizontalAdvance(strName) <= nWidth) return {strName};
    QTextLayout layout(strName, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(nWidth);
    layout.endLayout();
    const QString strRest = strName.mid(line.textLength());
    return {strName.left(line.textLength()).trimmed(),
            metrics.elidedText(strRest.trimmed(), Qt::ElideMiddle, nWidth)};
}

void PaintPicture(QPainter& painter, const QRect& rc, const CPixels& pixels) {
    if (!pixels.IsEmpty()) return painter.drawImage(rc, ViewPixels(pixels));
    painter.setPen(kEmptyRim);
    painter.setBrush(kEmptyWell);
    painter.drawRect(rc.adjusted(0, 0, -1, -1));
}

void PaintRim(QPainter& painter, const QRect& rc) {
    const double fHalf = kRimWidth / 2.0;
    painter.setPen(QPen(SkinColors::kWarm, kRimWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rc).adjusted(-fHalf, -fHalf, fHalf, fHalf), fHalf, fHalf);
}

void PaintName(QPainter& painter, const QRect& rc, const QStringList& arrLines, bool bSelected) {
    const QFontMetrics metrics(painter.font());
    if (bSelected) {
        int nWidth = 0;
        for (const QString& strLine : arrLines) nWidth = std::max(nWidth, metrics.horizontalAdvance(strLine));
        nWidth = std::min(nWidth + 10, rc.width());
        const auto nHeight = static_cast<int>(arrLines.size()) * metrics.height() + 2;
        painter.setPen(Qt::NoPen);
        painter.setBrush(SkinColors::kWarm);
        painter.drawRoundedRect(QRect(rc.left() + (rc.width() - nWidth) / 2, rc.top(), nWidth, nHeight), 3,
                                3);
    }
    painter.setPen(Qt::white);
    QRect rcLine(rc.left(), rc.top() + 1, rc.width(), metrics.height());
    for (const QString& strLine : arrLines) {
        painter.drawText(rcLine, Qt::AlignCenter | Qt::TextSingleLine, strLine);
        rcLine.translate(0, metrics.height());
    }
}

}  // namespace

QSize CIconDelegate::GridSize() {
    return kCell + kRoomAround;
}

bool CIconDelegate::Hits(const QRect& rcCell, QPoint pt) {
    return PictureOf(rcCell).contains(pt) || NameOf(rcCell).contains(pt);
}

QSize CIconDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const {
    return kCell;
}

void CIconDelegate::paint(QPainter* pPainter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    if (index.row() >= m_icons.Count()) return;
    const bool bSelected = option.state.testFlag(QStyle::State_Selected);
    const QRect rcPicture = PictureOf(option.rect);
    const QRect rcName = NameOf(option.rect);
    pPainter->save();
    pPainter->setFont(option.font);
    PaintPicture(*pPainter, rcPicture, m_icons.Picture(index.row()));
    pPainter->setRenderHint(QPainter::Antialiasing);
    if (bSelected) PaintRim(*pPainter, rcPicture);
    const QStringList arrLines =
        BreakName(NameToQt(m_icons.Text(index.row())), option.font, rcName.width() - 4);
    PaintName(*pPainter, rcName, arrLines, bSelected);
    pPainter->restore();
}
