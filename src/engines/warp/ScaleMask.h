#pragma once

#include "engines/warp/GreyView.h"

// Stretches a mask over a target of another size, sampled bilinearly, every operation in single precision.
// Two rows of the mask at the bottom are left out of the scale, and the last row and column of the target
// have no ink. Nor has the whole target if the mask has but two rows. Every byte of the target is written;
// mask and target are at least 1 by 1. May throw std::bad_alloc.
void ScaleMask(CConstGreyView mask, CGreyView target);
