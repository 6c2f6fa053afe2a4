#include "Mesh.h"

namespace {

// Normals of the triangles from nFirst on, averaged over what meets in a corner.
void SmoothNormals(CMesh& mesh, std::size_t nFirstCorner, std::size_t nFirstTriangle) {
    for (std::size_t i = nFirstCorner; i < mesh.corners.size(); ++i) mesh.corners[i].normal = {};
    for (std::size_t i = nFirstTriangle; i < mesh.triangles.size(); ++i) {
        const auto& c = mesh.triangles[i].corners;
        const CVec3 a = mesh.corners[c[0]].position;
        const CVec3 normal = Cross(mesh.corners[c[1]].position - a, mesh.corners[c[2]].position - a);
        for (const std::uint32_t n : c) mesh.corners[n].normal += normal;
    }
    for (std::size_t i = nFirstCorner; i < mesh.corners.size(); ++i) {
        mesh.corners[i].normal = Normalize(mesh.corners[i].normal);
    }
}

CVec3 Gradient(const CField& field, CVec3 p, float e) {
    return Normalize({field(p + CVec3{e, 0, 0}) - field(p - CVec3{e, 0, 0}),
                      field(p + CVec3{0, e, 0}) - field(p - CVec3{0, e, 0}),
                      field(p + CVec3{0, 0, e}) - field(p - CVec3{0, 0, e})});
}

// The lattice on which AddField looks for the surface.
class CLattice {
  public:
    CLattice(const CField& field, CVec3 ptLow, CVec3 ptHigh, float fCell)
        : m_ptLow(ptLow),
          m_fCell(fCell),
          m_nSize{Count(ptHigh.x - ptLow.x), Count(ptHigh.y - ptLow.y), Count(ptHigh.z - ptLow.z)} {
        m_values.resize(static_cast<std::size_t>(m_nSize[0]) * m_nSize[1] * m_nSize[2]);
        for (std::uint32_t z = 0; z < m_nSize[2]; ++z) {
            for (std::uint32_t y = 0; y < m_nSize[1]; ++y) {
                for (std::uint32_t x = 0; x < m_nSize[0]; ++x)
                    m_values[Index(x, y, z)] = field(Point(x, y, z));
            }
        }
    }
    std::uint32_t Size(int nAxis) const { return m_nSize[static_cast<std::size_t>(nAxis)]; }
    std::size_t Index(std::uint32_t x, std::uint32_t y, std::uint32_t z) const {
        return (static_cast<std::size_t>(z) * m_nSize[1] + y) * m_nSize[0] + x;
    }
    float Value(std::uint32_t x, std::uint32_t y, std::uint32_t z) const { return m_values[Index(x, y, z)]; }
    CVec3 Point(std::uint32_t x, std::uint32_t y, std::uint32_t z) const {
        return m_ptLow + CVec3{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)} * m_fCell;
    }

    // The mean of the crossings on the edges of the cell at x, y, z; false if there is none.
    bool Crossing(std::uint32_t x, std::uint32_t y, std::uint32_t z, CVec3& ptMean) const {
        CVec3 sum;
        int nCount = 0;
        for (std::uint32_t nEdge = 0; nEdge < 12; ++nEdge) {
            const std::uint32_t nAxis = nEdge / 4;
            std::array<std::uint32_t, 3> a{x, y, z};
            a[(nAxis + 1) % 3] += nEdge & 1U;
            a[(nAxis + 2) % 3] += nEdge >> 1 & 1U;
            std::array<std::uint32_t, 3> b = a;
            ++b[nAxis];
            const float fA = Value(a[0], a[1], a[2]);
            const float fB = Value(b[0], b[1], b[2]);
            if ((fA < 0) == (fB < 0)) continue;
            sum += Mix(Point(a[0], a[1], a[2]), Point(b[0], b[1], b[2]), fA / (fA - fB));
            ++nCount;
        }
        if (nCount == 0) return false;
        ptMean = sum / static_cast<float>(nCount);
        return true;
    }

  private:
    std::uint32_t Count(float fLength) const { return static_cast<std::uint32_t>(fLength / m_fCell) + 2; }

    CVec3 m_ptLow;
    float m_fCell;
    std::array<std::uint32_t, 3> m_nSize;
    std::vector<float> m_values;
};

constexpr std::uint32_t kNoCorner = 0xffffffffU;

void AddQuad(CMesh& mesh, int nMaterial, const std::array<std::uint32_t, 4>& n, bool bTurned) {
    const auto nWhich = static_cast<std::uint32_t>(nMaterial);
    if (bTurned) {
        mesh.triangles.push_back({{n[0], n[2], n[1]}, nWhich});
        mesh.triangles.push_back({{n[0], n[3], n[2]}, nWhich});
    } else {
        mesh.triangles.push_back({{n[0], n[1], n[2]}, nWhich});
        mesh.triangles.push_back({{n[0], n[2], n[3]}, nWhich});
    }
}

}  // namespace

void CMesh::Move(std::size_t nFirst, const std::function<CVec3(CVec3)>& move) {
    constexpr float kStep = 1e-3F;
    for (std::size_t i = nFirst; i < corners.size(); ++i) {
        CCorner& corner = corners[i];
        const CFrame frame(corner.normal);
        const CVec3 p = corner.position;
        const CVec3 along = move(p + frame.tangent * kStep) - move(p - frame.tangent * kStep);
        const CVec3 across = move(p + frame.bitangent * kStep) - move(p - frame.bitangent * kStep);
        corner.position = move(p);
        corner.normal = Normalize(Cross(along, across));
    }
}

CVec2 CurveAt(const std::vector<CVec2>& points, float t) {
    const int nLast = static_cast<int>(points.size()) - 1;
    const float f = Clamp01(t) * static_cast<float>(nLast);
    const int n = std::min(static_cast<int>(f), nLast - 1);
    const float s = f - static_cast<float>(n);
    const auto at = [&](int i) { return points[static_cast<std::size_t>(std::clamp(i, 0, nLast))]; };
    // A cubic whose slope at a point is half the way between its neighbours.
    const CVec2 a = at(n - 1);
    const CVec2 b = at(n);
    const CVec2 c = at(n + 1);
    const CVec2 d = at(n + 2);
    return b + ((c - a) + ((a * 2 - b * 5 + c * 4 - d) + ((b - c) * 3 + d - a) * s) * s) * (0.5F * s);
}

void AddSheet(CMesh& mesh, int nMaterial, int nAcross, int nDown, bool bRound, const CPlaceOf& place) {
    const std::size_t nFirstCorner = mesh.corners.size();
    const std::size_t nFirstTriangle = mesh.triangles.size();
    const int nColumns = bRound ? nAcross : nAcross + 1;
    for (int j = 0; j <= nDown; ++j) {
        for (int i = 0; i < nColumns; ++i) {
            const CVec3 p = place(static_cast<float>(i) / static_cast<float>(nAcross),
                                  static_cast<float>(j) / static_cast<float>(nDown));
            mesh.corners.push_back({p, {}, p});
        }
    }
    const auto index = [&](int i, int j) {
        return static_cast<std::uint32_t>(nFirstCorner +
                                          static_cast<std::size_t>(j * nColumns + i % nColumns));
    };
    for (int j = 0; j < nDown; ++j) {
        for (int i = 0; i < nAcross; ++i) {
            AddQuad(mesh, nMaterial, {index(i, j), index(i + 1, j), index(i + 1, j + 1), index(i, j + 1)},
                    false);
        }
    }
    SmoothNormals(mesh, nFirstCorner, nFirstTriangle);
}

void AddTurned(CMesh& mesh, int nMaterial, const std::vector<CVec2>& profile, int nAround, int nSteps,
               const std::function<CVec3(CVec3)>& shape) {
    AddSheet(mesh, nMaterial, nAround, nSteps, true, [&](float u, float v) {
        const CVec2 pt = CurveAt(profile, v);
        const float r = std::max(pt.x, 1e-4F);
        const CVec3 p{-r * std::cos(2 * kPi * u), pt.y, r * std::sin(2 * kPi * u)};
        return shape ? shape(p) : p;
    });
}

void AddField(CMesh& mesh, int nMaterial, const CField& field, CVec3 ptLow, CVec3 ptHigh, float fCell) {
    const CLattice lattice(field, ptLow, ptHigh, fCell);
    std::vector<std::uint32_t> corners(
        static_cast<std::size_t>(lattice.Size(0)) * lattice.Size(1) * lattice.Size(2), kNoCorner);
    for (std::uint32_t z = 0; z + 1 < lattice.Size(2); ++z) {
        for (std::uint32_t y = 0; y + 1 < lattice.Size(1); ++y) {
            for (std::uint32_t x = 0; x + 1 < lattice.Size(0); ++x) {
                CVec3 p;
                if (!lattice.Crossing(x, y, z, p)) continue;
                const CVec3 normal = Gradient(field, p, fCell * 0.3F);
                p = p - normal * field(p);
                corners[lattice.Index(x, y, z)] = static_cast<std::uint32_t>(mesh.corners.size());
                mesh.corners.push_back({p, normal, p});
            }
        }
    }
    for (std::uint32_t z = 1; z + 1 < lattice.Size(2); ++z) {
        for (std::uint32_t y = 1; y + 1 < lattice.Size(1); ++y) {
            for (std::uint32_t x = 1; x + 1 < lattice.Size(0); ++x) {
                const bool bInside = lattice.Value(x, y, z) < 0;
                const auto at = [&](std::uint32_t i, std::uint32_t j, std::uint32_t k) {
                    return corners[lattice.Index(x - i, y - j, z - k)];
                };
                // The four cells around each of the three edges that leave this point.
                if (bInside != (lattice.Value(x + 1, y, z) < 0)) {
                    AddQuad(mesh, nMaterial, {at(0, 1, 1), at(0, 0, 1), at(0, 0, 0), at(0, 1, 0)}, !bInside);
                }
                if (bInside != (lattice.Value(x, y + 1, z) < 0)) {
                    AddQuad(mesh, nMaterial, {at(1, 0, 1), at(1, 0, 0), at(0, 0, 0), at(0, 0, 1)}, !bInside);
                }
                if (bInside != (lattice.Value(x, y, z + 1) < 0)) {
                    AddQuad(mesh, nMaterial, {at(1, 1, 0), at(0, 1, 0), at(0, 0, 0), at(1, 0, 0)}, !bInside);
                }
            }
        }
    }
}

void AddBox(CMesh& mesh, int nMaterial, CVec3 ptCentre, CVec3 ptHalf, float fTurn) {
    for (int nSide = 0; nSide < 6; ++nSide) {
        AddSheet(mesh, nMaterial, 1, 1, false, [&](float u, float v) {
            const float a = 2 * u - 1;
            const float b = 2 * v - 1;
            CVec3 p;
            switch (nSide) {
                case 0:
                    p = {a, b, 1};
                    break;
                case 1:
                    p = {-a, b, -1};
                    break;
                case 2:
                    p = {1, b, -a};
                    break;
                case 3:
                    p = {-1, b, a};
                    break;
                case 4:
                    p = {a, 1, -b};
                    break;
                default:
                    p = {a, -1, b};
                    break;
            }
            return ptCentre + TurnY(p * ptHalf, fTurn);
        });
    }
}

float EllipsoidDistance(CVec3 p, CVec3 radii) {
    const CVec3 q{p.x / radii.x, p.y / radii.y, p.z / radii.z};
    const CVec3 s{q.x / radii.x, q.y / radii.y, q.z / radii.z};
    const float fOuter = Length(q);
    return fOuter * (fOuter - 1) / std::max(Length(s), 1e-6F);
}

float CapsuleDistance(CVec3 p, CVec3 a, CVec3 b, float fRadius) {
    const CVec3 along = b - a;
    const float t = Clamp01(Dot(p - a, along) / Dot(along, along));
    return Length(p - a - along * t) - fRadius;
}
