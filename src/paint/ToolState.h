#pragma once

#include "image/Color.h"
#include "resources/ToolTable.h"

// How the inside of a figure is painted.
enum class EFillMode { None, Other, Same };

// Which tool is current and with which options. It lasts for the whole run; the controller writes it, the
// tools read it, and a paste and the merge of its float change the tool.
struct CToolState {
    ETool m_nTool = ETool::SelectRect;
    ETool m_nResumeTool = ETool::SelectRect;  // the one to return to when a float is merged
    int m_nZoom = 1;                          // screen pixels a picture pixel: 1, 2, 4 or 6
    CColor m_crForeground{0, 0, 0};           // paints under the left button
    CColor m_crBackground{255, 255, 255};     // paints under the right button
    int m_nLineWidth = 1;                     // 1 to 5: pen of the shape tools and of the diagonal brushes
    EFillMode m_nFillMode = EFillMode::None;
    int m_nBrushShape = 0;           // 0 to 11
    int m_nSpraySize = 0;            // 0 to 2
    int m_nEraserSize = 0;           // 0 to 3
    bool m_bPickForeground = false;  // which colour the picker writes
};
