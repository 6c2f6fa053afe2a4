#include "tour/Screen.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <unordered_set>
#include <vector>

namespace {

constexpr QRgb kDesktop = qRgb(58, 66, 70);
constexpr int kMargin = 24;

int Depth(const QWidget* pWindow) {
    int nDepth = 0;
    for (const QWidget* p = pWindow->parentWidget(); p != nullptr; p = p->parentWidget()) ++nDepth;
    return nDepth;
}

// A window that belongs to another one lies above it.
std::vector<QWidget*> VisibleWindows() {
    std::vector<QWidget*> arrWindows;
    for (QWidget* pWindow : QApplication::topLevelWidgets())
        if (pWindow->isVisible() && !pWindow->size().isEmpty()) arrWindows.push_back(pWindow);
    std::stable_sort(arrWindows.begin(), arrWindows.end(),
                     [](const QWidget* pA, const QWidget* pB) { return Depth(pA) < Depth(pB); });
    return arrWindows;
}

QImage Compose(const std::function<QPixmap(QWidget&)>& fnLook) {
    const std::vector<QWidget*> arrWindows = VisibleWindows();
    QRect rcAll;
    for (const QWidget* pWindow : arrWindows) rcAll = rcAll.united(pWindow->geometry());
    rcAll.adjust(-kMargin, -kMargin, kMargin, kMargin);
    const qreal fRatio = arrWindows.empty() ? 1.0 : arrWindows.front()->devicePixelRatioF();
    QImage image(rcAll.size() * fRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(fRatio);
    image.fill(kDesktop);
    QPainter painter(&image);
    for (QWidget* pWindow : arrWindows)
        painter.drawPixmap(pWindow->geometry().topLeft() - rcAll.topLeft(), fnLook(*pWindow));
    return image;
}

}  // namespace

QImage GrabScreen() {
    return Compose([](QWidget& window) { return window.grab(); });
}

QImage LookAtScreen() {
    return Compose([](QWidget& window) {
        const QPixmap pixmap = window.screen()->grabWindow(window.winId());
        // Of a dense window the invisible screen gives a part only.
        return pixmap.deviceIndependentSize() == window.size() ? pixmap : window.grab();
    });
}

int CountColors(const QImage& image, int nLimit) {
    std::unordered_set<QRgb> setColors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            setColors.insert(image.pixel(x, y));
            if (static_cast<int>(setColors.size()) >= nLimit) return nLimit;
        }
    }
    return static_cast<int>(setColors.size());
}

bool Differs(const QImage& imageA, const QImage& imageB) {
    return imageA != imageB;
}

double Distance(const QImage& imageA, const QImage& imageB) {
    if (imageA.size() != imageB.size() || imageA.isNull()) return 255;
    qint64 nSum = 0;
    for (int y = 0; y < imageA.height(); ++y) {
        for (int x = 0; x < imageA.width(); ++x) {
            const QRgb a = imageA.pixel(x, y);
            const QRgb b = imageB.pixel(x, y);
            nSum +=
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    }
    return static_cast<double>(nSum) / (3.0 * imageA.width() * imageA.height());
}
