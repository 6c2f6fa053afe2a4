#pragma once

#include <QImage>

#include "resources/MainDialog.h"
#include "strips/EffectSamples.h"

// A row of the effect list at one density: the effect's name, what it does to a photograph, and a small
// slider for an effect that has a level. The selected form is lit.
class CEffectCells {
  public:
    static constexpr QSize kCell{kEffectCellSize.cx, kEffectCellSize.cy};
    // The sample in the cell.
    static constexpr QRect kSample{84, 5, 98, 58};

    CEffectCells(CEffectSamples& samples, int nDensity) : m_samples(samples), m_nDensity(nDensity) {}

    // Empty if the photograph is missing.
    QImage Render(int nEffect, bool bSelected);

  private:
    CEffectSamples& m_samples;
    int m_nDensity;
};

// All effects on one picture, each with its name, number and level, on one sheet; the picture is scaled to
// the size of a large preview first. Empty for an empty picture.
QImage RenderContactSheet(const CxImage& image);
