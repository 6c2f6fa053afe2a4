#pragma once

#include <array>
#include <cstdint>

// How text is warped and coloured: what the mode for text fills in and the engine reads.

// nWarpKind; any other number is a projection.
inline constexpr int kWarpProjection = 0;
inline constexpr int kWarpMesh = 1;

// nTextEffect; any other number is plain.
inline constexpr int kTextPlain = 0;
inline constexpr int kTextShaded = 1;
inline constexpr int kTextOutlined = 2;
inline constexpr int kTextReversed = 3;

// A place for each point of a mesh, row by row from the top left; a mesh of 4 by 4 uses 16 of them.
inline constexpr int kMeshPoints = 20;
using MeshValues = std::array<float, kMeshPoints>;

// The x of a mesh of 4 by 4 points that is regular over that width: 0, a third, two thirds, all of it.
constexpr MeshValues RegularMeshX(float fWidth) {
    MeshValues values{};
    unsigned i = 0;
    for (int nRow = 0; nRow < 4; ++nRow)
        for (int nCol = 0; nCol < 4; ++nCol) values[i++] = fWidth * static_cast<float>(nCol) / 3.0F;
    return values;
}
// The y of it, for the height.
constexpr MeshValues RegularMeshY(float fHeight) {
    MeshValues values{};
    unsigned i = 0;
    for (int nRow = 0; nRow < 4; ++nRow)
        for (int nCol = 0; nCol < 4; ++nCol) values[i++] = fHeight * static_cast<float>(nRow) / 3.0F;
    return values;
}

// Pixels, x to the right and y down, everywhere. Corners are relative to the box, points of a mesh to the
// mesh's box; both boxes may reach beyond the picture.
struct TextArtParam {
    int nWarpKind = kWarpProjection;
    int nTextEffect = kTextPlain;
    std::uint8_t byRed = 217;
    std::uint8_t byGreen = 40;
    std::uint8_t byBlue = 200;

    // x0, y0 to x3, y3: top left, top right, bottom right, bottom left.
    std::array<float, 8> fQuad = {0, 0, 176, 0, 176, 144, 0, 144};
    int nBoxWidth = 176;
    int nBoxHeight = 144;
    int nBoxX = 0;
    int nBoxY = 0;

    int nMeshX = 0;
    int nMeshY = 0;
    int nMeshWidth = 176;
    int nMeshHeight = 144;
    // Columns and rows of points: at least 3 of each, at most kMeshPoints together.
    int nMeshCols = 4;
    int nMeshRows = 4;
    // Before the warp and after it.
    MeshValues fMeshSrcX = RegularMeshX(176);
    MeshValues fMeshSrcY = RegularMeshY(144);
    MeshValues fMeshDstX = RegularMeshX(176);
    MeshValues fMeshDstY = RegularMeshY(144);
};
