#include "surface/PolygonScan.h"

#include <algorithm>

void CPolygonScan::Start(std::span<const CFarPoint> points, FillRule rule, std::int64_t yFrom,
                         std::int64_t yTo) {
    m_rule = rule;
    m_yFrom = yFrom;
    m_yTo = yTo;
    m_edges.clear();
    m_active.clear();
    for (std::size_t i = 0; i < points.size(); ++i) AddEdge(points[i], points[(i + 1) % points.size()]);
    std::ranges::sort(m_edges, {}, &CEdge::yTop);
    m_nNext = 0;
    m_nRow = m_edges.empty() ? yTo : m_edges.front().yTop - 1;
}

// An edge enters at its first row that is seen.
void CPolygonScan::AddEdge(CFarPoint ptFrom, CFarPoint ptTo) {
    const bool bDown = ptFrom.y < ptTo.y;
    const CFarPoint ptTop = bDown ? ptFrom : ptTo;
    const CFarPoint ptBottom = bDown ? ptTo : ptFrom;
    CEdge edge{};
    edge.yTop = std::max(ptTop.y, m_yFrom);
    edge.yBottom = std::min(ptBottom.y, m_yTo);
    if (edge.yTop >= edge.yBottom) return;
    const std::int64_t dx = ptBottom.x - ptTop.x;
    edge.nHeight = ptBottom.y - ptTop.y;
    edge.nStep = FloorDiv(dx, edge.nHeight);
    edge.nStepRest = dx - edge.nStep * edge.nHeight;
    const CInt128 nOffset = CInt128{edge.yTop - ptTop.y} * dx;
    const auto nColumns = static_cast<std::int64_t>(CeilDiv(nOffset, CInt128{edge.nHeight}));
    edge.x = ptTop.x + nColumns;
    edge.nRest = static_cast<std::int64_t>(CInt128{nColumns} * edge.nHeight - nOffset);
    edge.nWinding = bDown ? 1 : -1;
    m_edges.push_back(edge);
}

bool CPolygonScan::NextRow() {
    ++m_nRow;
    UpdateActive();
    // Between two parts of a polygon there may be rows that no edge reaches.
    if (m_active.empty()) {
        if (m_nNext == m_edges.size()) return false;
        m_nRow = m_edges[m_nNext].yTop;
        UpdateActive();
    }
    MakeSpans();
    return true;
}

void CPolygonScan::UpdateActive() {
    std::erase_if(m_active, [this](const CEdge& edge) { return edge.yBottom <= m_nRow; });
    for (CEdge& edge : m_active) {
        edge.x += edge.nStep;
        edge.nRest -= edge.nStepRest;
        if (edge.nRest >= 0) continue;
        edge.nRest += edge.nHeight;
        ++edge.x;
    }
    for (; m_nNext < m_edges.size() && m_edges[m_nNext].yTop == m_nRow; ++m_nNext)
        m_active.push_back(m_edges[m_nNext]);
    // Nearly in order already, as the row before left it.
    for (std::size_t i = 1; i < m_active.size(); ++i)
        for (std::size_t j = i; j > 0 && m_active[j].x < m_active[j - 1].x; --j)
            std::swap(m_active[j], m_active[j - 1]);
}

// Edges that share their first column may stand in any order: what lies between them has no pixel.
void CPolygonScan::MakeSpans() {
    m_spans.clear();
    int nWinding = 0;
    for (std::size_t i = 0; i + 1 < m_active.size(); ++i) {
        nWinding += m_rule == FillRule::kWinding ? m_active[i].nWinding : 1;
        const bool bInside = m_rule == FillRule::kWinding ? nWinding != 0 : nWinding % 2 != 0;
        if (bInside) AddSpan(m_active[i].x, m_active[i + 1].x);
    }
}

void CPolygonScan::AddSpan(std::int64_t nLeft, std::int64_t nRight) {
    if (nLeft == nRight) return;
    if (!m_spans.empty() && m_spans.back().nRight == nLeft)
        m_spans.back().nRight = nRight;
    else
        m_spans.push_back({nLeft, nRight});
}
