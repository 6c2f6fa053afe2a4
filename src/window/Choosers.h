#pragma once

#include <optional>
#include <string>

#include "image/Color.h"

// The system's colour dialog in its full form, opened on a colour.
class CColorDialogs {
  public:
    virtual ~CColorDialogs() = default;
    virtual std::optional<CColor> Run(CColor colorStart) = 0;
};

struct CFontChoice {
    std::string strFace;
    bool bBold = false;
    bool operator==(const CFontChoice&) const = default;
};

// The system's font dialog, reduced to face and regular or bold.
class CFontDialogs {
  public:
    virtual ~CFontDialogs() = default;
    virtual std::optional<CFontChoice> Run(const CFontChoice& start) = 0;
};
