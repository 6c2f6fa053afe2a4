#pragma once

#include <string>

#include "image/Image.h"

// The cells of the file list.
inline constexpr int kThumbnailSide = 110;

// Where a picture of that size stands in a cell: the whole of it, centred, with its proportions kept and
// fractions cut. Empty in one direction for a picture that is too thin.
CRect PlaceThumbnail(CSize sizePicture);

// The cell of a JPEG file: filled, the picture in it, framed. Empty if the file cannot be opened. Decodes no
// more of the file than the cell needs.
CPixels MakeThumbnail(const std::string& strPath);

// A picture of the skin stretched over a whole cell; a cell without picture if there is none.
CPixels MakeFolderCell(const CxImage* pPicture);
