#include "qt/TreeIcons.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

// All are drawn on a ground of 16 by 16; lines run through the middle of a pixel.
constexpr int kSide = 16;
constexpr QColor kRim(58, 68, 72);
constexpr QColor kSteel(214, 222, 216);
constexpr QColor kSteelDark(150, 164, 158);
constexpr QColor kGlass(116, 172, 190);
constexpr QColor kGlassDark(62, 112, 134);
constexpr QColor kAmber(255, 214, 128);
constexpr QColor kAmberDark(228, 150, 52);
constexpr QColor kAmberRim(138, 84, 22);
constexpr QColor kLamp(112, 190, 92);

// Names as the freedesktop icon themes have them, in the order of ETreeIcon.
constexpr std::array<const char*, 6> kThemeNames = {
    "computer", "user-home", "drive-harddisk", "drive-removable-media", "folder-remote", "folder"};

QLinearGradient Fall(QColor colorTop, QColor colorBottom, double fTop, double fBottom) {
    QLinearGradient gradient(0, fTop, 0, fBottom);
    gradient.setColorAt(0, colorTop);
    gradient.setColorAt(1, colorBottom);
    return gradient;
}

void Shape(QPainter& painter, std::initializer_list<QPointF> arrPoints, const QBrush& brush,
           QColor colorRim) {
    painter.setPen(QPen(colorRim, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(brush);
    painter.drawPolygon(QPolygonF(QList<QPointF>(arrPoints)));
}

void Box(QPainter& painter, const QRectF& rc, double fRadius, const QBrush& brush, QColor colorRim) {
    painter.setPen(QPen(colorRim, 1));
    painter.setBrush(brush);
    painter.drawRoundedRect(rc, fRadius, fRadius);
}

void DrawFolder(QPainter& painter) {
    Shape(painter, {{1.5, 12.5}, {1.5, 3.5}, {6, 3.5}, {7.5, 5.5}, {13.5, 5.5}, {13.5, 12.5}}, kAmberDark,
          kAmberRim);
    Shape(painter, {{1.5, 13.5}, {1.5, 7}, {14.5, 7}, {14.5, 13.5}},
          Fall(kAmber, kAmberDark.lighter(112), 7, 14), kAmberRim);
    painter.setPen(QColor(255, 240, 204));
    painter.drawLine(QPointF(2.7, 8), QPointF(13.3, 8));
}

void DrawComputer(QPainter& painter) {
    Box(painter, {1.5, 2.5, 13, 9}, 1.2, Fall(kSteel, kSteelDark, 2, 12), kRim);
    Box(painter, {3.5, 4.5, 9, 5}, 0.4, Fall(kGlass, kGlassDark, 4, 10), kGlassDark.darker(130));
    Shape(painter,
          {{6.5, 12}, {9.5, 12}, {9.5, 13.5}, {12, 13.5}, {12, 14.5}, {4, 14.5}, {4, 13.5}, {6.5, 13.5}},
          kSteelDark, kRim);
}

void DrawHome(QPainter& painter) {
    Box(painter, {3.5, 7.5, 9, 6}, 0.5, Fall(QColor(252, 246, 228), QColor(226, 214, 184), 7, 14), kRim);
    Box(painter, {6.5, 9.5, 3, 4}, 0, kGlassDark, kRim);
    Shape(painter, {{8, 1.8}, {15, 8.2}, {1, 8.2}}, Fall(QColor(238, 140, 84), QColor(190, 82, 42), 2, 8),
          QColor(110, 42, 20));
}

void DrawDisk(QPainter& painter) {
    Shape(painter, {{3.5, 4.5}, {12.5, 4.5}, {14.5, 8.5}, {1.5, 8.5}},
          Fall(QColor(238, 242, 238), kSteel, 4, 9), kRim);
    Box(painter, {1.5, 8.5, 13, 4}, 0.8, Fall(kSteel.darker(106), kSteelDark, 8, 13), kRim);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kLamp);
    painter.drawRect(QRectF(11, 10, 2, 1));
}

void DrawRemovable(QPainter& painter) {
    Box(painter, {10.5, 5.5, 4, 5}, 0.3, Fall(QColor(244, 246, 244), kSteelDark, 5, 11), kRim);
    Box(painter, {1.5, 4.5, 9, 7}, 1.6, Fall(kGlass, kGlassDark, 4, 12), kGlassDark.darker(150));
    painter.setPen(Qt::NoPen);
    painter.setBrush(kRim);
    painter.drawRect(QRectF(12, 7, 1, 1));
    painter.drawRect(QRectF(12, 9, 1, 1));
    painter.setBrush(QColor(255, 255, 255, 170));
    painter.drawRect(QRectF(3, 7, 4, 1));
}

void DrawNetwork(QPainter& painter) {
    painter.translate(0, -2);
    DrawDisk(painter);
    painter.translate(0, 2);
    painter.setPen(QPen(kGlassDark, 1.4));
    painter.drawLine(QPointF(8, 11.5), QPointF(8, 14));
    painter.drawLine(QPointF(1.5, 14), QPointF(14.5, 14));
}

void DrawOn(QPainter& painter, ETreeIcon icon) {
    switch (icon) {
        case ETreeIcon::Computer:
            return DrawComputer(painter);
        case ETreeIcon::Home:
            return DrawHome(painter);
        case ETreeIcon::Disk:
            return DrawDisk(painter);
        case ETreeIcon::Removable:
            return DrawRemovable(painter);
        case ETreeIcon::Network:
            return DrawNetwork(painter);
        case ETreeIcon::Folder:
            return DrawFolder(painter);
    }
}

// The platform's icon stays as it is when its item is selected.
QIcon WithoutStates(const QIcon& icon) {
    QIcon plain;
    for (const int nScale : {1, 2, 3}) plain.addPixmap(icon.pixmap(QSize(kSide, kSide) * nScale, 1.0));
    for (const QSize& size : plain.availableSizes())
        plain.addPixmap(plain.pixmap(size, 1.0), QIcon::Selected);
    return plain;
}

}  // namespace

QIcon CTreeIcons::Draw(ETreeIcon icon) {
    QIcon drawn;
    for (const int nScale : {1, 2, 3}) {
        QPixmap pixmap(kSide * nScale, kSide * nScale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(nScale, nScale);
        DrawOn(painter, icon);
        drawn.addPixmap(pixmap);
        drawn.addPixmap(pixmap, QIcon::Selected);
    }
    return drawn;
}

CTreeIcons::CTreeIcons() {
    for (std::size_t i = 0; i < kIcons; ++i) {
        const QIcon theme = QIcon::fromTheme(kThemeNames[i]);
        m_arrIcons[i] =
            theme.availableSizes().isEmpty() ? Draw(static_cast<ETreeIcon>(i)) : WithoutStates(theme);
    }
}
