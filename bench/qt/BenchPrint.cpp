// A photograph of 12 megapixels, dated, on a lying A4 page of 600 dots an inch: from the preview's key to the
// file.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "play/ScriptedPlatform.h"
#include "print/PrintPreviewDlg.h"
#include "qt/BenchApplication.h"
#include "qt/PdfDevice.h"
#include "qt/QtTextRasterizer.h"
#include "resources/Ids.h"
#include "support/PeakMemory.h"
#include "support/Photographs.h"
#include "support/Spent.h"

namespace {

constexpr CSize kPhotograph{4000, 3000};
constexpr double kMostSeconds = 1.5;
constexpr double kMostMegabytes = 150;

class CPdfPrinters : public CPrinters {
  public:
    explicit CPdfPrinters(std::string strPath) : m_strPath(std::move(strPath)) {
        m_layout.setOrientation(QPageLayout::Landscape);
    }
    std::optional<CDeviceMode> DefaultMode() override {
        return CDeviceMode{.orientation = EOrientation::Landscape};
    }
    std::unique_ptr<CPrintDevice> RunDialog() override {
        return std::make_unique<CPdfDevice>(m_strPath, m_layout);
    }

  private:
    std::string m_strPath;
    QPageLayout m_layout = CPdfDevice::Paper();
};

void PrintThrough(benchmark::State& state, const CxImage& image) {
    const CBenchApplication application;
    const std::filesystem::path path = BenchFolder() / "fotarium-bench-page.pdf";
    CScriptedPlatform platform;
    const CPlatform topics = platform.Get();
    CPdfPrinters printers(path.string());
    CQtTextRasterizer text;
    CSpent least{1e9, 1e9};
    double fMegabytes = 0;
    for (auto _ : state) {
        CPrintPreviewDlg dialog(image, {topics.boxes, printers, topics.clock, text, topics.wait});
        CPlayHost host(platform, dialog);
        host.Init();
        dialog.OnCommand(kPrintDate);
        host.Pump();
        const double fHighest = PeakMemory();
        ForgetPeakMemory();
        const double fBefore = PeakMemory();
        if (fBefore >= fHighest) state.SkipWithError("the peak of memory cannot be set back here");
        least = Least(least, MeasureOnce([&] { dialog.OnCommand(kPrintOk); }));
        fMegabytes = std::max(fMegabytes, (PeakMemory() - fBefore) / 1e6);
        if (!dialog.HasEnded()) std::abort();
    }
    state.counters["file MB"] = static_cast<double>(std::filesystem::file_size(path)) / 1e6;
    state.counters["by clock s"] = least.fClock;
    std::filesystem::remove(path);
    HoldBelow(state, "processor s", least.fProcessor, kMostSeconds);
    HoldBelow(state, "memory MB", fMegabytes, kMostMegabytes);
}

// A photograph with the grain of a camera, the worst that there is, and one of the samples, enlarged.
void PrintGrain(benchmark::State& state) {
    PrintThrough(state, MakePhotograph(kPhotograph, 1));
}
void PrintSample(benchmark::State& state) {
    CxImage image(FOTARIUM_SOURCE_DIR "/src/resources/samples/静物.jpg", ImageType::kJpeg);
    if (!image.Resample(kPhotograph.cx, kPhotograph.cy)) std::abort();
    PrintThrough(state, image);
}
BENCHMARK(PrintGrain)->Iterations(2)->Unit(benchmark::kMillisecond);
BENCHMARK(PrintSample)->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace
