#pragma once

#include "image/Geometry.h"

enum class EOrientation { Portrait, Landscape };

// The number of a paper whose size the user has set himself.
inline constexpr int kOwnPaper = 256;

// What a printer is set to.
struct CDeviceMode {
    int nPaper = 9;   // see Papers.cpp
    CSize sizeOwn{};  // of kOwnPaper, in tenths of a millimetre, upright
    EOrientation orientation = EOrientation::Portrait;
    bool operator==(const CDeviceMode&) const = default;
};

// Whether the paper has a size of its own here: those of the table, and the user's.
bool IsPaperKnown(int nPaper);

// The proportions of the paper, upright: whole millimetres from the table, tenths of them for the user's own
// size. A4 for a paper that is not known and for one without a width or a length.
CSize PaperSize(const CDeviceMode& mode);
