#pragma once

#include "image/Image.h"
#include "image/RandomSequence.h"

// One call of an effect. src and dst have the same size, at least 1 by 1, and are different memory but for
// effects that say otherwise; the effect writes every pixel of dst. It may throw std::bad_alloc. Both have 64
// bytes behind their last pixel that may be touched. Rows are counted from the top.
struct CEffectCall {
    CConstPixelView src;
    CPixelView dst;
    int nLevel;
    // Width of the full picture in pixels: what sizes in pixels refer to. Above 0.
    int nRefWidth;
    CRandomSequence& random;
};

// The effects themselves, each in the file of its name or of its family. What each does stands there.

// Tone and colour
void Brightness(const CEffectCall& call);
void Contrast(const CEffectCall& call);
void Chroma(const CEffectCall& call);
void Negative(const CEffectCall& call);
void PureBlackWhite(const CEffectCall& call);
void BlackWhite(const CEffectCall& call);
void ColourSaturation(const CEffectCall& call);
void OldPhoto(const CEffectCall& call);
void Nostalgia(const CEffectCall& call);
void Moonlight(const CEffectCall& call);
void Haze1(const CEffectCall& call);
void Cool(const CEffectCall& call);

// Filters and histograms
void Sharpness(const CEffectCall& call);
void NoiseRemoval(const CEffectCall& call);
void Backlight(const CEffectCall& call);
void Homogenise(const CEffectCall& call);
void LowLightRepair(const CEffectCall& call);
void Haze2(const CEffectCall& call);
void Engrave(const CEffectCall& call);
void Sketch(const CEffectCall& call);
void Refraction2(const CEffectCall& call);
void Refraction1(const CEffectCall& call);
void Woodcut(const CEffectCall& call);

// Pictures and frames
void Film(const CEffectCall& call);
void Art(const CEffectCall& call);
void CrystalFrame(const CEffectCall& call);
void Jigsaw(const CEffectCall& call);
void OilPainting(const CEffectCall& call);
void Tile(const CEffectCall& call);
void Laminate(const CEffectCall& call);
void ConcaveMirror(const CEffectCall& call);

// Writes src to dst as it is: what an effect does that finds nothing to do.
void CopyPicture(const CEffectCall& call);
