#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "surface/Exact.h"

// What counts as the inside of a polygon: an odd number of edges to one side, or a winding number other than
// 0.
enum class FillRule { kAlternate, kWinding };

// The pixels nLeft .. nRight - 1 of a row.
struct CRun {
    int nLeft = 0;
    int nRight = 0;
    bool operator==(const CRun&) const = default;
};

// Walks the rows of a polygon from top to bottom. A pixel belongs to it if the point at its own coordinates
// does: left and top edges are in, right and bottom edges are out. Positions on slanted edges are exact.
//
//     for (scan.Start(points, FillRule::kAlternate, yFrom, yTo); scan.NextRow();) use(scan.Row(),
//     scan.Spans());
//
// Rows outside yFrom .. yTo - 1 cost nothing. One object can walk one polygon after the other and keeps its
// memory.
class CPolygonScan {
  public:
    struct CSpan {
        std::int64_t nLeft;
        std::int64_t nRight;
    };

    void Start(std::span<const CFarPoint> points, FillRule rule, std::int64_t yFrom, std::int64_t yTo);
    // The next row that an edge reaches; false behind the last.
    bool NextRow();

    std::int64_t Row() const { return m_nRow; }
    // In order, apart from each other and none of them empty.
    std::span<const CSpan> Spans() const { return m_spans; }

  private:
    struct CEdge {
        std::int64_t yTop, yBottom;
        // The first column at or right of the edge in the current row, and how far it lies from the edge in
        // parts of nHeight.
        std::int64_t x, nRest;
        // What a row adds to the position: whole columns and parts of nHeight.
        std::int64_t nStep, nStepRest, nHeight;
        int nWinding;
    };
    void AddEdge(CFarPoint ptFrom, CFarPoint ptTo);
    void UpdateActive();
    void MakeSpans();
    void AddSpan(std::int64_t nLeft, std::int64_t nRight);

    FillRule m_rule = FillRule::kAlternate;
    std::int64_t m_yFrom = 0;
    std::int64_t m_yTo = 0;
    std::int64_t m_nRow = 0;
    std::size_t m_nNext = 0;
    std::vector<CEdge> m_edges;
    std::vector<CEdge> m_active;
    std::vector<CSpan> m_spans;
};
