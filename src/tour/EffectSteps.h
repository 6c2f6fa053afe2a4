#pragma once

#include <vector>

#include "tour/Tour.h"

// EFFECT with a photograph open: every effect's preview, the slider under the hand, CONFIRM and CANCEL. Ends
// with the photograph as it was found.
void AddEffects(std::vector<CTourStep>& steps);
