#pragma once

#include "paint/PolygonTool.h"

// Marks a polygon, with the polygon tool's gestures but on the scratch store only.
class CSelectPolygonTool : public CPolygonTool {
  public:
    explicit CSelectPolygonTool(const CPaintEnvironment& env) : CPolygonTool(env) {}
    void DoubleClick(CPoint pt) override;
};
