#pragma once

#include "engines/effects/EffectTable.h"
#include "image/Image.h"
#include "image/RandomSequence.h"

// Turns a picture into another by one of the effects; the same for a small preview and the whole picture.
// Knows nothing of the screen, of undo or of the list, and keeps nothing from call to call.
//
// nLevel may lie beyond the slider's range. nRefWidth is the width in pixels of the full picture, which sizes
// in pixels refer to; the picture's own one stands in for a width that is not above 0. Oil Painting and Tile
// draw their numbers from the sequence. Alpha stays. An effect that is none of the table, a picture below the
// effect's least size, and a level that asks for nothing leave the picture as it is. False, and nothing
// changes, if there is no memory for it.
[[nodiscard]] bool ApplyEffect(CxImage& image, EEffect effect, int nLevel, int nRefWidth,
                               CRandomSequence& random);
