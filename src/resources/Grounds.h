#pragma once

#include "image/Color.h"

// The colours of the skin's grounds, for whatever is drawn on them.
namespace Grounds {

inline constexpr CColor kInfo{142, 154, 143};  // the info lines and the slider
inline constexpr CColor kHelp{117, 131, 134};
inline constexpr CColor kLevel{75, 94, 103};   // the level of an effect, progress, edges
inline constexpr CColor kList{109, 121, 126};  // lists and canvas

}  // namespace Grounds
