// FONT on twelve megapixels: what the hand waits for while it shapes words, which is less than 0.3 ms a move,
// and what it waits for when it lets go, which is less than 20 ms.

#include <benchmark/benchmark.h>

#include "app/BenchProgram.h"

namespace {

// The program in FONT with words in a box of a quarter of the picture's width and an eighth of its height.
CBenchProgram& Words(bool bMesh) {
    CBenchProgram& program = Program();
    if (program.Dialog().State().m_nMode != EMode::Font) program.Command(kTabFont);
    program.Dialog().Controls().SetText(kTextInput, "Fotarium");
    program.Command(bMesh ? kRadioMesh : kRadioProjection);
    program.Command(kTextApply);
    const CSize sizeShown = program.Dialog().Images().m_imgDisplay.GetSize();
    program.Hand(EMouseAction::Press, {200, 230}, kMouseShift);
    program.Hand(EMouseAction::Move, {200 + sizeShown.cx / 4, 230 + sizeShown.cy / 8}, kMouseShift);
    program.Hand(EMouseAction::Release, {200 + sizeShown.cx / 4, 230 + sizeShown.cy / 8}, kMouseShift);
    return program;
}

void WordsMove(benchmark::State& state) {
    CBenchProgram& program = Words(state.range(0) != 0);
    program.Hand(EMouseAction::Press, {300, 255});
    int n = 0;
    for (auto _ : state) {
        ++n;
        program.Hand(EMouseAction::Move, {300 + n % 40, 255 + n % 23});
    }
    program.Hand(EMouseAction::Release, {300, 255});
}
BENCHMARK(WordsMove)->ArgName("mesh")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void WordsRelease(benchmark::State& state) {
    CBenchProgram& program = Words(state.range(0) != 0);
    for (auto _ : state) {
        program.Hand(EMouseAction::Press, {300, 255});
        program.Hand(EMouseAction::Release, {300, 255});
    }
}
BENCHMARK(WordsRelease)->ArgName("mesh")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
