// What a mouse move and a step of each tool cost on a picture of 3200 by 2400 and on one sixteen times
// larger, with the way to the screen's surface. A move is one event of the mouse, which the tools see twice.

#include <benchmark/benchmark.h>

#include "paint/DrawGuest.h"

namespace {

constexpr CSize kPicture{3200, 2400};
constexpr CSize kSixteenTimes{12800, 9600};

// A canvas in DRAW with the history of one step that a stroke begins with.
class CBenchCanvas : private CCanvasHost,
                     private CPaintHost,
                     private CTimers,
                     private CEditEvents,
                     private CMessageBoxes {
  public:
    explicit CBenchCanvas(CSize size)
        : m_editor({m_images, *this, *this}),
          m_canvas({m_state, m_images, *this}),
          m_draw({m_images, m_tools, m_canvas, m_editor, *this, *this, *this, m_random}) {
        const CxImage image(CPixels::MakeFilled(size.cx, size.cy, {255, 255, 255}));
        m_images.TakePicture(image);
        m_state.m_bImageOpen = true;
        m_state.m_nMode = EMode::Draw;
        m_canvas.SetGuest(&m_draw);
        m_draw.LoadCanvas();
        m_draw.ApplyZoom();
        m_canvas.Paint();
        m_tools.m_crForeground = {200, 0, 0};
    }
    void Mouse(EMouseAction action, CPoint pt) {
        m_canvas.OnMouse({action, EMouseButton::Left, pt, 0});
        benchmark::DoNotOptimize(m_canvas.TakeDamage());
    }
    // Beside the size that the tool's option is to have.
    void Select(ETool tool) {
        m_tools.m_nTool = tool;
        m_tools.m_nEraserSize = 3;
        m_tools.m_nSpraySize = 2;
        m_draw.AbandonShape();
    }
    CMySCrollView& View() { return m_canvas; }
    CDrawGuest& Draw() { return m_draw; }
    CToolState& Tools() { return m_tools; }

  private:
    void OnCanvasPainted() override {}
    void OnPictureMenu() override {}
    void Tell(EEditEvent /*event*/) override {}
    EBoxAnswer Show(const CMessageBox& /*box*/) override { return EBoxAnswer::Ok; }
    void PickColor(bool /*bForeground*/, CColor /*color*/) override {}
    void SetTimer(CTimerTarget& /*target*/, int /*nTimer*/, int /*nMilliseconds*/) override {}
    void KillTimer(CTimerTarget& /*target*/, int /*nTimer*/) override {}

    CEditState m_state;
    CWorkingImages m_images;
    CToolState m_tools;
    CRandomSequence m_random;
    CEditor m_editor;
    CMySCrollView m_canvas;
    CDrawGuest m_draw;
};

CBenchCanvas& Canvas(bool bLarge) {
    static CBenchCanvas canvas(kPicture);
    static std::unique_ptr<CBenchCanvas> pLarge;
    if (!bLarge) return canvas;
    if (!pLarge) pLarge = std::make_unique<CBenchCanvas>(kSixteenTimes);
    return *pLarge;
}

// 20 pixels along a circle and back.
void Stroke(benchmark::State& state, ETool tool) {
    CBenchCanvas& canvas = Canvas(state.range(0) != 0);
    canvas.Select(tool);
    canvas.Mouse(EMouseAction::Press, {200, 200});
    if (!canvas.Draw().Hand().m_bButtonDown) state.SkipWithError("no memory for the step");
    int n = 0;
    constexpr CPoint kWay[] = {{220, 200}, {234, 214}, {234, 234}, {220, 248},
                               {200, 248}, {186, 234}, {186, 214}, {200, 200}};
    for (auto _ : state) canvas.Mouse(EMouseAction::Move, kWay[n++ % 8]);
    canvas.Mouse(EMouseAction::Release, {200, 200});
}
void PenMove(benchmark::State& state) {
    Stroke(state, ETool::Pen);
}
void BrushMove(benchmark::State& state) {
    Stroke(state, ETool::Brush);
}
void EraserMove(benchmark::State& state) {
    Stroke(state, ETool::Eraser);
}
BENCHMARK(PenMove)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(BrushMove)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(EraserMove)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void AirbrushTick(benchmark::State& state) {
    CBenchCanvas& canvas = Canvas(state.range(0) != 0);
    canvas.Select(ETool::Airbrush);
    canvas.Mouse(EMouseAction::Press, {200, 200});
    for (auto _ : state) canvas.View().OnTimer(CPaintEnvironment::kSprayTimer);
    canvas.Mouse(EMouseAction::Release, {200, 200});
}
BENCHMARK(AirbrushTick)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

// A figure of 300 by 300 that goes to and fro by a pixel.
void Band(benchmark::State& state, ETool tool) {
    CBenchCanvas& canvas = Canvas(state.range(0) != 0);
    canvas.Select(tool);
    canvas.Mouse(EMouseAction::Press, {100, 100});
    int n = 0;
    for (auto _ : state) canvas.Mouse(EMouseAction::Move, {400 - n++ % 2, 400});
    canvas.Mouse(EMouseAction::Release, {400, 400});
}
void LineBand(benchmark::State& state) {
    Band(state, ETool::Line);
}
void EllipseBand(benchmark::State& state) {
    Band(state, ETool::Ellipse);
}
void RoundRectBand(benchmark::State& state) {
    Band(state, ETool::RoundRect);
}
void SelectionBand(benchmark::State& state) {
    Band(state, ETool::SelectRect);
}
BENCHMARK(LineBand)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(EllipseBand)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(RoundRectBand)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(SelectionBand)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

// A float of 300 by 300.
void FloatDrag(benchmark::State& state) {
    CBenchCanvas& canvas = Canvas(state.range(0) != 0);
    CSelection& selection = canvas.Draw().Selection();
    selection.m_region = CRegion::MakeEllipse({100, 100, 401, 401});
    selection.m_imgFloat = CxImage(CPixels::MakeFilled(300, 300, {0, 0, 200}));
    selection.SetFloating(true);
    canvas.Select(ETool::Float);
    canvas.Mouse(EMouseAction::Press, {200, 200});
    int n = 0;
    for (auto _ : state) canvas.Mouse(EMouseAction::Move, {200 + n++ % 2 * 3, 200});
    canvas.Mouse(EMouseAction::Release, {200, 200});
    canvas.Draw().DropFloat();
}
BENCHMARK(FloatDrag)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

// The press of a stroke: the undo step shares the picture, and the store that goes on gets pixels of its own.
void Press(benchmark::State& state) {
    CBenchCanvas& canvas = Canvas(state.range(0) != 0);
    canvas.Select(ETool::Pen);
    for (auto _ : state) {
        canvas.Mouse(EMouseAction::Press, {200, 200});
        canvas.Mouse(EMouseAction::Release, {200, 200});
    }
}
BENCHMARK(Press)->Arg(0)->Unit(benchmark::kMicrosecond);

// All of a picture, with its undo step and the screen. Before the history is full each step takes memory that
// the system has to clear first, which costs far more than the fill; so it is filled beforehand.
void Fill(benchmark::State& state) {
    CBenchCanvas canvas({4000, 3000});
    canvas.Select(ETool::Fill);
    for (int n = 0; n <= CUndoStack<CUndoEntry>::kDepth + 1; ++n) {
        canvas.Mouse(EMouseAction::Press, {300, 300});
        canvas.Mouse(EMouseAction::Release, {300, 300});
    }
    std::uint8_t n = 0;
    for (auto _ : state) {
        canvas.Tools().m_crForeground = {++n, 0, 0};
        canvas.Mouse(EMouseAction::Press, {300, 300});
        canvas.Mouse(EMouseAction::Release, {300, 300});
    }
}
BENCHMARK(Fill)->Unit(benchmark::kMicrosecond);

// What Fill is measured against.
void PlainPass(benchmark::State& state) {
    CPixels pixels = CPixels::MakeFilled(4000, 3000, {});
    for (auto _ : state) {
        for (std::uint8_t& byte : pixels.MutableBytes()) byte = static_cast<std::uint8_t>(255 - byte);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(PlainPass)->Unit(benchmark::kMicrosecond);

}  // namespace
