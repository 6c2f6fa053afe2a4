#pragma once

#include <QFont>
#include <QStringList>
#include <string>

// The families that stand for a face, the first one first for every character that it has: the face itself if
// the machine has it, then installed faces with Chinese and with Korean characters.
QStringList MapFace(const std::string& strFace);

// A font of these families. nPixels is the size of the letters' square, not the height of a line.
QFont MapFont(const std::string& strFace, int nPixels);
