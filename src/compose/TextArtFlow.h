#pragma once

#include "image/Color.h"

// FONT: a line of text, shaped and blended into the picture.
class CTextArtFlow {
  public:
    CColor TextColor() const { return m_color; }
    // The engine holds a copy of the working image as base.
    bool IsBaseLoaded() const { return m_bTextBaseLoaded; }
    void ForgetBase() { m_bTextBaseLoaded = false; }

    // Settings back to their defaults, for a picture that comes in.
    void InitTextArt() { m_bTextBaseLoaded = false; }
    // The handles on the canvas back to their start.
    void InitTextHandles() {}

    void OnApplyText() {}
    void OnCharacter() {}
    void OnTextColor() {}
    void OnProjectionShape() {}
    void OnMeshShape() {}
    void OnShowLines() {}
    void OnSelChangeTextEffect() {}

  private:
    bool m_bTextBaseLoaded = false;
    CColor m_color{217, 40, 200};
};
