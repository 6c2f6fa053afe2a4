#include "engines/effects/EffectBench.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <string>

#include "engines/effects/ImageEffect.h"
#include "image/CpuChoice.h"
#include "support/PassTime.h"

namespace {

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;

// Something of a photograph: slopes, edges and a little noise.
CPixels MakePicture() {
    CPixels pixels = CPixels::MakeFilled(kWidth, kHeight, {});
    const CPixelView view = pixels.MutableView();
    std::minstd_rand random(1);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const double fWave =
                std::sin(x * 0.011) * std::cos(y * 0.007) + 0.3 * std::sin((x + 2 * y) * 0.05);
            const int nEdge = (x / 97 + y / 61) % 5 == 0 ? 40 : 0;
            const int n = 110 + static_cast<int>(60 * fWave) + nEdge + static_cast<int>(random() % 17) - 8;
            view.Set(
                x, y,
                {LimitToByte(n), LimitToByte(n - x * 40 / kWidth), LimitToByte(n / 2 + y * 90 / kHeight)});
        }
    }
    return pixels;
}

const CxImage& Picture() {
    static const CxImage image(MakePicture());
    return image;
}

double PlainPassTime() {
    static const double fBest = [] {
        CPixels pixels = MakePicture();
        return PlainPassTime(pixels);
    }();
    return fBest;
}

void Run(benchmark::State& state, const CEffectBenchRow& row, bool bPlain) {
    const double fPass = PlainPassTime();
    std::optional<CPlainLoops> plain;
    if (bPlain) plain.emplace();
    CRandomSequence random;
    CxImage image = Picture();
    // Writing separates.
    if (row.bAlone && image.MutableBytes().empty()) return state.SkipWithError("no memory for the picture");
    double fLeast = 1e9;
    for (auto _ : state) {
        const double fStart = ProcessorTime();
        if (!row.bAlone) image = Picture();
        if (!ApplyEffect(image, row.effect, row.nLevel, kWidth, random))
            state.SkipWithError("no memory for the picture");
        benchmark::ClobberMemory();
        fLeast = std::min(fLeast, ProcessorTime() - fStart);
    }
    state.counters["passes"] = fLeast / fPass;
    state.counters["at_most"] = bPlain ? 3 * row.fAtMost : row.fAtMost;
}

// What the passes are counted in.
void PlainPass(benchmark::State& state) {
    for (auto _ : state) state.SetIterationTime(PlainPassTime());
    state.counters["passes"] = 1;
}
BENCHMARK(PlainPass)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

}  // namespace

bool RegisterEffects(std::span<const CEffectBenchRow> rows) {
    for (const bool bPlain : {false, true}) {
        for (const CEffectBenchRow& row : rows) {
            const std::string strName = std::string(bPlain ? "Plain/" : "Wide/") + row.szName;
            benchmark::RegisterBenchmark(strName.c_str(), Run, row, bPlain)->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}
