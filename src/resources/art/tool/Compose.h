#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <vector>

#include "SkinTable.h"

// Puts rendered pictures together as the program shows them and writes one PNG a view: the window in its five
// modes with the keys in their states, the dialogs, all hints, and the pictures that stand
// alone. Returns false when a file cannot be written.
bool WriteCompositions(const std::vector<CSkinLine>& arrLines, const std::map<QString, QImage>& mapPictures,
                       const QString& strOut, int nDensity);
