#pragma once

#include "window/Clock.h"

class CQtClock : public CClock {
  public:
    CDate Today() override;
};
