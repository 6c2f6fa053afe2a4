// A take of a thousand files of 200 kB from the phone in a folder against cp, in one run. The folders are
// made below FOTARIUM_BENCH_DIR or the temporary folder. A take may cost one and a half times what cp does;
// "of cp" tells.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

#include "engines/linkset/FileSet.h"
#include "engines/linkset/PhoneLibrary.h"
#include "engines/ports/DeviceNumbers.h"
#include "phone/FolderPhone.h"

namespace {

namespace fs = std::filesystem;
using CClock = std::chrono::steady_clock;

constexpr int kFiles = 1000;
constexpr std::size_t kFileBytes = 200'000;

class CPhoneFolder {
  public:
    CPhoneFolder() {
        const char* const szNamed = std::getenv("FOTARIUM_BENCH_DIR");
        const fs::path base = szNamed == nullptr ? fs::temp_directory_path() : fs::path(szNamed);
        std::string strName = base / "fotarium-bench-XXXXXX";
        m_path = ::mkdtemp(strName.data());
        fs::create_directories(m_path / "phone/inner");
        std::ofstream(m_path / "phone/phone.txt") << "kind 2\n";
        for (int i = 0; i < kFiles; ++i)
            std::ofstream(m_path / "phone/inner" / std::to_string(i), std::ios::binary)
                << std::string(kFileBytes, static_cast<char>(i));
    }
    CPhoneFolder(const CPhoneFolder&) = delete;
    CPhoneFolder& operator=(const CPhoneFolder&) = delete;
    ~CPhoneFolder() {
        std::error_code error;
        fs::remove_all(m_path, error);
    }
    // An empty folder to take into.
    fs::path Target() const {
        fs::remove_all(m_path / "target");
        fs::create_directory(m_path / "target");
        return m_path / "target";
    }
    fs::path Phone() const { return m_path / "phone"; }

  private:
    fs::path m_path;
};

double SecondsSince(CClock::time_point start) {
    return std::chrono::duration<double>(CClock::now() - start).count();
}

double CopyTime(const CPhoneFolder& folder) {
    const std::string strCall =
        "cp -r '" + (folder.Phone() / "inner").string() + "' '" + folder.Target().string() + "'";
    const auto start = CClock::now();
    return std::system(strCall.c_str()) == 0 ? SecondsSince(start) : 0;
}

// Listing and taking all files; 0 if something failed.
double TakeTime(const CPhoneFolder& folder) {
    CFolderPhone phone(folder.Phone().string());
    CPhoneFacts facts;
    CFILESet set;
    const fs::path target = folder.Target();
    set.m_strFileName = (target / "FILE.Dat").string();
    int nStream = 0, nCount = 0;
    const auto start = CClock::now();
    bool bDone = phone.ChangeUSBStream(kFolderPhonePort, nStream) == LINK_OK &&
                 phone.ConnectToPhone(kFolderPhonePort, facts) == LINK_OK &&
                 phone.GetFileInfoListfromPhone(LINK_ITEM_PHOTO, nCount, target.string()) == LINK_OK &&
                 set.Open();
    for (const CFileItem& item : set.m_nDataArray)
        bDone = bDone && phone.GetFilefromPhone(LINK_ITEM_PHOTO, item.m_nFileId,
                                                (target / item.m_strFileName).string(), false) == LINK_OK;
    return bDone && nCount == kFiles ? SecondsSince(start) : 0;
}

void TakeAgainstCp(benchmark::State& state) {
    const CPhoneFolder folder;
    // The least of several, for a disk has other things to do.
    double fCopy = std::numeric_limits<double>::max(), fTake = fCopy;
    for ([[maybe_unused]] auto _ : state) {
        fCopy = std::min(fCopy, CopyTime(folder));
        fTake = std::min(fTake, TakeTime(folder));
        if (fTake <= 0) state.SkipWithError("a file could not be taken");
    }
    state.counters["take ms"] = fTake * 1000;
    state.counters["of cp"] = fTake / fCopy;
}
BENCHMARK(TakeAgainstCp)->Iterations(10)->Unit(benchmark::kMillisecond);

}  // namespace
