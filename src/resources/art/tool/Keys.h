#pragma once

#include "Drawings.h"
#include "Sheet.h"

// The states of a key, by the letter that ends the name of its picture.
enum class EKeyState { Normal = 'U', Pressed = 'D', Focused = 'F', Disabled = 'X' };

// How glyph and caption share a key: the glyph above the caption, the glyph alone, the glyph beside the
// caption.
enum class EKeyShape { Bar, Tool, Side };

struct CKeyFace {
    EKeyShape eShape = EKeyShape::Bar;
    QString strGlyph;    // "-" for none
    QString strCaption;  // "-" for none
};

// Draws the key over the whole of the sheet, which holds the ground that shows around its cap.
void DrawKey(CSheet& sheet, CDrawings& drawings, const CKeyFace& face, EKeyState eState);

// Draws the face of a tab, which has no cap of its own, centred in rcPlace.
void DrawTabFace(CSheet& sheet, CDrawings& drawings, const QRect& rcPlace, const QString& strGlyph,
                 const QString& strCaption, bool bSelected);
