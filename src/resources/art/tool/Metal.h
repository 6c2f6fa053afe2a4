#pragma once

#include "Sheet.h"

// Gives every pixel of the sheet the lengthwise streaks of brushed metal. The streaks depend on the place
// alone, so that two sheets of the same density that were brushed fit together without a seam.
void BrushMetal(CSheet& sheet);
