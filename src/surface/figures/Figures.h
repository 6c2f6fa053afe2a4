#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "surface/Surface.h"

// Figures as text: what a drawing call leaves on a small picture. A case is one line,
//
//     ID KIND W H PW BRUSH arguments
//
// and its result a line "= ret N" (what the call returned) or "= box TYPE l t r b" (a region's bounding box)
// and H rows of W characters: . white, P the pen's colour, B the brush's. The picture starts white. PW is the
// pen's width, 0 for no pen; BRUSH is hollow, solid or none.
//
//     LINE x0 y0 x1 y1            POLYLINE n x y ...           POLYGON n x y ...
//     RECT l t r b                ELLIPSE l t r b              ROUNDRECT l t r b ew eh
//     BEZIER four points          FILLRECT l t r b
//     FLOOD x y C k shapes        k shapes LINE, RECT or ELLIPSE with four numbers, then a fill from x
//                                 y of the colour C: W white, P pen, B brush, A what is found there
//     DOTTED STYLE BK GROUND SHAPE ...
//                                 style dot, dash, dashdot, dashdotdot; BK opaque or transparent; ground
//                                 white or brush; shape LINE, RECT, ELLIPSE, POLYLINE n ..., LINETO n ...
//     RGNPOLY n x y ...           RGNELL l t r b               RGNRECT l t r b
//     FILLRGN POLY n ...          FILLRGN ELL l t r b          FILLRGN RECT l t r b
//     STRETCH sw sh ROWS dx dy dw dh sx sy sW sH
//                                 a picture of sw by sh with the rows ROWS (a / between two), its block at sx
//                                 sy of size sW by sH stretched onto the block at dx dy of size dw by dh

struct CFigure {
    // The line behind "= ".
    std::string strAnswer;
    CSurface picture{0, 0};

    // The line "= ..." and the rows, each with a line end.
    std::string Text() const;
};

// Nothing, and why in strError, if the line is no case.
[[nodiscard]] std::optional<CFigure> DrawFigure(const std::string& strCase, std::string& strError);

// True for a line that stands for a case: not empty, no comment (#), no answer and no row of a picture.
bool IsFigureCase(const std::string& strLine);

// Draws the cases of a file, whose pictures are passed over, and writes each with its result. False, and the
// line and the reason in strError, at the first that is no case.
[[nodiscard]] bool DrawFigures(std::istream& in, std::ostream& out, std::string& strError);
