#pragma once

#include <vector>

#include "tour/Tour.h"

// DRAW with a white page open: colours, every tool with its options, selections, the clipboard and Crop, each
// at work on one picture. Ends in EFFECT with that picture.
void AddDraw(std::vector<CTourStep>& steps);
