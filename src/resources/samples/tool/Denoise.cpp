#include "Denoise.h"

namespace {

CVec3 Divisor(CVec3 body) {
    return body + CVec3{0.02F, 0.02F, 0.02F};
}

struct CStep {
    const CFilm& light;
    const CFilm& variance;
    const CClues& clues;
    int nStride;
    bool bByShape;
};

void FilterPixel(const CStep& step, int x, int y, CVec3& light, float& fVariance) {
    static constexpr float kTaps[3] = {0.375F, 0.25F, 0.0625F};
    const CVec3 here = step.light.At(x, y);
    const CVec3 normal = step.clues.normal.At(x, y);
    const CVec3 place = step.clues.place.At(x, y);
    const CVec3 body = step.clues.body.At(x, y);
    // The variance itself is noisy: its mean over the neighbours steers.
    float fSpread = 0;
    for (int j = -1; j <= 1; ++j) {
        for (int i = -1; i <= 1; ++i) {
            fSpread += step.variance
                           .At(std::clamp(x + i, 0, step.light.nWidth - 1),
                               std::clamp(y + j, 0, step.light.nHeight - 1))
                           .x /
                       9;
        }
    }
    const float fBrightness = 1 / (2.0F * std::sqrt(std::max(fSpread, 0.0F)) + 1e-4F);
    // A pixel's own footprint, so that a slope seen edge-on does not count as a step.
    const CVec3 side = step.clues.place.At(std::min(x + 1, step.light.nWidth - 1), y) - place;
    const float fFootprint = std::max(Length(side), 1e-5F) * static_cast<float>(step.nStride) * 3;
    CVec3 sum;
    float fSum = 0;
    float fSumVariance = 0;
    for (int j = -2; j <= 2; ++j) {
        const int yy = y + j * step.nStride;
        if (yy < 0 || yy >= step.light.nHeight) continue;
        for (int i = -2; i <= 2; ++i) {
            const int xx = x + i * step.nStride;
            if (xx < 0 || xx >= step.light.nWidth) continue;
            const CVec3 there = step.light.At(xx, yy);
            const CVec3 dn = step.clues.normal.At(xx, yy) - normal;
            const CVec3 db = step.clues.body.At(xx, yy) - body;
            const float fPlane = std::fabs(Dot(step.clues.place.At(xx, yy) - place, normal)) / fFootprint;
            const float fShape = step.bByShape ? fPlane + 24 * Dot(dn, dn) : 0;
            const float fDifference =
                std::fabs(Luminance(there) - Luminance(here)) * fBrightness + fShape + 30 * Dot(db, db);
            const float w = kTaps[std::abs(i)] * kTaps[std::abs(j)] * std::exp(-fDifference);
            sum += there * w;
            fSum += w;
            fSumVariance += step.variance.At(xx, yy).x * w * w;
        }
    }
    light = sum / fSum;
    fVariance = fSumVariance / (fSum * fSum);
}

// A lone pixel far brighter than all its neighbours is one lucky path, not light.
void Despeckle(CFilm& light, CFilm& variance) {
    const CFilm before = light;
    for (int y = 0; y < light.nHeight; ++y) {
        for (int x = 0; x < light.nWidth; ++x) {
            float fBest = 0;
            float fSecond = 0;
            for (int n = 0; n < 9; ++n) {
                if (n == 4) continue;
                const float f = Luminance(before.At(std::clamp(x + n % 3 - 1, 0, light.nWidth - 1),
                                                    std::clamp(y + n / 3 - 1, 0, light.nHeight - 1)));
                fSecond = std::max(fSecond, std::min(f, fBest));
                fBest = std::max(fBest, f);
            }
            const float fHere = Luminance(before.At(x, y));
            if (fHere <= fSecond * 1.05F) continue;
            const float fScale = fSecond / fHere;
            light.At(x, y) = before.At(x, y) * fScale;
            variance.At(x, y).x *= fScale * fScale;
        }
    }
}

}  // namespace

CFilm Denoise(const CFilm& film, const CClues& clues, bool bByShape) {
    CFilm light = film;
    CFilm variance = clues.variance;
    for (std::size_t i = 0; i < film.pixels.size(); ++i) {
        const CVec3 divisor = Divisor(clues.body.pixels[i]);
        light.pixels[i] = {film.pixels[i].x / divisor.x, film.pixels[i].y / divisor.y,
                           film.pixels[i].z / divisor.z};
        const float f = Luminance(divisor);
        variance.pixels[i] = variance.pixels[i] / (f * f);
    }
    for (int i = 0; i < 2; ++i) Despeckle(light, variance);
    CFilm nextLight = light;
    CFilm nextVariance = variance;
    for (int nStride = 1; nStride <= 16; nStride *= 2) {
        const CStep step{light, variance, clues, nStride, bByShape};
        for (int y = 0; y < film.nHeight; ++y) {
            for (int x = 0; x < film.nWidth; ++x) {
                FilterPixel(step, x, y, nextLight.At(x, y), nextVariance.At(x, y).x);
            }
        }
        std::swap(light.pixels, nextLight.pixels);
        std::swap(variance.pixels, nextVariance.pixels);
    }
    for (std::size_t i = 0; i < film.pixels.size(); ++i) light.pixels[i] *= Divisor(clues.body.pixels[i]);
    return light;
}
