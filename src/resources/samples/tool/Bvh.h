#pragma once

#include <cstdint>
#include <vector>

#include "Mesh.h"

struct CRay {
    CVec3 origin;
    CVec3 dir;  // unit length
};

// Where a ray meets a triangle: its number, the weights of its second and third corner, the distance.
struct CMeet {
    float t;
    float u;
    float v;
    std::uint32_t nTriangle;
};

// Boxes in boxes over the triangles of a mesh, split by the surface-area rule in sixteen bins.
class CBvh {
  public:
    explicit CBvh(const CMesh& mesh);

    // The nearest meeting beyond 0 and before meet.t, which the caller sets; false leaves meet as it was.
    bool Nearest(const CRay& ray, CMeet& meet) const;

  private:
    struct CNode {
        CVec3 low;
        CVec3 high;
        // Of a leaf its first triangle; else the second child (the first stands behind).
        std::uint32_t nFirst = 0;
        std::uint32_t nCount = 0;  // 0 for a node with children
    };
    struct CPiece {
        CVec3 low;
        CVec3 high;
        std::uint32_t nTriangle = 0;
        CVec3 Centre() const { return (low + high) * 0.5F; }
    };
    struct CFlat {
        CVec3 a;
        CVec3 ab;
        CVec3 ac;
        std::uint32_t nTriangle = 0;
    };
    struct CSplit {
        int nAxis;
        float fPlace;
        float fCost;
    };

    void Build(std::vector<CPiece>& pieces, std::size_t nFrom, std::size_t nTo);
    static CSplit BestSplit(const std::vector<CPiece>& pieces, std::size_t nFrom, std::size_t nTo, CVec3 low,
                            CVec3 high);
    bool Meet(const CFlat& flat, const CRay& ray, CMeet& meet) const;

    std::vector<CNode> m_nodes;
    std::vector<CFlat> m_flats;
};
