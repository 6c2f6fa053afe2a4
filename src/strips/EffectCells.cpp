#include "strips/EffectCells.h"

#include <QLinearGradient>
#include <QPainter>

#include "resources/Grounds.h"
#include "strips/Label.h"

namespace {

constexpr int kLabelPixels = 13;
constexpr QPoint kLabelAt(9, 9);
// The sign of an effect with a level.
constexpr QRect kTrack(10, 55, 26, 2);
constexpr QRect kThumb(26, 52, 5, 8);

// The colours of a cell, at rest and selected.
struct CTint {
    QColor crTop, crBottom;  // the ground
    QColor crInk, crShadow;  // the label, and what lies a pixel below it
    QColor crRim;            // around the sample
    QColor crSign;
};

const CTint kRest{{116, 128, 133}, {103, 115, 120}, {240, 240, 240},
                  {38, 46, 50},    {62, 71, 75},    {152, 164, 164}};
const CTint kLit{{255, 246, 228},      {250, 214, 160}, {58, 40, 20},
                 {255, 255, 255, 150}, {150, 84, 22},   {186, 112, 40}};
const QColor kWarm(232, 143, 54);
const QColor kEdgeDark(84, 95, 100);
const QColor kEdgeLight(134, 146, 150);

void DrawGround(QPainter& painter, const CTint& tint, bool bSelected) {
    const QRect rc(QPoint(0, 0), CEffectCells::kCell);
    QLinearGradient gradient(0, 0, 0, rc.height());
    gradient.setColorAt(0, tint.crTop);
    gradient.setColorAt(1, tint.crBottom);
    painter.fillRect(rc, gradient);
    if (bSelected) {
        // A warm rim, two pixels wide.
        painter.setPen(QPen(kWarm, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rc.adjusted(1, 1, -1, -1));
        return;
    }
    painter.fillRect(QRect(0, 0, rc.width(), 1), kEdgeLight);
    painter.fillRect(QRect(0, rc.height() - 1, rc.width(), 1), kEdgeDark);
}

void DrawSign(QPainter& painter, const CTint& tint) {
    painter.fillRect(kTrack, tint.crSign);
    painter.fillRect(kThumb, tint.crInk);
}

}  // namespace

QImage CEffectCells::Render(int nEffect, bool bSelected) {
    const std::optional<QImage> sample = m_samples.Render(nEffect, kSample.size() * 2);
    if (!sample) return {};
    const CTint& tint = bSelected ? kLit : kRest;
    const CEffectRow& row = kEffects[static_cast<std::size_t>(nEffect)];
    QImage image(kCell * m_nDensity, QImage::Format_RGB888);
    QPainter painter(&image);
    painter.scale(m_nDensity, m_nDensity);
    DrawGround(painter, tint, bSelected);
    painter.fillRect(kSample.adjusted(-1, -1, 1, 1), tint.crRim);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(kSample, sample->scaled(kSample.size() * m_nDensity, Qt::IgnoreAspectRatio,
                                              Qt::SmoothTransformation));
    const QString strLabel = QString::fromUtf8(row.szLabel);
    DrawLabel(painter, kLabelAt.x(), kLabelAt.y() + 1, strLabel, tint.crShadow, kLabelPixels, m_nDensity);
    DrawLabel(painter, kLabelAt.x(), kLabelAt.y(), strLabel, tint.crInk, kLabelPixels, m_nDensity);
    if (row.bHasLevel) DrawSign(painter, tint);
    return image;
}

QImage RenderContactSheet(const CxImage& image) {
    constexpr int kColumns = 6;
    constexpr int kRows = (kEffectCount + kColumns - 1) / kColumns;
    constexpr QSize kPicture(320, 240);
    constexpr int kGap = 12;
    constexpr int kCaption = 26;
    if (!image.IsValid()) return {};
    const QImage base = FromEngine(image).scaled(kPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage sheet(kColumns * (kPicture.width() + kGap) + kGap,
                 kRows * (kPicture.height() + kGap + kCaption) + kGap, QImage::Format_RGB888);
    sheet.fill(QColor(Grounds::kList.r, Grounds::kList.g, Grounds::kList.b));
    QPainter painter(&sheet);
    for (int nEffect = 0; nEffect < kEffectCount; ++nEffect) {
        const CEffectRow& row = kEffects[static_cast<std::size_t>(nEffect)];
        const int x = kGap + nEffect % kColumns * (kPicture.width() + kGap);
        const int y = kGap + nEffect / kColumns * (kPicture.height() + kGap + kCaption);
        CxImage work = ToEngine(base);
        CRandomSequence random;
        const int nLevel = CEffectSamples::LevelOf(nEffect);
        if (!ApplyEffect(work, EffectOf(nEffect), nLevel, base.width() * 2, random)) return {};
        painter.drawImage(x + (kPicture.width() - base.width()) / 2, y, FromEngine(work));
        QString strCaption = QString::number(nEffect) + "  " + QString::fromUtf8(row.szLabel);
        if (row.bHasLevel) strCaption += "  " + QString::number(nLevel);
        DrawLabel(painter, x, y + kPicture.height() + 5, strCaption, Qt::white, 16, 1);
    }
    return sheet;
}
