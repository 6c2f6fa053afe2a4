#include "paint/FreeOutline.h"

#include <algorithm>

void CFreeOutline::Add(CPoint pt) {
    if (m_points.size() >= kMostPoints) Thin();
    m_points.push_back(pt);
}

// Every mouse move leaves its point twice, so at first nothing is lost. Then every second point goes.
void CFreeOutline::Thin() {
    m_points.erase(std::unique(m_points.begin(), m_points.end()), m_points.end());
    if (m_points.size() <= kMostPoints / 2 + 1) return;
    std::size_t nKept = 0;
    for (std::size_t i = 0; i < m_points.size(); i += 2) m_points[nKept++] = m_points[i];
    m_points.resize(nKept);
}
