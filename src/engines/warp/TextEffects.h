#pragma once

#include "engines/warp/GreyView.h"

// The styles of text, each from a mask into another of the same size in different memory; every byte is
// written. Any size will do.

// What the light of one lamp makes of the glyphs, taken for a relief: from 0 to about 218. What is flat keeps
// 90 if it has ink and none if it has not; the outermost pixels have none.
void ShadeText(CConstGreyView src, CGreyView dst);

// A line of full ink along the edge of the glyphs, which are first swollen by a diamond of radius 2; may
// throw std::bad_alloc. The two outermost rows and columns have no ink.
void OutlineText(CConstGreyView src, CGreyView dst);

// Full ink where there was none, and the other way round.
void ReverseText(CConstGreyView src, CGreyView dst);
