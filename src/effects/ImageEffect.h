#pragma once

#include "effects/EffectTable.h"
#include "effects/RandomSequence.h"
#include "image/Image.h"

// Turns one picture into another by one of the numbered effects. Knows nothing of the screen, of undo or of
// the list. The same code serves the small preview and the whole picture.
class CImageEffect {
  public:
    // Applies the effect to the image; alpha stays. A number that is no effect, a picture below the effect's
    // least size, and an effect whose level asks for nothing leave the picture as it is. False, and nothing
    // changes, if there is no memory for it. Any level is taken, also beyond the slider's range.
    bool ApplyEffect(CxImage& image, int nEffect, int nLevel, bool bFull, int nRefWidth);

    // Starts the random numbers of Oil Painting and Tile anew. The program never does.
    void Seed(std::uint32_t nSeed) { m_random.Seed(nSeed); }

    // Width in pixels of the full picture, as the last preview call gave it.
    int RefWidth() const { return m_nRefWidth; }

  private:
    int m_nRefWidth = 0;
    CRandomSequence m_random;
};
