// A send of a hundred listed photographs of twelve megapixels to the phone in a folder, beside a bare loop
// over the same codecs, and the memory that it takes.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#include "PhoneProgram.h"
#include "engines/pack/PhoneSizes.h"
#include "image/JpegCodec.h"
#include "support/PeakMemory.h"
#include "support/Spent.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFiles = 100;
constexpr int kDifferent = 5;
constexpr int kFew = 3;
constexpr double kMostRatio = 1.3;
constexpr double kMostGrowth = 1.05;

std::string NameOf(int n) {
    char szName[20];
    std::snprintf(szName, sizeof szName, "photo%03d.jpg", n);
    return szName;
}

void FillList(const CPhoneFolder& folder) {
    for (int i = 0; i < kFiles; ++i) {
        const fs::path path = folder.List() / NameOf(i);
        if (i >= kDifferent)
            fs::create_hard_link(folder.List() / NameOf(i % kDifferent), path);
        else if (!MakePhotograph({4000, 3000}, static_cast<unsigned>(i))
                      .Save(path.string(), ImageType::kJpeg))
            std::abort();
    }
}

// The first nFiles of the list go to the phone.
void Send(CPhoneProgram& program, const CPhoneFolder& folder, int nFiles) {
    program.ClickFile(NameOf(0));
    program.ClickFile(NameOf(nFiles - 1), kMouseShift);
    program.Command(kCmdSend);
    if (std::distance(fs::directory_iterator(folder.Inner()), {}) != nFiles) std::abort();
}

// What a picture cannot be sent without: decoded twice, its JPEG and that of its thumbnail made, and both
// brought to where they are to be.
void SendBare(const std::string& strSource, const std::string& strTarget) {
    const CxImage checked(strSource, ImageType::kJpeg);
    if (!checked.IsValid()) std::abort();
    const CxImage image(strSource, ImageType::kJpeg);
    CxImage thumb(image);
    if (!thumb.Resample(kLargeThumb.cx, kLargeThumb.cy) || !thumb.Resample(kPhoneScreen.cx, kPhoneScreen.cy))
        std::abort();
    std::vector<std::uint8_t> bytes;
    if (!EncodeJpeg(image.Pixels(), {}, bytes) || !EncodeJpeg(thumb.Pixels(), {}, bytes)) std::abort();
    std::ofstream(strTarget, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void SendOfAHundred(benchmark::State& state) {
    const CPhoneFolder folder;
    FillList(folder);
    CPhoneProgram program(folder);
    CSpent send;
    CSpent bare;
    double fPeakOfFew = 0;
    double fPeak = 0;
    for (auto _ : state) {
        ForgetPeakMemory();
        Send(program, folder, kFew);
        fPeakOfFew = PeakMemory();
        send = MeasureOnce([&] { Send(program, folder, kFiles); });
        fPeak = PeakMemory();
        const fs::path copies = folder.Path() / "copies";
        fs::create_directory(copies);
        bare = MeasureOnce([&] {
            for (int i = 0; i < kFiles; ++i)
                SendBare((folder.List() / NameOf(i)).string(), (copies / NameOf(i)).string());
        });
    }
    state.counters["send ms a picture"] = send.fClock * 1e3 / kFiles;
    state.counters["ratio by clock"] = send.fClock / bare.fClock;
    state.counters["peak MB"] = fPeak / 1e6;
    // It computes nearly all the time, so that what else the machine does need not count.
    HoldBelow(state, "times the bare loop", send.fProcessor / bare.fProcessor, kMostRatio);
    HoldBelow(state, "memory of 100 to that of 3", fPeak / fPeakOfFew, kMostGrowth);
}
BENCHMARK(SendOfAHundred)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
