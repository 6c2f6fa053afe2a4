#pragma once

// A test program with ShortMemory.cpp in it can be short of memory anywhere: a CBlockGate counts and refuses
// the large blocks of containers too, as it does those of pixels, and a CShortMemory an allocation of any
// size.

#include "image/BlockGate.h"

// As long as it lives, one allocation fails: the first behind nUntilFailure others.
class CShortMemory {
  public:
    explicit CShortMemory(int nUntilFailure);
    ~CShortMemory();
    CShortMemory(const CShortMemory&) = delete;
    CShortMemory& operator=(const CShortMemory&) = delete;
};
