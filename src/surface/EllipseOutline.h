#pragma once

#include <cstdint>

#include "surface/Exact.h"

// The stepped outline of an ellipse in a box of nWidth by nHeight pixels, both from 3 to kMaxSide. It is told
// for the upper left quarter; the other three are its mirror images.
//
// The outline is the walk from the left end of the middle row (the upper of two) to the middle column. With F
// below 0 inside the ellipse through the box's outermost pixels, each step of the walk looks from its pixel
// at both
//     right  if F(above) + F(above right) >= 0
//     up     if F(right) + F(above right) <= 0
// and goes diagonally if both hold. In row y the walk leaves at the first column where "up" holds or where
// "right" of the row below ceases to hold, whichever lies further right; so a row is found without the walk
// to it, and an ellipse that is far larger than what is seen of it costs only the rows that are seen. The
// rule was compared with the walk for all boxes up to 420 by 420 and for thousands of larger ones.
class CEllipseOutline {
  public:
    // Products of four sides still fit.
    static constexpr std::int64_t kMaxSide = std::int64_t{1} << 31;

    CEllipseOutline(std::int64_t nWidth, std::int64_t nHeight);

    // The last row and column of the quarter; the row is where the outline starts.
    std::int64_t MiddleRow() const { return m_nMiddleRow; }
    std::int64_t MiddleColumn() const { return m_nMiddleColumn; }

    // The outline's columns in row y, 0 (the top) .. MiddleRow().
    struct CRow {
        std::int64_t nFirst = 0;
        std::int64_t nLast = 0;
        // The outline of a narrow ellipse ends below its top rows; there is nothing in these.
        bool bReached = true;
        // The row in which the outline reaches the middle column.
        bool bTop = false;
    };
    // Rows that follow each other upward or downward are found quickest.
    CRow Row(std::int64_t y);

    // The first column that belongs to the area: the outline's own, or in a row that it does not reach that
    // of the exact ellipse. Beyond MiddleColumn() if there is none.
    std::int64_t FirstInside(std::int64_t y);

  private:
    CInt128 Value(std::int64_t x, std::int64_t y) const;
    bool GoesRight(std::int64_t x, std::int64_t y) const;
    bool GoesUp(std::int64_t x, std::int64_t y) const;
    std::int64_t Exit(std::int64_t y);

    std::int64_t m_nWidth;
    std::int64_t m_nHeight;
    std::int64_t m_nMiddleRow;
    std::int64_t m_nMiddleColumn;
    CInt128 m_nSquareX;
    CInt128 m_nSquareY;
    // Where the searches of the row before ended.
    std::int64_t m_nUp = 0;
    std::int64_t m_nRight = 0;
    std::int64_t m_nInside = 0;
    // The last answer of Exit.
    std::int64_t m_nExitRow = -1;
    std::int64_t m_nExit = 0;
};
