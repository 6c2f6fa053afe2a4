#pragma once

#include <cstdlib>

#include "paint/RandomSource.h"

// The C library's sequence, which nothing ever seeds.
class CProcessRandom : public CRandomSource {
  public:
    int Next() override { return std::rand(); }
};
