#pragma once

#include "window/Choosers.h"

class CQtFontDialogs : public CFontDialogs {
  public:
    std::optional<CFontChoice> Run(const CFontChoice& start) override;
};
