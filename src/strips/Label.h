#pragma once

#include <QColor>
#include <QPainter>
#include <QString>

// Writes one line of text with the painter, whose unit is a pixel of single density and whose device has
// nDensity times as many. (x, y) is the top left corner of the first character's square of nPixels. At single
// density the type of 12 and 13 pixels has shapes made by hand for those sizes.
void DrawLabel(QPainter& painter, int x, int y, const QString& strText, const QColor& crInk, int nPixels,
               int nDensity);
