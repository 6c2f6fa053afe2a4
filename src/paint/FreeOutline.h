#pragma once

#include <span>
#include <vector>

#include "image/Geometry.h"

// The way of the cursor around a free selection. However long the drag, it goes on: when there is no more
// room the outline is kept with fewer points.
class CFreeOutline {
  public:
    static constexpr std::size_t kMostPoints = 8000;

    void Begin(CPoint pt) { m_points = {pt}; }
    void Clear() { m_points.clear(); }
    void Add(CPoint pt);
    std::span<const CPoint> Points() const { return m_points; }

  private:
    void Thin();

    std::vector<CPoint> m_points;
};
