#pragma once

#include <functional>
#include <vector>

#include "Film.h"
#include "Mesh.h"
#include "Noise.h"

struct CRay;

// What a material's shader is told, and what it answers.
struct CSpot {
    CVec3 position;
    CVec3 rest;    // the place on the unmoved thing, for textures
    CVec3 normal;  // smooth, towards the viewer
    bool bClose =
        false;  // seen by the lens or in a mirror: small bumps show; else they need not be worked out
};
struct CMaterial {
    CVec3 crBody{0.5F, 0.5F, 0.5F};  // diffuse reflectance
    CVec3 normal;                    // with bumps
    CVec3 crEmitted;
    float fRoughness = 0.5F;
    CVec3 crMirror{0.04F, 0.04F, 0.04F};  // reflectance of the gloss straight on
    CVec3 crThrough{1, 1, 1};             // of glass: tint of what goes through one face
    float fIndex = 1.5F;                  // of glass: of refraction
};
using CShader = std::function<CMaterial(const CSpot&)>;

// A rectangle that shines to its front: corner, two edges; the front is Cross(edgeU, edgeV).
struct CLamp {
    CVec3 corner;
    CVec3 edgeU;
    CVec3 edgeV;
    CVec3 crLight;
    bool bSeen = true;  // in the picture and in mirrors
};

// A lamp of the given sides about a place, turned to what it lights.
CLamp LampAt(CVec3 ptCentre, CVec3 ptTarget, float fWidth, float fHeight, CVec3 crLight);

struct CCamera {
    CVec3 eye;
    CVec3 target;
    float fFieldOfView = 40;  // degrees, over the picture's height
    float fAperture = 0;      // radius of the lens
    float fFocus = 1;         // distance that is sharp

    // x and y in -1..1 over the height, y up (x goes beyond by the aspect); lens in the unit disk.
    CRay Through(float x, float y, CVec2 lens) const;
};

struct CScene {
    CMesh mesh;
    std::vector<CShader> shaders;
    std::vector<bool> clear;  // for each shader: whether it is of glass
    std::vector<CLamp> lamps;
    // Light from outside everything; bClose asks for all its detail.
    std::function<CVec3(CVec3 dir, bool bClose)> sky;
    // What the air does over a distance: the part of the light that comes through, and light that it adds.
    struct CAir {
        CVec3 through;
        CVec3 crAdded;
    };
    std::function<CAir(CVec3 origin, CVec3 dir, float fLength)> air;
    CCamera camera;
    bool bFarIsSoft = false;  // what is not in focus has no edges that the cleaning must keep

    int AddShader(CShader shader, bool bClear = false) {
        shaders.push_back(std::move(shader));
        clear.push_back(bClear);
        return static_cast<int>(shaders.size()) - 1;
    }
};

// The stage photographed with nPaths light paths a pixel, cleaned of the noise that they leave.
CFilm Photograph(const CScene& stage, int nWidth, int nHeight, int nPaths);

// The spot's normal bent by the slope of a height field around `p`; `fStep` is the distance of the samples.
CVec3 Bend(const CSpot& spot, CVec3 p, float fStep, float fHeight, const std::function<float(CVec3)>& height);
