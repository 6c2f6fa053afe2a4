#pragma once

#include "engines/page/Papers.h"

class QPageSize;

// The number of this paper among those of engines/page/Papers.cpp, with its size if the user has set it. A
// named paper that has none there gets a number that the table does not know.
CDeviceMode PaperModeOf(const QPageSize& size);
