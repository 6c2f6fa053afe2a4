#pragma once

// As long as it lives, one allocation fails: the first behind nUntilFailure others.
class CShortMemory {
  public:
    explicit CShortMemory(int nUntilFailure);
    ~CShortMemory();
    CShortMemory(const CShortMemory&) = delete;
    CShortMemory& operator=(const CShortMemory&) = delete;
};
