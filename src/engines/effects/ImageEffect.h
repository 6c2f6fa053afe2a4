#pragma once

#include "engines/effects/EffectTable.h"
#include "image/Image.h"
#include "image/RandomSequence.h"

// Turns one picture into another by one of the numbered effects. Knows nothing of the screen, of undo or of
// the list. The same code serves the small preview and the whole picture.
class CImageEffect {
  public:
    // Oil Painting and Tile draw from the sequence, which outlives the engine.
    explicit CImageEffect(CRandomSequence& random) : m_random(random) {}

    // Applies the effect to the image; alpha stays. A number that is no effect, a picture below the effect's
    // least size, and an effect whose level asks for nothing leave the picture as it is. False, and nothing
    // changes, if there is no memory for it. Any level is taken, also beyond the slider's range.
    [[nodiscard]] bool ApplyEffect(CxImage& image, int nEffect, int nLevel, bool bFull, int nRefWidth);

    // Width in pixels of the full picture, as the last preview call gave it.
    int RefWidth() const { return m_nRefWidth; }

  private:
    int m_nRefWidth = 0;
    CRandomSequence& m_random;
};
