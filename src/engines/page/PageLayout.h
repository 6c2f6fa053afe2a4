#pragma once

#include "engines/page/Papers.h"

// Where the picture stands on the sheet of the preview and on the printed page. One reckoning serves both: in
// the dots of the target, over an upright reference page of A4's proportions. All divisions of whole numbers
// cut their fractions; a step that would divide by 0 is left out. Nothing is limited: what is too large is
// cut when it is drawn, and a picture with a side of 0 or less draws nothing.

// The reference page, upright.
struct CPage {
    int nWidth = 0;
    int nHeight = 0;
    int nMargin = 0;  // both sides together
    bool operator==(const CPage&) const = default;
};

// The date in the picture, in the picture's own pixels.
struct CStampPlace {
    int nSize = 0;      // cell height of its face
    int nReserved = 0;  // the width that is kept for it
    CPoint pt;          // left edge and bottom edge
    bool operator==(const CStampPlace&) const = default;
};

struct CPageLayout {
    CPage page;
    CRect rcPicture;
    CStampPlace stamp;  // as it is if the date is wanted
};

struct CPreviewLayout : CPageLayout {
    CRect rcSheet;
    bool bTiny = false;  // the digits of the date can hardly be read
};

// sizePicture: the picture as it is; sizeClient: what the preview may draw on.
CPreviewLayout LayOutPreview(CSize sizePicture, CSize sizeClient, const CDeviceMode& mode);

// sizeDpi: the printer's dots per inch in both directions; sizePrintable: what of the page it reaches, in
// dots. The paper is taken for A4 whatever it is.
CPageLayout LayOutPrint(CSize sizePicture, CSize sizeDpi, CSize sizePrintable, EOrientation orientation);
