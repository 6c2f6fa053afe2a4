#pragma once

#include "Scene.h"

// Height of the land above the lake, x to the right of the camera and fDistance ahead of it; below 0 under
// water.
float LandHeight(float x, float fDistance);

void AddWoods(CScene& stage);
void AddReeds(CScene& stage);
void AddJetty(CScene& stage);
void AddBoat(CScene& stage);
