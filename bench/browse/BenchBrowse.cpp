// The file list on a folder of 1,000 photographs of twelve megapixels and on one of 20,000 small ones. The
// folders are made below FOTARIUM_BENCH_DIR (the temporary folder without it) by the first run and stay
// there, so that compare.sh beside this file can hold the thumbnails against another program's.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "app/MainDlg.h"
#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "support/Photographs.h"

namespace {

namespace fs = std::filesystem;
using CClock = std::chrono::steady_clock;

// A folder of nFiles, of which nDifferent are different and the rest are further names of them.
std::string MakeFolder(const char* szName, CSize size, unsigned nFiles, unsigned nDifferent) {
    const fs::path folder = BenchFolder() / szName;
    if (fs::exists(folder)) return folder.string();
    const fs::path folderNew = folder.string() + ".new";
    fs::remove_all(folderNew);
    fs::create_directories(folderNew);
    const auto path = [&](unsigned n) { return folderNew / ("photo" + std::to_string(n) + ".jpg"); };
    for (unsigned n = 0; n < nFiles; ++n) {
        if (n >= nDifferent)
            fs::create_hard_link(path(n % nDifferent), path(n));
        else if (!MakePhotograph(size, n).Save(path(n).string(), ImageType::kJpeg))
            std::abort();
    }
    fs::rename(folderNew, folder);
    return folder.string();
}

const std::string& LargeFolder() {
    static const std::string strFolder = MakeFolder("fotarium-large", {4000, 3000}, 1000, 20);
    return strFolder;
}
const std::string& SmallFolder() {
    static const std::string strFolder = MakeFolder("fotarium-small", {160, 120}, 20000, 100);
    return strFolder;
}

// Bytes of the process in memory.
double Memory() {
    std::ifstream file("/proc/self/statm");
    std::size_t nAll = 0;
    std::size_t nResident = 0;
    file >> nAll >> nResident;
    return static_cast<double>(nResident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

// The main window with its list on that folder, nothing filled yet.
class CBenchList {
  public:
    explicit CBenchList(const std::string& strFolder)
        : m_dialog(m_platform.Get()), m_host(m_platform, m_dialog) {
        m_host.Init();
        List().SetPath(strFolder);
    }
    CPicFileList& List() { return m_dialog.Thum().List(); }
    // One slice of the fill, or what else comes up.
    void Tick() { m_platform.Tick(1); }

  private:
    CScriptedPlatform m_platform;
    CMainDlg m_dialog;
    CPlayHost m_host;
};

void ShowNames(benchmark::State& state, const std::string& strFolder) {
    CBenchList program(strFolder);
    for (auto _ : state) {
        program.List().FillThumbnails();
        state.PauseTiming();
        program.List().StopFill();
        state.ResumeTiming();
    }
    state.counters["names"] = program.List().Model().Count();
}

void NamesOfPhotographs(benchmark::State& state) {
    ShowNames(state, LargeFolder());
}
BENCHMARK(NamesOfPhotographs)->Unit(benchmark::kMillisecond);

void NamesOfTwentyThousand(benchmark::State& state) {
    ShowNames(state, SmallFolder());
}
BENCHMARK(NamesOfTwentyThousand)->Unit(benchmark::kMillisecond);

// The whole fill of the photographs, with the memory that stays and the longest slice on the way. The virtual
// clock of the timers runs a slice a millisecond, which costs nothing.
void Thumbnails(benchmark::State& state) {
    CBenchList program(LargeFolder());
    for (auto _ : state) {
        program.List().StopFill();
        const double fBefore = Memory();
        program.List().FillThumbnails();
        CClock::duration tLongest{};
        while (program.List().IsFilling()) {
            const auto tBegin = CClock::now();
            program.Tick();
            tLongest = std::max(tLongest, CClock::now() - tBegin);
        }
        state.counters["MB"] = (Memory() - fBefore) / 1e6;
        state.counters["longest ms"] = std::chrono::duration<double, std::milli>(tLongest).count();
    }
    state.SetItemsProcessed(state.iterations() * program.List().Model().Count());
}
BENCHMARK(Thumbnails)->Unit(benchmark::kMillisecond)->Iterations(1)->MeasureProcessCPUTime();

}  // namespace
