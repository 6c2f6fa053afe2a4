#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "Vec.h"

// Triangles with a normal for each corner, and for each corner its place before it was moved ("rest"), which
// textures go by. A triangle's material is an index into the stage's list.
struct CMesh {
    struct CCorner {
        CVec3 position;
        CVec3 normal;
        CVec3 rest;
    };
    struct CTriangle {
        std::array<std::uint32_t, 3> corners;
        std::uint32_t nMaterial;
    };
    std::vector<CCorner> corners;
    std::vector<CTriangle> triangles;

    // Moves every corner from nFirst on; `move` takes a point to its place. Normals follow by differences.
    void Move(std::size_t nFirst, const std::function<CVec3(CVec3)>& move);
};

using CPlaceOf = std::function<CVec3(float u, float v)>;
using CField = std::function<float(CVec3)>;

// A sheet over u, v in 0..1, nAcross by nDown quads; seen from its front, u runs right and v runs up.
// `bRound` joins u = 1 to u = 0.
void AddSheet(CMesh& mesh, int nMaterial, int nAcross, int nDown, bool bRound, const CPlaceOf& place);

// A profile turned about the y axis; the points are (radius, height), joined by a smooth curve, and run so
// that the outside lies on their right when they go up.
void AddTurned(CMesh& mesh, int nMaterial, const std::vector<CVec2>& profile, int nAround, int nSteps,
               const std::function<CVec3(CVec3)>& shape);

// The surface where a signed distance is 0, inside the box, in cells of the given side.
void AddField(CMesh& mesh, int nMaterial, const CField& field, CVec3 ptLow, CVec3 ptHigh, float fCell);

// A box with its own sides, turned about y.
void AddBox(CMesh& mesh, int nMaterial, CVec3 ptCentre, CVec3 ptHalf, float fTurn);

// A smooth curve through the points; t in 0..1 over all of it.
CVec2 CurveAt(const std::vector<CVec2>& points, float t);

// Distances that run into each other over a seam of width k.
inline float SmoothMin(float a, float b, float k) {
    const float h = std::max(k - std::fabs(a - b), 0.0F) / k;
    return std::min(a, b) - h * h * k * 0.25F;
}
inline float SmoothMax(float a, float b, float k) {
    return -SmoothMin(-a, -b, k);
}
float EllipsoidDistance(CVec3 p, CVec3 radii);
float CapsuleDistance(CVec3 p, CVec3 a, CVec3 b, float fRadius);
