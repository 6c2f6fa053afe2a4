#include "Bvh.h"

namespace {

constexpr float kFar = 1e30F;
constexpr std::size_t kLeafSize = 4;
constexpr int kBins = 16;

float HalfArea(CVec3 low, CVec3 high) {
    const CVec3 d = Max(high - low, {0, 0, 0});
    return d.x * d.y + d.y * d.z + d.z * d.x;
}

// The distance at which the ray enters the box, kFar if it does not before fEnd.
float Enter(CVec3 low, CVec3 high, CVec3 origin, CVec3 inverse, float fEnd) {
    const CVec3 a = (low - origin) * inverse;
    const CVec3 b = (high - origin) * inverse;
    const CVec3 nearest = Min(a, b);
    const CVec3 farthest = Max(a, b);
    const float fIn = std::max({nearest.x, nearest.y, nearest.z, 0.0F});
    const float fOut = std::min({farthest.x, farthest.y, farthest.z, fEnd});
    return fIn <= fOut ? fIn : kFar;
}

}  // namespace

CBvh::CBvh(const CMesh& mesh) {
    std::vector<CPiece> pieces;
    pieces.reserve(mesh.triangles.size());
    for (std::uint32_t i = 0; i < mesh.triangles.size(); ++i) {
        const auto& n = mesh.triangles[i].corners;
        const CVec3 a = mesh.corners[n[0]].position;
        const CVec3 b = mesh.corners[n[1]].position;
        const CVec3 c = mesh.corners[n[2]].position;
        pieces.push_back({Min(a, Min(b, c)), Max(a, Max(b, c)), i});
    }
    m_nodes.reserve(pieces.size());
    if (!pieces.empty()) Build(pieces, 0, pieces.size());
    m_flats.reserve(pieces.size());
    for (const CPiece& piece : pieces) {
        const auto& n = mesh.triangles[piece.nTriangle].corners;
        const CVec3 a = mesh.corners[n[0]].position;
        m_flats.push_back(
            {a, mesh.corners[n[1]].position - a, mesh.corners[n[2]].position - a, piece.nTriangle});
    }
}

CBvh::CSplit CBvh::BestSplit(const std::vector<CPiece>& pieces, std::size_t nFrom, std::size_t nTo, CVec3 low,
                             CVec3 high) {
    struct CBin {
        CVec3 low{kFar, kFar, kFar};
        CVec3 high{-kFar, -kFar, -kFar};
        float fCount = 0;
        void Add(const CVec3& l, const CVec3& h, float f) {
            low = Min(low, l);
            high = Max(high, h);
            fCount += f;
        }
    };
    CSplit best{-1, 0, kFar};
    for (int nAxis = 0; nAxis < 3; ++nAxis) {
        const float fLength = high[nAxis] - low[nAxis];
        if (fLength < 1e-9F) continue;
        std::array<CBin, kBins> bins;
        for (std::size_t i = nFrom; i < nTo; ++i) {
            const float f = (pieces[i].Centre()[nAxis] - low[nAxis]) / fLength;
            const int nBin = std::min(static_cast<int>(f * kBins), kBins - 1);
            bins[static_cast<std::size_t>(nBin)].Add(pieces[i].low, pieces[i].high, 1);
        }
        std::array<float, kBins> costs{};
        CBin left;
        CBin right;
        for (std::size_t i = 0; i + 1 < kBins; ++i) {
            left.Add(bins[i].low, bins[i].high, bins[i].fCount);
            costs[i] += left.fCount * HalfArea(left.low, left.high);
            const std::size_t j = kBins - 1 - i;
            right.Add(bins[j].low, bins[j].high, bins[j].fCount);
            costs[j - 1] += right.fCount * HalfArea(right.low, right.high);
        }
        for (std::size_t i = 0; i + 1 < kBins; ++i) {
            if (costs[i] < best.fCost) {
                best = {nAxis, low[nAxis] + fLength * static_cast<float>(i + 1) / kBins, costs[i]};
            }
        }
    }
    return best;
}

void CBvh::Build(std::vector<CPiece>& pieces, std::size_t nFrom, std::size_t nTo) {
    CNode node{{kFar, kFar, kFar},
               {-kFar, -kFar, -kFar},
               static_cast<std::uint32_t>(nFrom),
               static_cast<std::uint32_t>(nTo - nFrom)};
    CVec3 low = node.low;
    CVec3 high = node.high;
    for (std::size_t i = nFrom; i < nTo; ++i) {
        node.low = Min(node.low, pieces[i].low);
        node.high = Max(node.high, pieces[i].high);
        low = Min(low, pieces[i].Centre());
        high = Max(high, pieces[i].Centre());
    }
    const std::size_t nSelf = m_nodes.size();
    m_nodes.push_back(node);
    if (nTo - nFrom <= kLeafSize) return;
    const CSplit split = BestSplit(pieces, nFrom, nTo, low, high);
    const auto from = pieces.begin() + static_cast<std::ptrdiff_t>(nFrom);
    const auto to = pieces.begin() + static_cast<std::ptrdiff_t>(nTo);
    auto middle = from;
    if (split.nAxis >= 0) {
        middle = std::partition(
            from, to, [&](const CPiece& piece) { return piece.Centre()[split.nAxis] < split.fPlace; });
    }
    if (middle == from || middle == to) middle = from + (to - from) / 2;
    const auto nMiddle = static_cast<std::size_t>(middle - pieces.begin());
    m_nodes[nSelf].nCount = 0;
    Build(pieces, nFrom, nMiddle);
    m_nodes[nSelf].nFirst = static_cast<std::uint32_t>(m_nodes.size());
    Build(pieces, nMiddle, nTo);
}

bool CBvh::Meet(const CFlat& flat, const CRay& ray, CMeet& meet) const {
    const CVec3 p = Cross(ray.dir, flat.ac);
    const float fDet = Dot(flat.ab, p);
    if (std::fabs(fDet) < 1e-14F) return false;
    const float fInverse = 1 / fDet;
    const CVec3 s = ray.origin - flat.a;
    const float u = Dot(s, p) * fInverse;
    if (u < 0 || u > 1) return false;
    const CVec3 q = Cross(s, flat.ab);
    const float v = Dot(ray.dir, q) * fInverse;
    if (v < 0 || u + v > 1) return false;
    const float t = Dot(flat.ac, q) * fInverse;
    if (t <= 0 || t >= meet.t) return false;
    meet = {t, u, v, flat.nTriangle};
    return true;
}

bool CBvh::Nearest(const CRay& ray, CMeet& meet) const {
    if (m_nodes.empty()) return false;
    const auto invert = [](float f) { return 1 / (std::fabs(f) < 1e-12F ? 1e-12F : f); };
    const CVec3 inverse{invert(ray.dir.x), invert(ray.dir.y), invert(ray.dir.z)};
    std::array<std::uint32_t, 96> waiting{};
    std::size_t nWaiting = 0;
    std::uint32_t nNode = 0;
    bool bMet = false;
    if (Enter(m_nodes[0].low, m_nodes[0].high, ray.origin, inverse, meet.t) >= kFar) return false;
    for (;;) {
        const CNode& node = m_nodes[nNode];
        if (node.nCount > 0) {
            for (std::uint32_t i = 0; i < node.nCount; ++i) bMet |= Meet(m_flats[node.nFirst + i], ray, meet);
        } else {
            std::uint32_t nNear = nNode + 1;
            std::uint32_t nFarther = node.nFirst;
            float fNear = Enter(m_nodes[nNear].low, m_nodes[nNear].high, ray.origin, inverse, meet.t);
            float fFarther =
                Enter(m_nodes[nFarther].low, m_nodes[nFarther].high, ray.origin, inverse, meet.t);
            if (fFarther < fNear) {
                std::swap(nNear, nFarther);
                std::swap(fNear, fFarther);
            }
            if (fFarther < kFar && nWaiting < waiting.size()) waiting[nWaiting++] = nFarther;
            if (fNear < kFar) {
                nNode = nNear;
                continue;
            }
        }
        if (nWaiting == 0) return bMet;
        nNode = waiting[--nWaiting];
    }
}
