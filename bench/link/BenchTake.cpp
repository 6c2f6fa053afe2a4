// A take of a thousand files from the phone in a folder, beside cp of the same files to the same disk. The
// times by the clock are those of a disk that is not busy with other things; the bound is on both.

#include <benchmark/benchmark.h>

#include <limits>
#include <random>

#include "PhoneProgram.h"
#include "support/Spent.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFiles = 1000;
constexpr std::size_t kBytes = 200'000;
constexpr int kRounds = 7;
constexpr double kMostRatio = 1.5;

void FillPhone(const CPhoneFolder& folder) {
    std::minstd_rand random(1);
    std::string strBytes(kBytes, ' ');
    for (int i = 0; i < kFiles; ++i) {
        for (char& c : strBytes) c = static_cast<char>(random());
        std::ofstream(folder.Inner() / std::to_string(i), std::ios::binary) << strBytes;
    }
}

void Empty(const fs::path& folder) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) fs::remove(entry);
}

std::ptrdiff_t CountFiles(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), {});
}

void TakeOfAThousand(benchmark::State& state) {
    const CPhoneFolder folder;
    FillPhone(folder);
    CPhoneProgram program(folder);
    const fs::path copies = folder.Path() / "copies";
    fs::create_directory(copies);
    const std::string strCopy = "cp '" + folder.Inner().string() + "'/* '" + copies.string() + "'";
    constexpr double kLong = std::numeric_limits<double>::max();
    CSpent take{kLong, kLong};
    CSpent copy = take;
    for (auto _ : state) {
        // In turns, so that what else the machine does meets both.
        Empty(copies);
        copy = Least(copy, MeasureOnce([&] {
                         if (std::system(strCopy.c_str()) != 0) std::abort();
                     }));
        Empty(folder.List());
        CAnswer answer;
        answer.question = EQuestion::PhoneFiles;
        answer.arrSteps = {"all", "ok"};
        program.Platform().Answer(answer);
        take = Least(take, MeasureOnce([&] { program.Command(kCmdTake); }));
        if (CountFiles(copies) != kFiles || CountFiles(folder.List()) != kFiles)
            state.SkipWithError("files are missing");
    }
    state.counters["take ms"] = take.fClock * 1e3;
    state.counters["cp ms"] = copy.fClock * 1e3;
    HoldBelow(state, "times cp by the processor", take.fProcessor / copy.fProcessor, kMostRatio);
    HoldBelow(state, "times cp", take.fClock / copy.fClock, kMostRatio);
}
BENCHMARK(TakeOfAThousand)->Iterations(kRounds)->Unit(benchmark::kMillisecond);

}  // namespace
