#pragma once

#include "window/WaitCursor.h"

class CQtWaitCursor : public CWaitCursor {
  public:
    void Begin() override;
    void End() override;

  private:
    int m_nDepth = 0;
};
