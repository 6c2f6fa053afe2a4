// EFFECT as the hand feels it, on twelve megapixels: a move of the level's slider with all that is drawn for
// it, a choice in the list, and CONFIRM beside the effect alone and one resample for the display.

#include <benchmark/benchmark.h>

#include "app/BenchProgram.h"
#include "engines/effects/ImageEffect.h"

namespace {

void Choose(CBenchProgram& program, int nEffect) {
    program.Dialog().Controls().Select(kEffectList, nEffect);
    program.Dialog().OnNotify(kEffectList, ENotice::SelectionChanged);
    program.Pump();
}

void Slide(CBenchProgram& program, int nPos) {
    program.Dialog().Controls().SetPosition(kEffectSlider, nPos);
    program.Dialog().OnNotify(kEffectSlider, ENotice::Scrolled);
    program.Pump();
}

const CEffectRow& RowOf(int nEffect) {
    return ::RowOf(EffectOf(nEffect));
}

// A level in the upper half of the range.
int TellingPosition(int nEffect) {
    const CEffectRow& row = RowOf(nEffect);
    return row.bHasLevel ? row.nMin + (row.nMax - row.nMin) / 5 : row.nStart;
}

// To and fro between two levels.
void SliderMove(benchmark::State& state) {
    CBenchProgram& program = Program();
    const int nEffect = static_cast<int>(state.range(0));
    Choose(program, nEffect);
    const int nPos = TellingPosition(nEffect);
    int nStep = 0;
    for (auto _ : state) Slide(program, nPos + (nStep ^= 1));
    program.Command(kCancel);
    program.Pump();
}
BENCHMARK(SliderMove)->DenseRange(0, kEffectCount - 1)->Unit(benchmark::kMicrosecond);

void Choice(benchmark::State& state) {
    CBenchProgram& program = Program();
    int nEffect = 0;
    for (auto _ : state) {
        Choose(program, nEffect);
        nEffect = (nEffect + 1) % kEffectCount;
    }
    program.Command(kCancel);
    program.Pump();
}
BENCHMARK(Choice)->Unit(benchmark::kMicrosecond);

void Confirm(benchmark::State& state) {
    CBenchProgram& program = Program();
    const int nEffect = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        Choose(program, nEffect);
        Slide(program, TellingPosition(nEffect));
        state.ResumeTiming();
        program.Command(kConfirm);
        state.PauseTiming();
        program.Pump();
        program.Command(kCmdUndo);
        program.Pump();
        state.ResumeTiming();
    }
}
BENCHMARK(Confirm)->DenseRange(0, kEffectCount - 1)->Unit(benchmark::kMillisecond);

void EffectAlone(benchmark::State& state) {
    const CxImage& picture = Program().Dialog().Images().m_imgWork;
    const int nEffect = static_cast<int>(state.range(0));
    const CEffectRow& row = RowOf(nEffect);
    const int nLevel = CEffectFlow::LevelOf(row.nMin, row.nMax, TellingPosition(nEffect));
    CRandomSequence random;
    for (auto _ : state) {
        CxImage image(picture);
        benchmark::DoNotOptimize(ApplyEffect(image, EffectOf(nEffect), nLevel, image.GetWidth(), random));
        benchmark::DoNotOptimize(image);
    }
}
BENCHMARK(EffectAlone)->DenseRange(0, kEffectCount - 1)->Unit(benchmark::kMillisecond);

}  // namespace
