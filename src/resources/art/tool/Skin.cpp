#include "Skin.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "Keys.h"
#include "Metal.h"

namespace {

constexpr QSize kWindowSize(1014, 710);
constexpr QRect kPanelPlace(0, 111, 310, 563);
constexpr int kTextPixels = 12;
constexpr int kStripPixels = 13;
// The masked thumb's ground: a colour that no drawing of the skin has.
constexpr QRgb kMaskGround = qRgb(255, 0, 255);

const QColor kEngravedInk(47, 60, 58);
const QColor kLabelInk(28, 39, 39);
const QColor kEngravedLight(232, 238, 232, 90);

QColor ColorFrom(const QString& strTriple) {
    const QStringList arrParts = strTriple.split(',');
    if (arrParts.size() != 3) return Qt::black;
    return {arrParts[0].toInt(), arrParts[1].toInt(), arrParts[2].toInt()};
}

// What is drawn into a ground and has no picture of its own.
bool IsPartOfGround(const QString& strKind) {
    return strKind == "title" || strKind == "face" || strKind == "cap";
}

EKeyShape ShapeFrom(const QString& strShape) {
    if (strShape == "tool") return EKeyShape::Tool;
    return strShape == "side" ? EKeyShape::Side : EKeyShape::Bar;
}

void Engrave(CSheet& sheet, const QRect& rcPlace, const QString& strText, int nPixels) {
    DrawText(sheet, rcPlace.translated(0, 1), strText, kEngravedLight, nPixels, ETextAlign::Left);
    DrawText(sheet, rcPlace, strText, kEngravedInk, nPixels, ETextAlign::Left);
}

// The outline of a tab in its cell; its foot is open, so that it can join the plate below.
QPainterPath TabOutline(const QRect& rcCell, bool bSelected) {
    const double fLeft = std::max(rcCell.left(), 15) + 1.5;
    const double fRight = rcCell.right() - 0.5;
    const double fTop = rcCell.top() + (bSelected ? 1.5 : 4.5);
    const double fFoot = rcCell.bottom() + (bSelected ? 1 : -1);
    constexpr double kRound = 5;
    QPainterPath path(QPointF(fLeft, fFoot));
    path.lineTo(fLeft, fTop + kRound);
    path.quadTo(fLeft, fTop, fLeft + kRound, fTop);
    path.lineTo(fRight - kRound, fTop);
    path.quadTo(fRight, fTop, fRight, fTop + kRound);
    path.lineTo(fRight, fFoot);
    return path;
}

}  // namespace

CSkin::CSkin(const std::vector<CSkinLine>& arrLines, const QString& strArtFolder, int nDensity)
    : m_arrLines(arrLines), m_drawings(strArtFolder), m_nDensity(nDensity) {}

std::map<QString, QImage> CSkin::Render() {
    std::map<QString, QImage> mapPictures;
    for (const CSkinLine& line : m_arrLines) {
        if (IsPartOfGround(line.strKind)) continue;
        if (line.strKind == "key") {
            RenderKey(line, mapPictures);
            continue;
        }
        if (line.strKind == "frames") {
            RenderFrames(line, mapPictures);
            continue;
        }
        const QString strName = line.strKind == "tab" ? line.strName + 'U' : line.strName;
        const auto eFormat = line.strKind == "icon" ? QImage::Format_ARGB32 : QImage::Format_RGB888;
        mapPictures[strName] = RenderLine(line).convertToFormat(eFormat);
    }
    return mapPictures;
}

QImage CSkin::RenderLine(const CSkinLine& line) {
    if (line.strKind == "sheet") return Ground(line.arrRest[0], line.arrRest[1]).Cut(line.rcPlace).Image();
    if (line.strKind == "dialog") return Ground(line.arrRest[0], "-").Image();
    if (line.strKind == "strip") return RenderStrip(line).Image();
    if (line.strKind == "tab") return RenderTab(line).Image();
    if (line.strKind == "label") return RenderLabel(line).Image();
    if (line.strKind == "hint") return RenderHint(line).Image();
    if (line.strKind == "masked") return RenderMasked(line).Image();
    if (line.strKind == "spray") return RenderSpray(line).Image();
    return RenderPicture(line).Image();
}

const CSheet& CSkin::Ground(const QString& strSource, const QString& strTab) {
    const std::pair<QString, QString> key(strSource, strTab);
    const auto it = m_mapGrounds.find(key);
    if (it != m_mapGrounds.end()) return it->second;
    const auto itDialog = std::find_if(m_arrLines.begin(), m_arrLines.end(), [&](const CSkinLine& line) {
        return line.strKind == "dialog" && line.arrRest[0] == strSource;
    });
    CSheet sheet = itDialog != m_arrLines.end() ? MakeDialog(*itDialog) : MakeWindow(strSource, strTab);
    return m_mapGrounds.emplace(key, std::move(sheet)).first->second;
}

CSheet CSkin::MakeWindow(const QString& strPanel, const QString& strTab) {
    CSheet sheet(kWindowSize, m_nDensity, Qt::black);
    m_drawings.Draw(sheet, "body", QRectF(QPointF(0, 0), kWindowSize));
    DrawTabPlates(sheet, strTab);
    BrushMetal(sheet);
    m_drawings.Draw(sheet, "fittings", QRectF(QPointF(0, 0), kWindowSize));
    m_drawings.Draw(sheet, "panels/" + strPanel, kPanelPlace);
    DrawTitles(sheet, strPanel);
    DrawTabFaces(sheet, strTab);
    return sheet;
}

CSheet CSkin::MakeDialog(const CSkinLine& line) {
    CSheet sheet(line.rcPlace.size(), m_nDensity, QColor(180, 191, 182));
    BrushMetal(sheet);
    m_drawings.Draw(sheet, "panels/" + line.arrRest[1], QRectF(QPointF(0, 0), line.rcPlace.size()));
    DrawTitles(sheet, line.arrRest[0]);
    return sheet;
}

void CSkin::DrawTabPlates(CSheet& sheet, const QString& strSelected) const {
    CSheetPainter painter(sheet);
    for (const CSkinLine& line : m_arrLines) {
        if (line.strKind != "tab") continue;
        const bool bSelected = line.strName == strSelected;
        const QPainterPath path = TabOutline(line.rcPlace, bSelected);
        QLinearGradient light(0, line.rcPlace.top(), 0, line.rcPlace.bottom() + 1);
        light.setColorAt(0, bSelected ? QColor(226, 233, 226) : QColor(168, 179, 170));
        light.setColorAt(1, bSelected ? QColor(200, 209, 201) : QColor(142, 154, 146));
        painter.setPen(Qt::NoPen);
        painter.setBrush(light);
        // A tab that is not up must not touch its cell's edges or the plate: its key is cut from any row.
        painter.setClipRect(line.rcPlace);
        painter.drawPath(path);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(96, 108, 101), 1));
        painter.drawPath(path);
        painter.setPen(QPen(QColor(255, 255, 255, bSelected ? 210 : 80), 1));
        const double y = path.boundingRect().top() + 1;
        painter.drawLine(QPointF(path.boundingRect().left() + 5, y),
                         QPointF(path.boundingRect().right() - 5, y));
        painter.setClipping(false);
    }
}

void CSkin::DrawTabFaces(CSheet& sheet, const QString& strSelected) {
    for (const CSkinLine& line : m_arrLines) {
        if (line.strKind != "tab") continue;
        const bool bSelected = line.strName == strSelected;
        QRect rcFace = line.rcPlace.adjusted(0, bSelected ? 2 : 4, 0, 0);
        rcFace.setLeft(std::max(rcFace.left(), 16));
        DrawTabFace(sheet, m_drawings, rcFace, line.arrRest[0], line.arrRest[1], bSelected);
    }
}

void CSkin::DrawTitles(CSheet& sheet, const QString& strGround) {
    for (const CSkinLine& line : m_arrLines) {
        if (line.strKind == "face" && line.arrRest[0] == strGround) {
            DrawTabFace(sheet, m_drawings, line.rcPlace, line.arrRest[1], line.arrRest[2], true);
        }
        if (line.strKind == "cap" && line.arrRest[0] == strGround) {
            CSheet cap = sheet.Cut(line.rcPlace);
            DrawKey(cap, m_drawings, {EKeyShape::Side, line.arrRest[1], line.arrRest[2]}, EKeyState::Normal);
            sheet.Lay(cap, line.rcPlace.topLeft());
        }
        if (line.strKind != "title" || line.arrRest[0] != strGround) continue;
        Engrave(sheet, line.rcPlace, line.arrRest[1], line.rcPlace.height() - 4);
    }
}

void CSkin::RenderKey(const CSkinLine& line, std::map<QString, QImage>& mapPictures) {
    const CSheet& ground = Ground(line.arrRest[0], "-");
    const CKeyFace face{ShapeFrom(line.arrRest[2]), line.arrRest[3].section(' ', 0, 0), line.arrRest[4]};
    for (const QChar chState : line.arrRest[1]) {
        CSheet sheet = ground.Cut(line.rcPlace);
        DrawKey(sheet, m_drawings, face, static_cast<EKeyState>(chState.toLatin1()));
        mapPictures[line.strName + chState] = sheet.Image().convertToFormat(QImage::Format_RGB888);
    }
}

CSheet CSkin::RenderTab(const CSkinLine& line) {
    // Any row will do in which the tab is down.
    const QString strOther = line.strName == "THUM" ? "EFFECT" : "THUM";
    return Ground("effect", strOther).Cut(line.rcPlace);
}

CSheet CSkin::RenderLabel(const CSkinLine& line) {
    CSheet sheet = Ground(line.arrRest[0], "-").Cut(line.rcPlace);
    const QString& strText = line.arrRest[1];
    // A character's ink leaves its square's last column free, so the text may be one pixel wider than its
    // place.
    int nPixels = kTextPixels;
    while (nPixels > 9 && TextWidth(strText, nPixels, 2) > line.rcPlace.width() + 1) --nPixels;
    // The smoothed small type is thin: written twice it has the weight of the hand-made one.
    const int nTimes = nPixels < kTextPixels ? 2 : 1;
    for (int i = 0; i < nTimes; ++i) {
        DrawText(sheet, QRect(QPoint(0, 0), line.rcPlace.size()), strText, kLabelInk, nPixels,
                 ETextAlign::Left);
    }
    return sheet;
}

CSheet CSkin::RenderStrip(const CSkinLine& line) {
    constexpr QPoint kGlyphAt(6, 4);
    constexpr int kGlyph = 18;
    constexpr int kTextAt = 31;
    CSheet sheet = Ground(line.arrRest[0], "-").Cut(line.rcPlace);
    m_drawings.Draw(sheet, "glyphs/" + line.arrRest[1], QRectF(kGlyphAt, QSizeF(kGlyph, kGlyph)));
    const QRect rcText(kTextAt, 0, line.rcPlace.width() - kTextAt, line.rcPlace.height());
    DrawText(sheet, rcText, line.arrRest[2], kLabelInk, kStripPixels, ETextAlign::Left);
    return sheet;
}

CSheet CSkin::RenderHint(const CSkinLine& line) const {
    CSheet sheet(line.rcPlace.size(), m_nDensity, QColor(92, 72, 28));
    const QRect rcInner(1, 1, line.rcPlace.width() - 2, line.rcPlace.height() - 2);
    {
        CSheetPainter painter(sheet);
        QLinearGradient light(rcInner.topLeft(), rcInner.bottomLeft());
        light.setColorAt(0, QColor(255, 252, 232));
        light.setColorAt(1, QColor(252, 236, 178));
        painter.fillRect(rcInner, light);
    }
    DrawText(sheet, rcInner, line.arrRest[0], QColor(52, 38, 8), kTextPixels, ETextAlign::Centre);
    return sheet;
}

void CSkin::RenderFrames(const CSkinLine& line, std::map<QString, QImage>& mapPictures) {
    const int nFrames = line.arrRest[2].toInt();
    const int nFrameTime = line.arrRest[3].toInt();
    for (int i = 0; i < nFrames; ++i) {
        CSheet sheet(line.rcPlace.size(), m_nDensity, Qt::black);
        m_drawings.DrawStill(sheet, "pictures/" + line.arrRest[0], line.arrRest[1], i * nFrameTime,
                             QRectF(QPointF(0, 0), line.rcPlace.size()));
        const QString strName = QString::number(line.strName.toInt() + i);
        mapPictures[strName] = sheet.Image().convertToFormat(QImage::Format_RGB888);
    }
}

CSheet CSkin::RenderPicture(const CSkinLine& line) {
    const bool bIcon = line.strKind == "icon";
    CSheet sheet(line.rcPlace.size(), m_nDensity,
                 bIcon ? QColor(Qt::transparent) : ColorFrom(line.arrRest[1]));
    m_drawings.Draw(sheet, "pictures/" + line.arrRest[0], QRectF(QPointF(0, 0), line.rcPlace.size()));
    if (!bIcon) DrawTitles(sheet, line.arrRest[0]);
    return sheet;
}

CSheet CSkin::RenderMasked(const CSkinLine& line) {
    CSheet sheet(line.rcPlace.size(), m_nDensity);
    m_drawings.Draw(sheet, "pictures/" + line.arrRest[0], QRectF(QPointF(0, 0), line.rcPlace.size()));
    QImage image = sheet.Image().convertToFormat(QImage::Format_ARGB32);
    // A pixel is either the drawing's or the ground's: a mixture would stand around the thumb as a rim.
    for (int y = 0; y < image.height(); ++y) {
        auto* pRow = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            pRow[x] = qAlpha(pRow[x]) < 128 ? kMaskGround : pRow[x] | 0xFF000000U;
        }
    }
    sheet.Image() = image;
    return sheet;
}

CSheet CSkin::RenderSpray(const CSkinLine& line) const {
    const double fRadius = line.arrRest[0].toDouble();
    const QColor crInk = ColorFrom(line.arrRest[1]);
    CSheet sheet(line.rcPlace.size(), m_nDensity, ColorFrom(line.arrRest[2]));
    CSheetPainter painter(sheet);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int nDots = static_cast<int>(fRadius * fRadius);
    std::minstd_rand random(1);
    const auto Part = [&random] { return static_cast<double>(random()) / std::minstd_rand::max(); };
    const QPoint ptMiddle(line.rcPlace.width() / 2, line.rcPlace.height() / 2);
    for (int i = 0; i < nDots; ++i) {
        // Somewhat denser in the middle, as a jet of air leaves it.
        const double fOut = fRadius * std::pow(Part(), 0.65);
        const double fTurn = 2 * std::numbers::pi * Part();
        const int x = ptMiddle.x() + static_cast<int>(std::lround(fOut * std::cos(fTurn)));
        const int y = ptMiddle.y() + static_cast<int>(std::lround(fOut * std::sin(fTurn)));
        painter.fillRect(x, y, 1, 1, crInk);
    }
    return sheet;
}
