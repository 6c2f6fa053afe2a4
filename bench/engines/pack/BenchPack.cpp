#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <vector>

#include "engines/pack/PhoneJpeg.h"
#include "support/PassTime.h"

namespace {

constexpr double kMostSeconds = 0.002;
constexpr int kRounds = 50;

// A picture's file of 3 megabytes with a thumbnail of 20 kB, into the buffer of the picture before or, with
// 1, into a new one each time, as the first picture of a send.
void BenchPack(benchmark::State& state) {
    const std::vector<std::uint8_t> picture(3'000'000, 1), thumb(20'000, 2);
    const bool bNew = state.range(0) != 0;
    // A buffer that is given back goes to the system, so that a new one is new memory.
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
    std::vector<std::uint8_t> packed;
    double fLeast = 1e9;
    for (auto _ : state) {
        if (bNew) std::vector<std::uint8_t>().swap(packed);
        const double fStart = ProcessorTime();
        if (!PackPhoneJpeg(picture, thumb, packed)) state.SkipWithError("no memory");
        benchmark::DoNotOptimize(packed.data());
        fLeast = std::min(fLeast, ProcessorTime() - fStart);
    }
    state.counters["ms"] = fLeast * 1e3;
    if (fLeast > kMostSeconds) state.SkipWithError("a picture takes more than 2 ms");
}
BENCHMARK(BenchPack)->Arg(0)->Arg(1)->Iterations(kRounds)->Unit(benchmark::kMillisecond);

}  // namespace
