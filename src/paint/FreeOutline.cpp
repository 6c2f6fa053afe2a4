#include "paint/FreeOutline.h"

void CFreeOutline::Begin(CPoint pt) {
    m_points = {pt};
    m_nStride = 1;
    m_nNewest = 0;
}

void CFreeOutline::Add(CPoint pt) {
    if (m_points.empty()) return Begin(pt);
    if (m_nNewest % m_nStride != 0) m_points.pop_back();
    if (m_points.size() == kMostPoints) Thin();
    m_points.push_back(pt);
    ++m_nNewest;
}

void CFreeOutline::Thin() {
    std::size_t nKept = 0;
    for (std::size_t i = 0; i < m_points.size(); i += 2) m_points[nKept++] = m_points[i];
    m_points.resize(nKept);
    m_nStride *= 2;
}
