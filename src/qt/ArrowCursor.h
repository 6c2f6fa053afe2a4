#pragma once

// While the wait cursor is on, puts the arrow over it for as long as this lives: what comes up in the middle
// of work waits for the user.
class CArrowCursor {
  public:
    CArrowCursor();
    ~CArrowCursor();
    CArrowCursor(const CArrowCursor&) = delete;
    CArrowCursor& operator=(const CArrowCursor&) = delete;

  private:
    bool m_bShown;
};
