#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// The frame that a drawing makes: 640 by 480 pixels, each either the drawing's own colour, opaque, or all
// transparent, by which of the two takes more of the pixel. An empty picture if the drawing cannot be read.
QImage RenderFrame(const QString& strDrawing);

// The record of a rendered frame: red, green, blue, rows from the top; the key where it is transparent. A
// colour of the frame that would pass for the key is moved to the nearest one that does not.
QByteArray RecordOf(const QImage& frame);
