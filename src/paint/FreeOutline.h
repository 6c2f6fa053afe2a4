#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "image/Geometry.h"

// The way of the cursor around a free selection. However long the drag, it goes on: whenever there is no more
// room, every second point goes, and from then on only so many are kept. As every mouse move leaves its point
// twice, the first time loses nothing.
class CFreeOutline {
  public:
    static constexpr std::size_t kMostPoints = 8000;

    void Begin(CPoint pt);
    void Clear() { m_points.clear(); }
    void Add(CPoint pt);
    // The newest point is always there.
    std::span<const CPoint> Points() const { return m_points; }

  private:
    void Thin();

    std::vector<CPoint> m_points;
    // Of the points that came, numbered from 0, those are kept whose number is a multiple of this.
    std::int64_t m_nStride = 1;
    std::int64_t m_nNewest = 0;  // the number of the newest
};
