#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "engines/warp/TextEffects.h"
#include "engines/warp/TextWarp.h"
#include "image/CpuChoice.h"
#include "image/Image.h"
#include "support/PassTime.h"

namespace {

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
// 22 letters in the size that the mode draws them in.
constexpr int kMaskWidth = 1584;
constexpr int kMaskHeight = 72;

CPixels MakePicture(int nWidth, int nHeight) {
    CPixels pixels = CPixels::MakeFilled(nWidth, nHeight, {});
    std::minstd_rand random(1);
    for (std::uint8_t& n : pixels.MutableBytes()) n = static_cast<std::uint8_t>(random() >> 8);
    return pixels;
}

// Rings with soft edges, as wide as letters.
std::vector<std::uint8_t> MakeMask() {
    std::vector<std::uint8_t> mask;
    for (int y = 0; y < kMaskHeight; ++y)
        for (int x = 0; x < kMaskWidth; ++x) {
            const double fFromRing = std::hypot(x % 72 - 35.5, y - 35.5) - 22;
            mask.push_back(static_cast<std::uint8_t>(255 * std::clamp(std::abs(fFromRing) - 4, 0.0, 1.0)));
        }
    return mask;
}

// The least time of a call among those of a state.
template <class TCall>
double LeastTime(benchmark::State& state, const TCall& call) {
    double fLeast = 1e9;
    for (auto _ : state) {
        const double fStart = ProcessorTime();
        if (!call()) state.SkipWithError("no memory for the picture");
        benchmark::ClobberMemory();
        fLeast = std::min(fLeast, ProcessorTime() - fStart);
    }
    return fLeast;
}

double PlainPassTime() {
    static const double fBest = [] {
        CPixels pixels = MakePicture(kWidth, kHeight);
        return PlainPassTime(pixels);
    }();
    return fBest;
}

TextArtParam ParamFor(int nKind, int x, int y, int nWidth, int nHeight) {
    TextArtParam param;
    param.nWarpKind = nKind;
    param.nBoxX = param.nMeshX = x;
    param.nBoxY = param.nMeshY = y;
    param.nBoxWidth = param.nMeshWidth = nWidth;
    param.nBoxHeight = param.nMeshHeight = nHeight;
    const auto w = static_cast<float>(nWidth);
    const auto h = static_cast<float>(nHeight);
    param.fQuad = {0, 0.1F * h, 0.9F * w, 0, w, 0.8F * h, 0.1F * w, h};
    param.fMeshSrcX = param.fMeshDstX = RegularMeshX(w);
    param.fMeshSrcY = param.fMeshDstY = RegularMeshY(h);
    for (const unsigned i : {5U, 6U, 9U, 10U}) {
        param.fMeshDstX[i] += i % 2 == 0 ? 0.1F * w : -0.05F * w;
        param.fMeshDstY[i] += i < 8 ? 0.12F * h : -0.06F * h;
    }
    return param;
}

std::optional<CTextWarp> MakeWarp(CPixels base) {
    CTextWarp warp;
    warp.SetBase(std::move(base));
    if (!warp.SetMask(MakeMask(), kMaskWidth, kMaskHeight)) return std::nullopt;
    return warp;
}

// A box as large as the picture.
void Warp(benchmark::State& state, int nKind, bool bPlain, double fAtMost) {
    const double fPass = PlainPassTime();
    std::optional<CPlainLoops> plain;
    if (bPlain) plain.emplace();
    std::optional<CTextWarp> warp = MakeWarp(MakePicture(kWidth, kHeight));
    if (!warp) return state.SkipWithError("no memory for the mask");
    const TextArtParam param = ParamFor(nKind, 0, 0, kWidth, kHeight);
    state.counters["passes"] = LeastTime(state, [&] { return warp->Render(param); }) / fPass;
    state.counters["at_most"] = fAtMost;
}
BENCHMARK_CAPTURE(Warp, ProjectionWide, kWarpProjection, false, 40)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Warp, ProjectionPlain, kWarpProjection, true, 100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Warp, MeshWide, kWarpMesh, false, 120)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Warp, MeshPlain, kWarpMesh, true, 200)->Unit(benchmark::kMillisecond);

using TextEffect = void (*)(CConstGreyView, CGreyView);

void Effect(benchmark::State& state, TextEffect effect, bool bPlain) {
    std::optional<CPlainLoops> plain;
    if (bPlain) plain.emplace();
    const std::vector<std::uint8_t> mask = MakeMask();
    std::vector<std::uint8_t> out(mask.size());
    const double fTime = LeastTime(state, [&] {
        effect({mask.data(), kMaskWidth, kMaskHeight}, {out.data(), kMaskWidth, kMaskHeight});
        return true;
    });
    state.counters["ms"] = 1000 * fTime;
    state.counters["at_most"] = 3;
}
BENCHMARK_CAPTURE(Effect, ShadedWide, ShadeText, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Effect, ShadedPlain, ShadeText, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Effect, Outlined, OutlineText, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Effect, Reversed, ReverseText, false)->Unit(benchmark::kMillisecond);

// What follows a drag: a box of a quarter of the picture's width and an eighth of its height, the result into
// the picture of the edit, and that one scaled to the canvas. An undo entry holds the picture before.
void ButtonUp(benchmark::State& state, int nKind, bool bPlain) {
    std::optional<CPlainLoops> plain;
    if (bPlain) plain.emplace();
    CxImage work(MakePicture(kWidth, kHeight));
    std::optional<CTextWarp> warp = MakeWarp(work.Pixels());
    if (!warp) return state.SkipWithError("no memory for the mask");
    CxImage undo = work;
    CxImage display;
    int x = 0;
    const double fTime = LeastTime(state, [&] {
        x = (x + 37) % (kWidth / 2);
        const TextArtParam param = ParamFor(nKind, x, kHeight / 2, kWidth / 4, kHeight / 8);
        undo = work;
        if (!warp->Render(param) || !work.ReplacePixels(warp->Result())) return false;
        display = work;
        return display.Resample(kWidth * 543 / kHeight * 9 / 10, 543 * 9 / 10);
    });
    state.counters["ms"] = 1000 * fTime;
    state.counters["at_most"] = 20;
}
BENCHMARK_CAPTURE(ButtonUp, ProjectionWide, kWarpProjection, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ButtonUp, ProjectionPlain, kWarpProjection, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ButtonUp, MeshWide, kWarpMesh, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ButtonUp, MeshPlain, kWarpMesh, true)->Unit(benchmark::kMillisecond);

// What the passes are counted in.
void PlainPass(benchmark::State& state) {
    for (auto _ : state) state.SetIterationTime(PlainPassTime());
    state.counters["passes"] = 1;
}
BENCHMARK(PlainPass)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);

}  // namespace
