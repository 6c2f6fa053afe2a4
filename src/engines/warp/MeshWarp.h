#pragma once

#include "engines/warp/GreyView.h"
#include "engines/warp/TextArtParam.h"

// True if the record's mesh has points enough for splines and not more than it may have.
bool HasSplines(const TextArtParam& param);

// Bends a plane, at least 1 by 1, by such a mesh, where it stands: the two-pass mesh warp of D. Smythe (G.
// Wolberg, "Digital Image Warping", 1990, chapter 7.7). The first pass moves pixels along their rows to where
// splines through the columns of the mesh lead them, the second along their columns.
//
// Of the record only the mesh is read; its points are pixels of the plane and the edges of both its forms
// should lie on the plane's. From the first column on that they do not reach over there is no ink, and none
// at all if that happens with a row. May throw std::bad_alloc.
void MeshWarp(const TextArtParam& param, CGreyView plane);

// The bytes that MeshWarp and ScaleMask need at most for a plane of that size besides the plane.
std::size_t MeshWarpMemory(int nWidth, int nHeight);
