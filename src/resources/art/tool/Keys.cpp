#include "Keys.h"

#include <QLinearGradient>

namespace {

constexpr int kCaptionPixels = 12;
constexpr int kGlyphPixels = 24;
constexpr int kSideGlyphPixels = 18;

struct CCapLook {
    QColor crTop, crBottom, crEdge, crCaption;
};

CCapLook LookOf(EKeyState eState) {
    switch (eState) {
        case EKeyState::Pressed:
            return {QColor(156, 167, 159), QColor(184, 194, 186), QColor(38, 48, 48), QColor(24, 34, 36)};
        case EKeyState::Focused:
            return {QColor(255, 250, 238), QColor(238, 219, 184), QColor(126, 68, 10), QColor(52, 34, 12)};
        case EKeyState::Disabled:
            return {QColor(172, 180, 174), QColor(158, 167, 161), QColor(104, 113, 109),
                    QColor(112, 120, 116)};
        case EKeyState::Normal:
            break;
    }
    return {QColor(248, 250, 247), QColor(203, 212, 204), QColor(50, 62, 62), QColor(36, 48, 50)};
}

QRectF CapPlace(const QRect& rc, EKeyShape eShape, EKeyState eState) {
    QRectF rcCap = QRectF(rc).adjusted(1, 1, -1, -2);
    // Neighbours in the top bar may overlap by two pixels; their caps must not.
    if (eShape == EKeyShape::Bar) rcCap.adjust(1, 0, -1, 0);
    if (eState == EKeyState::Pressed) rcCap.translate(0, 1);
    return rcCap;
}

void DrawCap(CSheet& sheet, const QRectF& rcCap, EKeyState eState, const CCapLook& look) {
    CSheetPainter painter(sheet);
    const double fRound = rcCap.height() < 16 ? 2 : 4;
    const bool bRaised = eState == EKeyState::Normal || eState == EKeyState::Focused;
    if (bRaised) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(10, 18, 18, 90));
        painter.drawRoundedRect(rcCap.translated(0, 1), fRound, fRound);
    }
    QLinearGradient light(rcCap.topLeft(), rcCap.bottomLeft());
    light.setColorAt(0, look.crTop);
    light.setColorAt(1, look.crBottom);
    painter.setPen(QPen(look.crEdge, 1));
    painter.setBrush(light);
    painter.drawRoundedRect(rcCap.adjusted(0.5, 0.5, -0.5, -0.5), fRound, fRound);

    const QRectF rcInner = rcCap.adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setBrush(Qt::NoBrush);
    if (eState == EKeyState::Focused) {
        painter.setPen(QPen(QColor(243, 156, 44), 2));
        painter.drawRoundedRect(rcCap.adjusted(2, 2, -2, -2), fRound - 1, fRound - 1);
        return;
    }
    const double y = rcInner.top();
    const QColor crRim = eState == EKeyState::Pressed    ? QColor(70, 82, 80, 150)
                         : eState == EKeyState::Disabled ? QColor(205, 211, 206, 120)
                                                         : QColor(255, 255, 255, 230);
    painter.setPen(QPen(crRim, 1));
    painter.drawLine(QPointF(rcInner.left() + 2, y), QPointF(rcInner.right() - 2, y));
    if (!bRaised) return;
    painter.setPen(QPen(QColor(150, 162, 153), 1));
    painter.drawLine(QPointF(rcInner.left() + 2, rcInner.bottom()),
                     QPointF(rcInner.right() - 2, rcInner.bottom()));
}

// Takes the colour out of a drawing and thins it, so that it looks printed into the cap.
void Fade(QImage& image) {
    constexpr int kThin = 96;  // of 256
    for (int y = 0; y < image.height(); ++y) {
        auto* pRow = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int nGray = qGray(pRow[x]) * kThin / 256;
            pRow[x] = qRgba(nGray, nGray, nGray, qAlpha(pRow[x]) * kThin / 256);
        }
    }
}

void DrawGlyph(CSheet& sheet, CDrawings& drawings, const QString& strGlyph, const QRect& rcPlace,
               bool bFaded) {
    CSheet glyph(rcPlace.size(), sheet.Density());
    drawings.Draw(glyph, "glyphs/" + strGlyph, QRectF(QPointF(0, 0), rcPlace.size()));
    if (bFaded) Fade(glyph.Image());
    sheet.Lay(glyph, rcPlace.topLeft());
}

void DrawBarFace(CSheet& sheet, CDrawings& drawings, const QRect& rc, const CKeyFace& face,
                 const CCapLook& look, bool bFaded) {
    const QRect rcGlyph(rc.x() + (rc.width() - kGlyphPixels) / 2, rc.y() + 3, kGlyphPixels, kGlyphPixels);
    DrawGlyph(sheet, drawings, face.strGlyph, rcGlyph, bFaded);
    const QRect rcCaption(rc.x(), rc.bottom() - 15, rc.width(), kCaptionPixels);
    DrawText(sheet, rcCaption, face.strCaption, look.crCaption, kCaptionPixels, ETextAlign::Centre);
}

void DrawSideFace(CSheet& sheet, CDrawings& drawings, const QRect& rc, const CKeyFace& face,
                  const CCapLook& look, bool bFaded) {
    const int nGlyph = face.strGlyph == "-" ? 0 : std::min(kSideGlyphPixels, rc.height() - 6);
    const int nGap = nGlyph > 0 ? 4 : 0;
    const int nText = TextWidth(face.strCaption, kCaptionPixels, sheet.Density());
    const int x = rc.x() + (rc.width() - nGlyph - nGap - nText) / 2;
    if (nGlyph > 0) {
        const QRect rcGlyph(x, rc.y() + (rc.height() - 1 - nGlyph) / 2, nGlyph, nGlyph);
        DrawGlyph(sheet, drawings, face.strGlyph, rcGlyph, bFaded);
    }
    const QRect rcText(x + nGlyph + nGap, rc.y(), nText, rc.height() - 1);
    DrawText(sheet, rcText, face.strCaption, look.crCaption, kCaptionPixels, ETextAlign::Left);
}

}  // namespace

void DrawKey(CSheet& sheet, CDrawings& drawings, const CKeyFace& face, EKeyState eState) {
    const QRect rcWhole(QPoint(0, 0), sheet.Image().size() / sheet.Density());
    const CCapLook look = LookOf(eState);
    DrawCap(sheet, CapPlace(rcWhole, face.eShape, eState), eState, look);
    const bool bFaded = eState == EKeyState::Disabled;
    const QRect rcFace = eState == EKeyState::Pressed ? rcWhole.translated(0, 1) : rcWhole;
    switch (face.eShape) {
        case EKeyShape::Bar:
            DrawBarFace(sheet, drawings, rcFace, face, look, bFaded);
            break;
        case EKeyShape::Side:
            DrawSideFace(sheet, drawings, rcFace, face, look, bFaded);
            break;
        case EKeyShape::Tool: {
            const int nGlyph = std::min(kGlyphPixels, rcFace.height());
            const QPoint ptGlyph(rcFace.x() + (rcFace.width() - nGlyph) / 2,
                                 rcFace.y() + (rcFace.height() - 1 - nGlyph) / 2);
            DrawGlyph(sheet, drawings, face.strGlyph, QRect(ptGlyph, QSize(nGlyph, nGlyph)), bFaded);
            break;
        }
    }
}

void DrawTabFace(CSheet& sheet, CDrawings& drawings, const QRect& rcPlace, const QString& strGlyph,
                 const QString& strCaption, bool bSelected) {
    constexpr int kGap = 3;
    const int nText = TextWidth(strCaption, kCaptionPixels, sheet.Density());
    const int x = rcPlace.x() + (rcPlace.width() - kSideGlyphPixels - kGap - nText) / 2;
    const int y = rcPlace.y() + (rcPlace.height() - kSideGlyphPixels) / 2;
    DrawGlyph(sheet, drawings, strGlyph, QRect(x, y, kSideGlyphPixels, kSideGlyphPixels), false);
    const QColor crInk = bSelected ? QColor(24, 34, 36) : QColor(48, 60, 58);
    const QRect rcText(x + kSideGlyphPixels + kGap, rcPlace.y(), nText, rcPlace.height());
    DrawText(sheet, rcText, strCaption, crInk, kCaptionPixels, ETextAlign::Left);
}
