#pragma once

#include "Stage.h"

// Height of the land above the lake, x to the right of the camera and fDistance ahead of it; below 0 under
// water.
float LandHeight(float x, float fDistance);

void AddWoods(CStage& stage);
void AddReeds(CStage& stage);
void AddJetty(CStage& stage);
void AddBoat(CStage& stage);
