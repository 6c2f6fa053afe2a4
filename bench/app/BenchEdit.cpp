// The commands of an edit on twelve megapixels, as the window runs them: through the controller, with
// buttons, display image and canvas. Beside them stands the plain pass over the same bytes.

#include <benchmark/benchmark.h>

#include "app/BenchProgram.h"

namespace {

constexpr int kWidth = CBenchProgram::kWidth;
constexpr int kHeight = CBenchProgram::kHeight;

void Count(benchmark::State& state) {
    state.counters["MP/s"] =
        benchmark::Counter(kWidth * kHeight / 1e6, benchmark::Counter::kIsIterationInvariantRate);
}

void PlainPass(benchmark::State& state) {
    CPixels pixels = CPixels::MakeFilled(kWidth, kHeight, {});
    for (auto _ : state) {
        for (std::uint8_t& byte : pixels.MutableBytes()) byte = static_cast<std::uint8_t>(255 - byte);
        benchmark::ClobberMemory();
    }
    Count(state);
}
BENCHMARK(PlainPass)->Unit(benchmark::kMicrosecond);

// One display resample to another size, the cost that Undo may have.
void DisplayResample(benchmark::State& state) {
    const CxImage& image = Program().Dialog().Images().m_imgWork;
    for (auto _ : state) {
        CxImage display(image);
        benchmark::DoNotOptimize(display.Resample(kWidth / 2, kHeight / 2));
        benchmark::DoNotOptimize(display);
    }
    Count(state);
}
BENCHMARK(DisplayResample)->Unit(benchmark::kMicrosecond);

void Reset(benchmark::State& state) {
    CBenchProgram& program = Program();
    for (auto _ : state) program.Command(kCmdReset);
    Count(state);
}
BENCHMARK(Reset)->Unit(benchmark::kMicrosecond);

// Undo and Redo in turn, between two states of the same size.
void UndoAndRedo(benchmark::State& state) {
    CBenchProgram& program = Program();
    program.Command(kCmdReset);
    for (auto _ : state) {
        program.Command(kCmdUndo);
        program.Command(kCmdRedo);
    }
    Count(state);
}
BENCHMARK(UndoAndRedo)->Unit(benchmark::kMicrosecond);

// A push alone, with a full stack behind it.
void PushUndo(benchmark::State& state) {
    const CWorkingImages& images = Program().Dialog().Images();
    CUndoStack<CUndoEntry> stack;
    for (auto _ : state) stack.Push(images.MakeEntry(images.m_imgWork));
    Count(state);
}
BENCHMARK(PushUndo)->Unit(benchmark::kMicrosecond);

// From one mode to another and back, with the canvas painted each time.
void SwitchMode(benchmark::State& state) {
    CBenchProgram& program = Program();
    for (auto _ : state) {
        program.Command(kTabDraw);
        program.Pump();
        program.Command(kTabEffect);
        program.Pump();
    }
    Count(state);
}
BENCHMARK(SwitchMode)->Unit(benchmark::kMicrosecond);

// A whole command with its undo step, the display image and the painted canvas. The stack is full, so that no
// step waits for the system's memory.
void Command(benchmark::State& state) {
    CBenchProgram& program = Program();
    for (int n = 0; n <= CUndoStack<CUndoEntry>::kDepth; ++n) program.Command(kCmdFlipVertical);
    for (auto _ : state) {
        program.Command(static_cast<int>(state.range(0)));
        program.Pump();
    }
    Count(state);
}
BENCHMARK(Command)->Name("FlipVertical")->Arg(kCmdFlipVertical)->Unit(benchmark::kMicrosecond);
BENCHMARK(Command)->Name("FlipHorizontal")->Arg(kCmdFlipHorizontal)->Unit(benchmark::kMicrosecond);
BENCHMARK(Command)->Name("TurnLeft")->Arg(kCmdTurnLeft)->Unit(benchmark::kMicrosecond);
BENCHMARK(Command)->Name("TurnRight")->Arg(kCmdTurnRight)->Unit(benchmark::kMicrosecond);

// To the largest size that it allows.
void Large(benchmark::State& state) {
    CBenchProgram& program = Program();
    program.Command(kCmdReset);
    program.SetSize({2560, 1920});
    for (auto _ : state) {
        program.Command(kCmdLarge);
        program.Pump();
        state.PauseTiming();
        program.Command(kCmdUndo);
        state.ResumeTiming();
    }
    Count(state);
}
BENCHMARK(Large)->Unit(benchmark::kMicrosecond);

}  // namespace
