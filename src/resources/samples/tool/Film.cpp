#include "Film.h"

#include "Noise.h"

namespace {

// One row or column of a running box average; the edge pixel stands for all beyond it.
void BoxLine(std::vector<CVec3>& line, std::vector<CVec3>& out, int nRadius) {
    const int nCount = static_cast<int>(line.size());
    const auto at = [&](int i) { return line[static_cast<std::size_t>(std::clamp(i, 0, nCount - 1))]; };
    CVec3 sum;
    for (int i = -nRadius; i <= nRadius; ++i) sum += at(i);
    const float fPart = 1.0F / static_cast<float>(2 * nRadius + 1);
    for (int i = 0; i < nCount; ++i) {
        out[static_cast<std::size_t>(i)] = sum * fPart;
        sum += at(i + nRadius + 1) - at(i - nRadius);
    }
    line.swap(out);
}

// What film and paper make of light: a long toe and shoulder, fitted by a quotient of parabolas.
float ToneCurve(float f) {
    return Clamp01(f * (2.51F * f + 0.03F) / (f * (2.43F * f + 0.59F) + 0.14F));
}

float ToSrgb(float f) {
    return f <= 0.0031308F ? 12.92F * f : 1.055F * std::pow(f, 1 / 2.4F) - 0.055F;
}

CVec3 Grade(CVec3 cr, const CLook& look) {
    const float fGrey = Luminance(cr);
    cr = Max(Mix({fGrey, fGrey, fGrey}, cr, look.fSaturation), {0, 0, 0});
    cr = cr * Mix(look.crShadows, look.crLights, Smooth(0, 0.5F, fGrey));
    const auto contrast = [&](float f) { return 0.18F * std::pow(f / 0.18F, look.fContrast); };
    const auto channel = [&](float f) { return ToSrgb(ToneCurve(contrast(f))); };
    return {channel(cr.x), channel(cr.y), channel(cr.z)};
}

void Scatter(CFilm& film, const CLook& look) {
    if (look.fGlow <= 0) return;
    const int nRadius = std::max(1, static_cast<int>(look.fGlowRadius * static_cast<float>(film.nHeight)));
    const CFilm nearGlow = Blur(film, nRadius);
    const CFilm farGlow = Blur(film, nRadius * 4);
    for (std::size_t i = 0; i < film.pixels.size(); ++i) {
        film.pixels[i] = film.pixels[i] * (1 - look.fGlow) +
                         (nearGlow.pixels[i] * 0.6F + farGlow.pixels[i] * 0.4F) * look.fGlow;
    }
}

void DarkenCorners(CFilm& film, float fAmount) {
    const float cx = static_cast<float>(film.nWidth) / 2;
    const float cy = static_cast<float>(film.nHeight) / 2;
    const float fCorner = cx * cx + cy * cy;
    for (int y = 0; y < film.nHeight; ++y) {
        for (int x = 0; x < film.nWidth; ++x) {
            const float dx = static_cast<float>(x) + 0.5F - cx;
            const float dy = static_cast<float>(y) + 0.5F - cy;
            const float r = (dx * dx + dy * dy) / fCorner;
            film.At(x, y) = film.At(x, y) * (1 - fAmount * r * (0.4F + 0.6F * r));
        }
    }
}

void Sharpen(CFilm& film, float fAmount) {
    const CFilm soft = Blur(film, 1);
    for (std::size_t i = 0; i < film.pixels.size(); ++i) {
        const CVec3 edge = film.pixels[i] - soft.pixels[i];
        const float f = std::clamp(Luminance(edge), -0.1F, 0.1F) * fAmount;
        film.pixels[i] += CVec3{f, f, f};
    }
}

}  // namespace

CFilm Blur(const CFilm& film, int nRadius) {
    CFilm result = film;
    std::vector<CVec3> line;
    std::vector<CVec3> out;
    for (int nPass = 0; nPass < 3; ++nPass) {
        line.resize(static_cast<std::size_t>(film.nWidth));
        out.resize(line.size());
        for (int y = 0; y < film.nHeight; ++y) {
            for (int x = 0; x < film.nWidth; ++x) line[static_cast<std::size_t>(x)] = result.At(x, y);
            BoxLine(line, out, nRadius);
            for (int x = 0; x < film.nWidth; ++x) result.At(x, y) = line[static_cast<std::size_t>(x)];
        }
        line.resize(static_cast<std::size_t>(film.nHeight));
        out.resize(line.size());
        for (int x = 0; x < film.nWidth; ++x) {
            for (int y = 0; y < film.nHeight; ++y) line[static_cast<std::size_t>(y)] = result.At(x, y);
            BoxLine(line, out, nRadius);
            for (int y = 0; y < film.nHeight; ++y) result.At(x, y) = line[static_cast<std::size_t>(y)];
        }
    }
    return result;
}

CFilm Shrink(const CFilm& film, int nTimes) {
    CFilm result(film.nWidth / nTimes, film.nHeight / nTimes);
    const float fPart = 1.0F / static_cast<float>(nTimes * nTimes);
    for (int y = 0; y < result.nHeight * nTimes; ++y) {
        for (int x = 0; x < result.nWidth * nTimes; ++x) {
            result.At(x / nTimes, y / nTimes) += film.At(x, y) * fPart;
        }
    }
    return result;
}

std::vector<std::uint8_t> Develop(CFilm film, const CLook& look) {
    for (CVec3& cr : film.pixels) cr = cr * look.fExposure;
    Scatter(film, look);
    DarkenCorners(film, look.fVignette);
    for (CVec3& cr : film.pixels) cr = Grade(cr, look);
    Sharpen(film, look.fSharpen);
    std::vector<std::uint8_t> bytes;
    bytes.reserve(film.pixels.size() * 3);
    for (std::size_t i = 0; i < film.pixels.size(); ++i) {
        CRandom random(static_cast<std::uint32_t>(i), 77);
        const CVec3 cr = film.pixels[i];
        // Grain of one shade for all channels; strongest in the middle tones. The sum of four throws is near
        // enough to a bell.
        const float fBell = random.Unit() + random.Unit() + random.Unit() + random.Unit() - 2;
        const float fLevel = Luminance(cr);
        const float fGrain = look.fGrain * 1.73F * fBell * (0.4F + 2.4F * fLevel * (1 - fLevel));
        for (int n = 0; n < 3; ++n) {
            bytes.push_back(static_cast<std::uint8_t>(std::lround(Clamp01(cr[n] + fGrain) * 255)));
        }
    }
    return bytes;
}
