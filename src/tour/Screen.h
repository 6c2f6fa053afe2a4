#pragma once

#include <QImage>
#include <QString>

// What a person would see: all windows that are up, the newest on top.
QImage GrabScreen();
// The same without painting anything anew: what has not come to the screen in time is not in it.
QImage LookAtScreen();

// How many different colours a picture has, counted up to a limit; tells a photograph from an empty area.
int CountColors(const QImage& image, int nLimit);

// True if any pixel of both pictures differs, or their sizes do.
bool Differs(const QImage& imageA, const QImage& imageB);

// How far the colours of two pictures of one size lie apart, on average over all pixels and channels, 0 to
// 255. 255 if the sizes differ.
double Distance(const QImage& imageA, const QImage& imageB);
