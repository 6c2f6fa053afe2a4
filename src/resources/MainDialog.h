#pragma once

#include "window/Template.h"

// The box in which an effect is previewed.
inline constexpr CSize kEffectPreviewSize{158, 122};
// A row of the effect list.
inline constexpr CSize kEffectCellSize{189, 68};
// A row of the list of text effects.
inline constexpr CSize kTextEffectCellSize{209, 24};
// The canvas, scroll bars included.
inline constexpr CSize kCanvasSize{659, 543};

// The main window: every control at its place, as it stands before the first mode comes up.
extern const CDialogTemplate kMainDialog;
