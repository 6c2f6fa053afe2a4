#pragma once

#include "window/Choosers.h"

class CQtColorDialogs : public CColorDialogs {
  public:
    std::optional<CColor> Run(CColor colorStart) override;
};
