// What a hand does on a large picture: the cost of a move follows what it touches, not the picture, so the
// second size, sixteen times larger, has to show the same times. FloodFill is to be held against PlainPass, x
// = 255 - x over the same bytes.

#include <benchmark/benchmark.h>

#include <random>

#include "surface/Surface.h"

namespace {

constexpr CColor kInk{20, 40, 160};
constexpr CColor kPaper{250, 240, 230};
constexpr CSize kTwelveMegapixels{4000, 3000};

CSurface Paper(CSize size) {
    CSurface surface(size.cx, size.cy);
    surface.FillRect(surface.Bounds(), kPaper);
    surface.SelectBrush(CBrush::Solid(kInk));
    surface.TakeDirty();
    return surface;
}

CSize SizeOf(const benchmark::State& state) {
    return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

void Sizes(benchmark::internal::Benchmark* pBenchmark) {
    pBenchmark->Args({3200, 2400})->Args({12800, 9600})->Unit(benchmark::kMicrosecond);
}

void PlainPass(benchmark::State& state) {
    CPixels pixels = Paper(kTwelveMegapixels).Pixels();
    const std::span<std::uint8_t> bytes = pixels.MutableBytes();
    for (auto _ : state) {
        for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(255 - byte);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(PlainPass)->Unit(benchmark::kMillisecond);

// What stands in the way of a fill: nothing; a net of thin lines with gaps; dots on a tenth and on four
// tenths of the pixels, the second about as many as a fill can still get through; a maze of ways one pixel
// wide; ways one pixel wide that go all the way down and up, or to and fro, as one; squares of one pixel.
enum class EGround { kPlain, kNet, kDots, kManyDots, kMaze, kDownAndUp, kToAndFro, kChecker };

// From each pixel of a grid one wall goes to the right or down.
CSurface Maze() {
    CSurface ground = Paper(kTwelveMegapixels);
    std::minstd_rand random(1);
    for (int y = 1; y < ground.Height(); y += 2)
        for (int x = 1; x < ground.Width(); x += 2) {
            ground.SetPixel(x, y, {});
            const bool bRight = random() % 2 == 0;
            ground.SetPixel(x + (bRight ? 1 : 0), y + (bRight ? 0 : 1), {});
        }
    return ground;
}

CSurface MakeGround(EGround kind) {
    if (kind == EGround::kMaze) return Maze();
    CSurface ground = Paper(kTwelveMegapixels);
    const int nWidth = ground.Width();
    const int nHeight = ground.Height();
    std::minstd_rand random(1);
    const auto Place = [&] {
        const auto x = static_cast<int>(random() % 4000);
        return CPoint{x, static_cast<int>(random() % 3000)};
    };
    ground.SelectPen(CPen::Dotted(PenStyle::kDash, {}));
    ground.SetTransparentGaps(true);
    for (int i = 0; kind == EGround::kNet && i < 1000; ++i) {
        ground.MoveTo(Place());
        ground.LineTo(Place());
    }
    const unsigned nDots = kind == EGround::kDots ? 10 : 40;
    const bool bDots = kind == EGround::kDots || kind == EGround::kManyDots;
    for (int y = 0; y < nHeight; ++y)
        for (int x = 0; x < nWidth; ++x)
            if (kind == EGround::kChecker ? (x + y) % 2 != 0 : bDots && random() / 16 % 100 < nDots)
                ground.SetPixel(x, y, {});
    for (int x = 1; kind == EGround::kDownAndUp && x < nWidth; x += 2)
        ground.FillRect({x, x / 2 % 2, x + 1, nHeight - 1 + x / 2 % 2}, {});
    for (int y = 1; kind == EGround::kToAndFro && y < nHeight; y += 2)
        ground.FillRect({y / 2 % 2, y, nWidth - 1 + y / 2 % 2, y + 1}, {});
    return ground;
}

void FloodFill(benchmark::State& state, EGround kind) {
    CSurface ground = MakeGround(kind);
    ground.SetPixel(4, 4, kPaper);
    for (auto _ : state) {
        state.PauseTiming();
        CPixels pixels = ground.Pixels();
        if (!pixels.Separate()) return state.SkipWithError("no memory");
        CSurface surface(std::move(pixels));
        surface.SelectBrush(CBrush::Solid(kInk));
        state.ResumeTiming();
        benchmark::DoNotOptimize(surface.FloodFill({4, 4}, surface.GetPixel(4, 4)));
    }
}
BENCHMARK_CAPTURE(FloodFill, plain, EGround::kPlain)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, net, EGround::kNet)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, dots, EGround::kDots)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, many_dots, EGround::kManyDots)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, maze, EGround::kMaze)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, down_and_up, EGround::kDownAndUp)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, to_and_fro, EGround::kToAndFro)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FloodFill, checker, EGround::kChecker)->Unit(benchmark::kMillisecond);

// A box of 100 by 100 on a small and on a large picture.
void FloodFillSmall(benchmark::State& state) {
    CSurface surface = Paper(SizeOf(state));
    surface.FrameRect({500, 500, 602, 602}, {});
    CColor color = kInk;
    for (auto _ : state) {
        surface.SelectBrush(CBrush::Solid(color));
        color = surface.GetPixel(550, 550);
        benchmark::DoNotOptimize(surface.FloodFill({550, 550}, color));
    }
}
BENCHMARK(FloodFillSmall)->Apply(Sizes);

// One pass of a pen over 20 pixels and its copy to a second surface.
void PenMove(benchmark::State& state, int nWidth) {
    CSurface surface = Paper(SizeOf(state));
    CSurface shown = Paper(SizeOf(state));
    surface.SelectPen(CPen::Solid(nWidth, kInk));
    surface.MoveTo({1000, 1000});
    bool bBack = false;
    for (auto _ : state) {
        surface.LineTo(bBack ? CPoint{1000, 1000} : CPoint{1020, 1007});
        bBack = !bBack;
        const CRect rc = surface.TakeDirty();
        shown.DrawPart(surface.Pixels(), rc, rc.left, rc.top);
    }
}
BENCHMARK_CAPTURE(PenMove, width_1, 1)->Apply(Sizes);
BENCHMARK_CAPTURE(PenMove, width_7, 7)->Apply(Sizes);

enum class EBand { kRectangle, kEllipse, kRoundRect, kDottedRectangle };

// One pass of a rubber band: what the last pass drew is taken back, the figure drawn, and both boxes shown.
void RubberBand(benchmark::State& state, EBand band, int nWidth) {
    const CSurface committed = Paper(SizeOf(state));
    CSurface scratch = Paper(SizeOf(state));
    CSurface shown = Paper(SizeOf(state));
    scratch.SelectPen(band == EBand::kDottedRectangle ? CPen::Dotted(PenStyle::kDot, {})
                                                      : CPen::Solid(nWidth, kInk));
    if (nWidth == 1) scratch.SelectBrush(CBrush::Hollow());
    CRect rcLast;
    int nMove = 0;
    for (auto _ : state) {
        nMove = (nMove + 1) % 20;
        const CRect rcFigure{700, 600, 1000 + nMove, 900 + nMove};
        scratch.DrawPart(committed.Pixels(), rcLast, rcLast.left, rcLast.top);
        const CRect rcBack = scratch.TakeDirty();
        if (band == EBand::kEllipse)
            scratch.Ellipse(rcFigure);
        else if (band == EBand::kRoundRect)
            scratch.RoundRect(rcFigure, {20, 20});
        else
            scratch.Rectangle(rcFigure);
        rcLast = scratch.TakeDirty();
        const CRect rcShow = rcLast.Union(rcBack);
        shown.DrawPart(scratch.Pixels(), rcShow, rcShow.left, rcShow.top);
    }
}
BENCHMARK_CAPTURE(RubberBand, rectangle_1, EBand::kRectangle, 1)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, rectangle_5_filled, EBand::kRectangle, 5)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, ellipse_1, EBand::kEllipse, 1)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, ellipse_5_filled, EBand::kEllipse, 5)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, round_5_filled, EBand::kRoundRect, 5)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, dotted, EBand::kDottedRectangle, 1)->Apply(Sizes);

// A canvas full of a part of the picture.
void ZoomedCopy(benchmark::State& state) {
    const CSurface picture = Paper({3200, 2400});
    CSurface canvas = Paper({659, 543});
    const int nFactor = static_cast<int>(state.range(0));
    for (auto _ : state)
        canvas.DrawEnlarged(picture.Pixels(), {317, 211, 3200, 2400}, 0, 0, nFactor, canvas.Bounds());
    state.counters["MP/s"] =
        benchmark::Counter(659.0 * 543.0 / 1e6, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(ZoomedCopy)->ArgName("factor")->Arg(1)->Arg(2)->Arg(4)->Arg(6)->Unit(benchmark::kMicrosecond);

// An outline as long as a free selection keeps it: drawn as a dotted line, and made into a region.
void FreeSelection(benchmark::State& state) {
    CSurface surface = Paper({3200, 2400});
    surface.SelectPen(CPen::Dotted(PenStyle::kDot, {}));
    std::minstd_rand random(1);
    std::vector<CPoint> points(8000, {1600, 1200});
    for (std::size_t i = 1; i < points.size(); ++i)
        points[i] = {points[i - 1].x + static_cast<int>(random() % 21) - 10,
                     points[i - 1].y + static_cast<int>(random() % 21) - 10};
    for (auto _ : state) {
        surface.Polyline(points);
        if (state.range(0) == 1) benchmark::DoNotOptimize(CRegion::MakePolygon(points));
    }
}
BENCHMARK(FreeSelection)->ArgName("region")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
