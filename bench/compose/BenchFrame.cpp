// A frame over a picture of twelve megapixels, in plain passes: how long x = 255 - x in place takes over as
// many bytes. Within 6 of them with wide vectors and 12 without.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <optional>
#include <random>
#include <vector>

#include "compose/FrameRecord.h"
#include "image/CpuChoice.h"

namespace {

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;

const CxImage& Picture() {
    static const CxImage image = [] {
        CxImage picture(kWidth, kHeight);
        std::minstd_rand random(1);
        for (std::uint8_t& byte : picture.MutableBytes()) byte = static_cast<std::uint8_t>(random());
        return picture;
    }();
    return image;
}

// A rim of colours around the key, with specks of either in the other.
const std::vector<std::uint8_t>& Record() {
    static const std::vector<std::uint8_t> arrRecord = [] {
        std::vector<std::uint8_t> arrBytes;
        std::minstd_rand random(2);
        for (int y = 0; y < kFrameRecord.cy; ++y)
            for (int x = 0; x < kFrameRecord.cx; ++x) {
                const bool bInside = x > 90 && x < 550 && y > 70 && y < 410;
                const bool bKey = bInside != (random() % 8 == 0);
                for (const unsigned long n :
                     {bKey ? 255UL : random() % 200, bKey ? 0UL : 80, bKey ? 0UL : 40})
                    arrBytes.push_back(static_cast<std::uint8_t>(n));
            }
        return arrBytes;
    }();
    return arrRecord;
}

void CountPixels(benchmark::State& state) {
    state.counters["Mpixel/s"] =
        benchmark::Counter(kWidth * kHeight / 1e6, benchmark::Counter::kIsIterationInvariantRate);
}

void Pass(benchmark::State& state) {
    CxImage image = Picture();
    const std::span<std::uint8_t> bytes = image.MutableBytes();
    for (auto _ : state) {
        for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(255 - byte);
        benchmark::ClobberMemory();
    }
    CountPixels(state);
}
BENCHMARK(Pass)->Unit(benchmark::kMillisecond);

// The picture without the frame is kept, as it is in the program.
void Lay(benchmark::State& state) {
    std::optional<CPlainLoops> plain;
    if (state.range(0) == 0) plain.emplace();
    for (auto _ : state) {
        CxImage image = Picture();
        if (!LayFrame(Record().data(), image)) std::abort();
        benchmark::DoNotOptimize(image.Pixels().Bytes().data());
    }
    CountPixels(state);
}
BENCHMARK(Lay)->ArgName("wide")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

}  // namespace
