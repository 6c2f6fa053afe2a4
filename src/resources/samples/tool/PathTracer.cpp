#include "Bvh.h"
#include "Denoise.h"
#include "Scene.h"

namespace {

constexpr float kFar = 1e30F;
constexpr int kMaxBounces = 12;
constexpr int kMaxBodyBounces = 4;
constexpr float kFireflyLimit = 8;

struct CHit {
    CSpot spot;
    CVec3 facet;  // normal of the flat triangle, towards the viewer
    float t = 0;
    bool bFront = false;
    std::uint32_t nMaterial = 0;
};

// What a path carries on its way.
struct CPath {
    CRay ray;
    CVec3 weight{1, 1, 1};
    CVec3 light;
    float fPdf = -1;         // of the last direction; below 0 after the camera, glass and mirrors
    bool bBodySeen = false;  // whether it has left a surface that lamps were asked for
    bool bCluesTaken = false;
    int nBodyBounces = 0;
};

float GlossDensity(float fAlpha, float fCos) {
    const float a2 = fAlpha * fAlpha;
    const float d = fCos * fCos * (a2 - 1) + 1;
    return a2 / (kPi * d * d);
}

float Masking(float fAlpha, float fCos) {
    const float k = fAlpha / 2;
    return fCos / (fCos * (1 - k) + k);
}

CVec3 Fresnel(CVec3 crMirror, float fCos) {
    const float f = 1 - Clamp01(fCos);
    const float f2 = f * f;
    return crMirror + (CVec3{1, 1, 1} - crMirror) * (f2 * f2 * f);
}

// Body and gloss of an opaque surface, seen from `out`.
class CLobes {
  public:
    CLobes(const CMaterial& surface, CVec3 out) : m_surface(surface), m_out(out), m_fAlpha(Alpha(surface)) {
        const float fMirror = Luminance(Fresnel(surface.crMirror, std::max(Dot(surface.normal, out), 0.0F)));
        const float fBody = Luminance(surface.crBody);
        m_fGlossChance = std::clamp(fMirror / (fMirror + fBody + 1e-6F), 0.1F, 0.9F);
    }

    // Light sent from `in` to the viewer, with the cosine, and the chance that Choose takes `in`.
    CVec3 Value(CVec3 in, float& fPdf) const {
        fPdf = 0;
        const float fIn = Dot(m_surface.normal, in);
        const float fOut = std::max(Dot(m_surface.normal, m_out), 1e-3F);
        if (fIn <= 0) return {};
        const CVec3 half = Normalize(in + m_out);
        const float fHalf = std::max(Dot(half, m_out), 1e-4F);
        const CVec3 fresnel = Fresnel(m_surface.crMirror, fHalf);
        const float fDensity = GlossDensity(m_fAlpha, std::max(Dot(m_surface.normal, half), 0.0F));
        const CVec3 gloss =
            fresnel * (fDensity * Masking(m_fAlpha, fIn) * Masking(m_fAlpha, fOut) / (4 * fOut));
        const CVec3 body = m_surface.crBody * (CVec3{1, 1, 1} - fresnel) * (fIn / kPi);
        const float fGlossPdf = fDensity * std::max(Dot(m_surface.normal, half), 0.0F) / (4 * fHalf);
        fPdf = m_fGlossChance * fGlossPdf + (1 - m_fGlossChance) * fIn / kPi;
        return gloss + body;
    }

    CVec3 Choose(CRandom& random) const {
        const CFrame frame(m_surface.normal);
        const float u = random.Unit();
        const float v = random.Unit();
        if (random.Unit() >= m_fGlossChance) return frame.ToWorld(ToCosineHemisphere(u, v));
        const float fCos = std::sqrt((1 - u) / (1 + (m_fAlpha * m_fAlpha - 1) * u));
        const float fSin = std::sqrt(std::max(0.0F, 1 - fCos * fCos));
        const CVec3 half = frame.ToWorld({fSin * std::cos(2 * kPi * v), fSin * std::sin(2 * kPi * v), fCos});
        return Reflect(-m_out, half);
    }

  private:
    static float Alpha(const CMaterial& surface) {
        return std::max(surface.fRoughness * surface.fRoughness, 0.003F);
    }

    const CMaterial& m_surface;
    CVec3 m_out;
    float m_fAlpha;
    float m_fGlossChance;
};

class CTracer {
  public:
    explicit CTracer(const CScene& stage) : m_stage(stage), m_bvh(stage.mesh) {}

    CVec3 Trace(const CRay& ray, CRandom& random, CClues& clues, std::size_t nPixel, float fPart) const {
        CPath path{.ray = ray, .light = {}};
        for (int nBounce = 0; nBounce < kMaxBounces; ++nBounce) {
            CHit hit;
            const bool bHit = Find(path.ray, hit);
            if (AddLampInTheWay(path, bHit ? hit.t : kFar)) break;
            if (!bHit) {
                path.light += path.weight * m_stage.sky(path.ray.dir, path.nBodyBounces == 0);
                if (!path.bCluesTaken) clues.place.pixels[nPixel] += path.ray.dir * (100 * fPart);
                break;
            }
            Breathe(path, hit.t);
            hit.spot.bClose = path.nBodyBounces == 0;
            const CMaterial surface = m_stage.shaders[hit.nMaterial](hit.spot);
            const bool bClear = m_stage.clear[hit.nMaterial];
            path.light += path.weight * surface.crEmitted;
            if (!path.bCluesTaken && (!bClear || nBounce > 3)) {
                path.bCluesTaken = true;
                clues.body.pixels[nPixel] += Min(surface.crBody + surface.crMirror, {1, 1, 1}) * fPart;
                clues.normal.pixels[nPixel] += surface.normal * fPart;
                clues.place.pixels[nPixel] += hit.spot.position * fPart;
            }
            const bool bGoesOn =
                bClear ? PassClear(path, hit, surface, random) : Scatter(path, hit, surface, random);
            if (!bGoesOn) break;
        }
        return path.light;
    }

  private:
    bool Find(const CRay& ray, CHit& hit, float fEnd = kFar) const {
        CMeet meet{fEnd, 0, 0, 0};
        if (!m_bvh.Nearest(ray, meet)) return false;
        const auto& triangle = m_stage.mesh.triangles[meet.nTriangle];
        const auto& a = m_stage.mesh.corners[triangle.corners[0]];
        const auto& b = m_stage.mesh.corners[triangle.corners[1]];
        const auto& c = m_stage.mesh.corners[triangle.corners[2]];
        const float w = 1 - meet.u - meet.v;
        CVec3 facet = Normalize(Cross(b.position - a.position, c.position - a.position));
        CVec3 normal = Normalize(a.normal * w + b.normal * meet.u + c.normal * meet.v);
        hit.bFront = Dot(facet, ray.dir) < 0;
        if (!hit.bFront) facet = -facet;
        if (Dot(normal, facet) < 0) normal = -normal;
        hit.spot = {ray.origin + ray.dir * meet.t, a.rest * w + b.rest * meet.u + c.rest * meet.v, normal,
                    true};
        hit.facet = facet;
        hit.t = meet.t;
        hit.nMaterial = triangle.nMaterial;
        return true;
    }

    void Breathe(CPath& path, float fLength) const {
        if (!m_stage.air) return;
        const CScene::CAir air = m_stage.air(path.ray.origin, path.ray.dir, fLength);
        path.light += path.weight * air.crAdded;
        path.weight *= air.through;
    }

    static CVec3 Off(const CHit& hit, float fSide) { return hit.spot.position + hit.facet * (fSide * 2e-4F); }

    static float MeetLamp(const CLamp& lamp, const CRay& ray) {
        const CVec3 front = Cross(lamp.edgeU, lamp.edgeV);
        const float fDown = Dot(front, ray.dir);
        if (fDown >= 0) return kFar;
        const float t = Dot(lamp.corner - ray.origin, front) / fDown;
        if (t <= 1e-4F) return kFar;
        const CVec3 p = ray.origin + ray.dir * t - lamp.corner;
        const float u = Dot(p, lamp.edgeU) / Dot(lamp.edgeU, lamp.edgeU);
        const float v = Dot(p, lamp.edgeV) / Dot(lamp.edgeV, lamp.edgeV);
        return u >= 0 && u <= 1 && v >= 0 && v <= 1 ? t : kFar;
    }

    float LampPdf(const CLamp& lamp, CVec3 dir, float t) const {
        const CVec3 front = Cross(lamp.edgeU, lamp.edgeV);
        const float fArea = Length(front);
        return t * t / (std::max(-Dot(front, dir), 1e-6F)) / static_cast<float>(m_stage.lamps.size()) *
               (fArea > 0 ? 1.0F : 0.0F);
    }

    // A path that runs into a lamp ends there.
    bool AddLampInTheWay(CPath& path, float fEnd) const {
        for (const CLamp& lamp : m_stage.lamps) {
            const float t = MeetLamp(lamp, path.ray);
            if (t >= fEnd) continue;
            if (path.fPdf < 0) {
                if (!lamp.bSeen && !path.bBodySeen) continue;
                // Beyond glass behind a body the lamp was asked for straight through the glass already.
                if (!path.bBodySeen) path.light += path.weight * lamp.crLight;
                return true;
            }
            const float fLamp = LampPdf(lamp, path.ray.dir, t);
            path.light += Min(path.weight * lamp.crLight * (path.fPdf / (path.fPdf + fLamp)),
                              {kFireflyLimit, kFireflyLimit, kFireflyLimit});
            return true;
        }
        return false;
    }

    // The part of the light that comes from the lamp's point to the hit; glass lets it pass, tinted.
    CVec3 Visible(CRay ray, float fEnd) const {
        CVec3 through{1, 1, 1};
        for (int i = 0; i < 8; ++i) {
            CHit hit;
            if (!Find(ray, hit, fEnd)) return through;
            if (!m_stage.clear[hit.nMaterial]) return {};
            const CMaterial surface = m_stage.shaders[hit.nMaterial](hit.spot);
            const float fCos = std::fabs(Dot(ray.dir, hit.spot.normal));
            through *= surface.crThrough * (CVec3{1, 1, 1} - Fresnel({0.04F, 0.04F, 0.04F}, fCos));
            ray.origin = Off(hit, -1);
            fEnd -= hit.t;
        }
        return {};
    }

    void AskLamp(CPath& path, const CHit& hit, const CLobes& lobes, CRandom& random) const {
        if (m_stage.lamps.empty()) return;
        const auto nLamps = static_cast<std::uint32_t>(m_stage.lamps.size());
        const CLamp& lamp = m_stage.lamps[random.Next() % nLamps];
        const CVec3 target = lamp.corner + lamp.edgeU * random.Unit() + lamp.edgeV * random.Unit();
        const CVec3 origin = Off(hit, 1);
        const CVec3 way = target - origin;
        const float t = Length(way);
        const CVec3 dir = way / t;
        if (Dot(Cross(lamp.edgeU, lamp.edgeV), dir) >= 0 || Dot(hit.facet, dir) <= 0) return;
        float fPdf = 0;
        const CVec3 value = lobes.Value(dir, fPdf);
        if (fPdf <= 0) return;
        const CVec3 through = Visible({origin, dir}, t - 1e-3F);
        const float fLamp = LampPdf(lamp, dir, t);
        path.light += Min(path.weight * value * lamp.crLight * through / (fPdf + fLamp),
                          {kFireflyLimit, kFireflyLimit, kFireflyLimit});
    }

    bool Scatter(CPath& path, const CHit& hit, const CMaterial& surface, CRandom& random) const {
        const CLobes lobes(surface, -path.ray.dir);
        AskLamp(path, hit, lobes, random);
        if (++path.nBodyBounces > kMaxBodyBounces) return false;
        const CVec3 dir = Normalize(lobes.Choose(random));
        float fPdf = 0;
        const CVec3 value = lobes.Value(dir, fPdf);
        if (fPdf <= 1e-6F || Dot(dir, hit.facet) <= 0) return false;
        path.weight *= value / fPdf;
        path.fPdf = fPdf;
        path.bBodySeen = true;
        path.ray = {Off(hit, 1), dir};
        if (path.nBodyBounces < 2) return true;
        const float fLives = std::min(0.95F, std::max({path.weight.x, path.weight.y, path.weight.z}));
        if (random.Unit() >= fLives) return false;
        path.weight = path.weight / fLives;
        return true;
    }

    static bool PassClear(CPath& path, const CHit& hit, const CMaterial& surface, CRandom& random) {
        const float fRatio = hit.bFront ? 1 / surface.fIndex : surface.fIndex;
        const float fCos = std::min(-Dot(path.ray.dir, surface.normal), 1.0F);
        const float fSin2 = fRatio * fRatio * (1 - fCos * fCos);
        float fMirror = 1;
        const float fCosThrough = std::sqrt(std::max(0.0F, 1 - fSin2));
        if (fSin2 < 1) {
            const float s = (fRatio * fCos - fCosThrough) / (fRatio * fCos + fCosThrough);
            const float p = (fCos - fRatio * fCosThrough) / (fCos + fRatio * fCosThrough);
            fMirror = (s * s + p * p) / 2;
        }
        path.fPdf = -1;
        if (random.Unit() < fMirror) {
            path.ray = {Off(hit, 1), Normalize(Reflect(path.ray.dir, surface.normal))};
            return true;
        }
        path.weight *= surface.crThrough;
        const CVec3 dir = path.ray.dir * fRatio + surface.normal * (fRatio * fCos - fCosThrough);
        path.ray = {Off(hit, -1), Normalize(dir)};
        return true;
    }

    const CScene& m_stage;
    CBvh m_bvh;
};

}  // namespace

CLamp LampAt(CVec3 ptCentre, CVec3 ptTarget, float fWidth, float fHeight, CVec3 crLight) {
    const CFrame frame(Normalize(ptTarget - ptCentre));
    const CVec3 across = frame.tangent * fWidth;
    const CVec3 up = frame.bitangent * fHeight;
    return {ptCentre - across * 0.5F - up * 0.5F, across, up, crLight};
}

CRay CCamera::Through(float x, float y, CVec2 lens) const {
    const CVec3 ahead = Normalize(target - eye);
    const CVec3 right = Normalize(Cross(ahead, {0, 1, 0}));
    const CVec3 up = Cross(right, ahead);
    const float fScale = std::tan(fFieldOfView * kPi / 360);
    const CVec3 sharp = eye + (ahead + right * (x * fScale) + up * (y * fScale)) * fFocus;
    const CVec3 from = eye + right * (lens.x * fAperture) + up * (lens.y * fAperture);
    return {from, Normalize(sharp - from)};
}

CFilm Photograph(const CScene& stage, int nWidth, int nHeight, int nPaths) {
    const CTracer tracer(stage);
    CFilm film(nWidth, nHeight);
    CClues clues(nWidth, nHeight);
    const float fPart = 1.0F / static_cast<float>(nPaths);
    for (int y = 0; y < nHeight; ++y) {
        for (int x = 0; x < nWidth; ++x) {
            const std::size_t nPixel = film.Index(x, y);
            const std::uint32_t nTurn = HashBits(static_cast<std::uint32_t>(nPixel));
            CVec3 sum;
            float fSquares = 0;
            for (int i = 0; i < nPaths; ++i) {
                CRandom random(static_cast<std::uint32_t>(nPixel), static_cast<std::uint32_t>(i));
                // Places in the pixel and on the lens spread evenly: additive steps by the plastic number's
                // roots.
                const auto spread = [&](double fRoot, std::uint32_t nShift) {
                    const double f = fRoot * (i + 1) + (nTurn >> nShift & 0xffU) / 256.0;
                    return static_cast<float>(f - std::floor(f));
                };
                const float fx = static_cast<float>(x) + spread(0.8566748838545029, 0);
                const float fy = static_cast<float>(y) + spread(0.7338918566271260, 8);
                const CVec2 lens = ToDisk(spread(0.6287067210378087, 16), spread(0.5385972572236101, 24));
                const float fHalf = static_cast<float>(nHeight) / 2;
                const CRay ray =
                    stage.camera.Through((fx - static_cast<float>(nWidth) / 2) / fHalf, 1 - fy / fHalf, lens);
                const CVec3 light = tracer.Trace(ray, random, clues, nPixel, fPart);
                sum += light;
                fSquares += Luminance(light) * Luminance(light);
            }
            film.pixels[nPixel] = sum * fPart;
            const float fMean = Luminance(sum) * fPart;
            clues.variance.pixels[nPixel].x = std::max(0.0F, fSquares * fPart - fMean * fMean) * fPart;
        }
    }
    return Denoise(film, clues, !stage.bFarIsSoft);
}

CVec3 Bend(const CSpot& spot, CVec3 p, float fStep, float fHeight,
           const std::function<float(CVec3)>& height) {
    if (!spot.bClose) return spot.normal;
    const CFrame frame(spot.normal);
    const float h = height(p);
    const float du = (height(p + frame.tangent * fStep) - h) / fStep * fHeight;
    const float dv = (height(p + frame.bitangent * fStep) - h) / fStep * fHeight;
    return Normalize(spot.normal - frame.tangent * du - frame.bitangent * dv);
}
