// The picture container on twelve megapixels. Beside each result stands the pass that nothing can beat by
// much: x = 255 - x in place over as many bytes as the result has. OpenJpeg and SaveJpeg are to be held
// against the codec's own tools on a file of this size that lies in memory, each run twenty times:
//   djpeg -outfile /dev/null p.jpg
//   cjpeg -quality 90 -outfile q.jpg p.ppm
// FOTARIUM_BENCH_DIR=/dev/shm takes the disk out of SaveJpeg.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "image/Image.h"

namespace {

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;

// Something of a photograph: slopes, edges and a little noise, so that a codec has its usual work.
CxImage MakePicture(int nWidth, int nHeight) {
    CxImage image(nWidth, nHeight);
    const CPixelView view = image.MutableView();
    std::minstd_rand random(1);
    for (int y = 0; y < nHeight; ++y) {
        for (int x = 0; x < nWidth; ++x) {
            const double fWave =
                std::sin(x * 0.011) * std::cos(y * 0.007) + 0.3 * std::sin((x + 2 * y) * 0.05);
            const int nEdge = (x / 97 + y / 61) % 5 == 0 ? 40 : 0;
            const int nNoise = static_cast<int>(random() % 17) - 8;
            const int n = 110 + static_cast<int>(60 * fWave) + nEdge + nNoise;
            view.Set(
                x, y,
                {LimitToByte(n), LimitToByte(n - x * 40 / nWidth), LimitToByte(n / 2 + y * 90 / nHeight)});
        }
    }
    return image;
}

const CxImage& Picture() {
    static const CxImage image = MakePicture(kWidth, kHeight);
    return image;
}

// The files of a run, removed at its end. FOTARIUM_BENCH_DIR chooses another place than the system's.
class CBenchFolder {
  public:
    CBenchFolder() { std::filesystem::create_directories(m_path); }
    CBenchFolder(const CBenchFolder&) = delete;
    CBenchFolder& operator=(const CBenchFolder&) = delete;
    ~CBenchFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    std::string File(const std::string& strName) const { return (m_path / strName).string(); }

  private:
    static std::filesystem::path Place() {
        const char* const szPlace = std::getenv("FOTARIUM_BENCH_DIR");
        return szPlace != nullptr ? std::filesystem::path(szPlace) : std::filesystem::temp_directory_path();
    }
    std::filesystem::path m_path = Place() / ("fotarium-bench-" + std::to_string(getpid()));
};

const CBenchFolder& Folder() {
    static const CBenchFolder folder;
    return folder;
}

void Count(benchmark::State& state, std::int64_t nPixels) {
    const auto fPixels = static_cast<double>(nPixels);
    state.counters["MP/s"] = benchmark::Counter(fPixels / 1e6, benchmark::Counter::kIsIterationInvariantRate);
    state.SetBytesProcessed(state.iterations() * nPixels * 3);
}

std::int64_t PixelsOf(const CxImage& image) {
    return static_cast<std::int64_t>(image.GetWidth()) * image.GetHeight();
}

void PlainPass(benchmark::State& state) {
    CxImage image(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        for (std::uint8_t& n : image.MutableBytes()) n = static_cast<std::uint8_t>(255 - n);
        benchmark::ClobberMemory();
    }
    Count(state, PixelsOf(image));
}
BENCHMARK(PlainPass)
    ->Args({kWidth / 2, kHeight / 2})
    ->Args({kWidth, kHeight})
    ->Args({2 * kWidth, 2 * kHeight})
    ->Unit(benchmark::kMillisecond);

void Copy(benchmark::State& state) {
    const CxImage& image = Picture();
    for (auto _ : state) {
        CxImage copy = image;
        benchmark::DoNotOptimize(copy);
    }
    Count(state, PixelsOf(image));
}
BENCHMARK(Copy);

void CopyAndWriteOne(benchmark::State& state) {
    const CxImage& image = Picture();
    for (auto _ : state) {
        CxImage copy = image;
        copy.SetPixelColor(5, 5, {1, 2, 3});
        benchmark::DoNotOptimize(copy);
    }
    Count(state, PixelsOf(image));
}
BENCHMARK(CopyAndWriteOne)->Unit(benchmark::kMillisecond);

void Resample(benchmark::State& state, int nWidth, int nHeight) {
    for (auto _ : state) {
        CxImage image = Picture();
        benchmark::DoNotOptimize(image.Resample(nWidth, nHeight));
        benchmark::DoNotOptimize(image);
    }
    Count(state, static_cast<std::int64_t>(nWidth) * nHeight);
}
BENCHMARK_CAPTURE(Resample, Half, kWidth / 2, kHeight / 2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Resample, Double, 2 * kWidth, 2 * kHeight)->Unit(benchmark::kMillisecond);

// A command turns a picture whose pixels an undo entry still shares, so these start from a shared copy. The
// second width lays all rows of a block into the same sets of a cache.
template <class TTurn>
void Turn(benchmark::State& state, TTurn turn) {
    const CxImage source = state.range(0) == kWidth ? Picture() : MakePicture(4096, 2930);
    for (auto _ : state) {
        CxImage image = source;
        benchmark::DoNotOptimize(turn(image));
        benchmark::DoNotOptimize(image);
    }
    Count(state, PixelsOf(source));
}

void Mirror(benchmark::State& state) {
    Turn(state, [](CxImage& image) { return image.Mirror(); });
}
void Rotate180(benchmark::State& state) {
    Turn(state, [](CxImage& image) { return image.Rotate180(); });
}
void RotateClockwise(benchmark::State& state) {
    Turn(state, [](CxImage& image) { return image.Rotate(90.0); });
}
void RotateCounter(benchmark::State& state) {
    Turn(state, [](CxImage& image) { return image.Rotate(-90.0); });
}
BENCHMARK(Mirror)->Arg(kWidth)->Unit(benchmark::kMillisecond);
BENCHMARK(Rotate180)->Arg(kWidth)->Unit(benchmark::kMillisecond);
BENCHMARK(RotateClockwise)->Arg(kWidth)->Arg(4096)->Unit(benchmark::kMillisecond);
BENCHMARK(RotateCounter)->Arg(kWidth)->Arg(4096)->Unit(benchmark::kMillisecond);

void HistogramEqualize(benchmark::State& state) {
    CxImage image = Picture();
    for (auto _ : state) benchmark::DoNotOptimize(image.HistogramEqualize());
    Count(state, PixelsOf(image));
}
BENCHMARK(HistogramEqualize)->Unit(benchmark::kMillisecond);

void OpenJpeg(benchmark::State& state) {
    const std::string strFile = Folder().File("open.jpg");
    if (!Picture().Save(strFile, ImageType::kJpeg)) state.SkipWithError("cannot write the file to open");
    for (auto _ : state) {
        CxImage image(strFile, ImageType::kJpeg);
        benchmark::DoNotOptimize(image);
    }
    Count(state, PixelsOf(Picture()));
}
BENCHMARK(OpenJpeg)->Unit(benchmark::kMillisecond);

void OpenThumbnail(benchmark::State& state) {
    const std::string strFile = Folder().File("thumb.jpg");
    if (!Picture().Save(strFile, ImageType::kJpeg)) state.SkipWithError("cannot write the file to open");
    for (auto _ : state) {
        CScaledImage scaled = LoadJpegScaled(strFile, 110, 110);
        benchmark::DoNotOptimize(scaled);
    }
    Count(state, PixelsOf(Picture()));
}
BENCHMARK(OpenThumbnail)->Unit(benchmark::kMillisecond);

void SaveJpeg(benchmark::State& state) {
    const std::string strFile = Folder().File("save.jpg");
    for (auto _ : state) {
        if (!Picture().Save(strFile, ImageType::kJpeg)) state.SkipWithError("cannot write");
    }
    Count(state, PixelsOf(Picture()));
}
BENCHMARK(SaveJpeg)->Unit(benchmark::kMillisecond);

}  // namespace
