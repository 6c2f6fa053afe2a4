#pragma once

#include <cstdint>
#include <span>

#include "image/Geometry.h"

// Which size a picture may have for a phone, and how its thumbnail is made. Sizes in pixels. A phone tells
// its sizes in a table in its own order; nothing here relies on what it tells being sane.

// The size of the phone's screen: what is sent where a picture has no size of its own.
inline constexpr CSize kPhoneScreen{176, 144};
// A thumbnail that may be larger than this in both directions is made for this box, and it is the size of the
// intermediate picture of a thumbnail that is made in two stages.
inline constexpr CSize kLargeThumb{320, 240};
// From this size on a thumbnail for the screen is made in two stages.
inline constexpr CSize kTwoStagePicture{640, 480};

// The picture is not wider or higher than the first size of the table, which alone decides. Nothing fits a
// table without sizes.
bool FitsPhone(CSize sizePicture, std::span<const CSize> sizes);
// What messages name as the most that a phone takes: the last size if it is wider than the first, else the
// first; 0 by 0 for a table without sizes.
CSize LargestPhoneSize(std::span<const CSize> sizes);
bool IsPhoneSize(CSize size, std::span<const CSize> sizes);

// True if nAdded more files do not go onto a phone that has nStored and takes nMost; -1 for no limit.
bool IsAboveFileLimit(std::int64_t nStored, std::int64_t nAdded, int nMost);

// The box for thumbnails on a phone that tells this size.
CSize ThumbBox(CSize sizePhoneThumb);

struct CThumbPlan {
    CSize size;               // at least 1 by 1; may lie outside the box
    bool bTwoStages = false;  // the picture is brought to kLargeThumb first, and from there to the size
    bool operator==(const CThumbPlan&) const = default;
};
// How the thumbnail of a picture of at least 1 by 1 is made for a box. A picture that fits the box keeps its
// size; one of the phone's own sizes fills a box as large as the screen; every other keeps its proportions,
// with whole-number divisions. A side that comes out below 1, as for a box of 0 by 0, is 1; one that no int
// holds is the largest int, and no memory will be there for such a picture.
CThumbPlan PlanThumb(CSize sizePicture, CSize sizeBox, std::span<const CSize> sizes);
