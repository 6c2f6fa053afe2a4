#pragma once

#include "window/MessageBoxes.h"

class CQtMessageBoxes : public CMessageBoxes {
  public:
    EBoxAnswer Show(const CMessageBox& box) override;
};
