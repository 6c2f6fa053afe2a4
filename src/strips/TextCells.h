#pragma once

#include <QImage>

// A row of the list of text effects at one density: a few words in that style, drawn by the engine itself.
// The selected form is lit.
QImage RenderTextCell(int nTextEffect, bool bSelected, int nDensity);
