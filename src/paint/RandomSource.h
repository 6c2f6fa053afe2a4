#pragma once

// The process's one sequence of random numbers, which is never seeded: every run sprays the same dots.
class CRandomSource {
  public:
    virtual ~CRandomSource() = default;
    // 0 to 2^31 - 1.
    virtual int Next() = 0;
};
