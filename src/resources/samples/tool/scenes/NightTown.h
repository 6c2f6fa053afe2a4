#pragma once

#include <vector>

#include "Scene.h"

struct CTownLamp {
    CVec3 at;
    CVec3 crLight;
    float fPower = 0;
};

// The far bank with its houses, towers, pagoda and bridge; returns its single lamps, which are no part of the
// mesh.
std::vector<CTownLamp> AddTown(CScene& stage);
