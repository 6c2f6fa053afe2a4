#pragma once

#include "image/Color.h"

// The tools by number, in the order of their buttons. kToolFloat has no button: it is current while a pasted
// selection floats over the picture.
enum ETool {
    kToolSelectRect = 1,
    kToolSelectPolygon,
    kToolSelectFree,
    kToolPicker,
    kToolPen,
    kToolBrush,
    kToolFill,
    kToolAirbrush,
    kToolEraser,
    kToolMagnifier,  // the tool that is current on every entry to DRAW
    kToolLine,
    kToolCurve,
    kToolRectangle,
    kToolPolygon,
    kToolEllipse,
    kToolRoundRect,
    kToolFloat,
};
inline constexpr int kToolButtonCount = 16;

// How the inside of a figure is painted: m_nFillMode.
enum EFillMode { kFillNone, kFillOther, kFillSame };

// Which tool is current and with which options. It lasts for the whole run; the controller writes it, the
// tools read it, and a paste and the merge of its float change the tool.
struct CToolState {
    int m_nTool = kToolSelectRect;         // an ETool
    int m_nResumeTool = kToolSelectRect;   // the one to return to when a float is merged
    int m_nZoom = 1;                       // screen pixels a picture pixel: 1, 2, 4 or 6
    CColor m_crForeground{0, 0, 0};        // paints under the left button
    CColor m_crBackground{255, 255, 255};  // paints under the right button
    int m_nLineWidth = 1;                  // 1 to 5: pen of the shape tools and of the diagonal brushes
    int m_nFillMode = kFillNone;           // an EFillMode
    int m_nBrushShape = 0;                 // 0 to 11
    int m_nSpraySize = 0;                  // 0 to 2
    int m_nEraserSize = 0;                 // 0 to 3
    bool m_bPickForeground = false;        // which colour the picker writes
};
