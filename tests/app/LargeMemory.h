#pragma once

#include "image/BlockGate.h"

// In this test program a gate counts and refuses the large blocks of containers too, as it does those of
// pixels.
