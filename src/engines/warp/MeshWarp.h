#pragma once

#include "engines/warp/GreyView.h"
#include "engines/warp/TextArtParam.h"

// Bends a plane, at least 1 by 1, by its mesh, where it stands: the two-pass mesh warp of D. Smythe (G.
// Wolberg, "Digital Image Warping", 1990, chapter 7.7). The first pass moves pixels along their rows to where
// splines through the columns of the mesh lead them, the second along their columns.
//
// Of a record only the mesh is read; its points are pixels of the plane and the edges of both its meshes
// should lie on the plane's. From the first column on that they do not reach over, and for a row or a mesh of
// fewer than 3 or more than kMeshPoints points the whole plane, the result has no ink. May throw
// std::bad_alloc.
void MeshWarp(const TextArtParam& param, CGreyView plane);

// The bytes that MeshWarp needs for a plane of that size besides the plane.
std::size_t MeshWarpMemory(const TextArtParam& param, int nWidth, int nHeight);
