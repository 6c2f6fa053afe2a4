#include "effect/EffectFlow.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "resources/Texts.h"

namespace {

constexpr int kRestRange = 100;

std::string NormalPicture(int nEffect) {
    return std::to_string(kBmpEffectNormal + nEffect);
}
std::string SelectedPicture(int nEffect) {
    return std::to_string(kBmpEffectSelected + nEffect);
}

const CEffectRow& RowOf(int nEffect) {
    return ::RowOf(EffectOf(nEffect));
}

}  // namespace

CEffectFlow::CEffectFlow(const CEnvironment& env) : m_env(env), m_list(env.controls, kEffectList) {}

void CEffectFlow::Init() {
    std::vector<std::string> arrCells;
    arrCells.reserve(kEffectCount);
    for (int i = 0; i < kEffectCount; ++i) arrCells.push_back(NormalPicture(i));
    m_list.SetImageList(std::move(arrCells), kEffectCellSize);
    for (int i = 0; i < kEffectCount; ++i) m_list.AddItem(i, 0, RowOf(i).szLabel);
}

void CEffectFlow::RestSlider() {
    m_env.controls.SetRange(kEffectSlider, -kRestRange, kRestRange);
    m_env.controls.SetPosition(kEffectSlider, kRestRange);
}

void CEffectFlow::BlankReadout() {
    m_env.controls.SetText(kEffectLevel, kBlankLevel);
}

void CEffectFlow::DropPreview() {
    if (std::exchange(m_bEffectPending, false)) m_env.events.Tell(EEditEvent::PreviewDropped);
    m_bNoEffectLevel = true;
    m_imgEffectSmall = {};
    m_imgEffectBase = {};
}

// --- sizes and levels ---

CRect CEffectFlow::PreviewBox() const {
    return m_env.controls.Find(kEffectPreview)->rcPlace;
}

// A small picture fills the whole box; a large one keeps its proportions, fractions cut.
CSize CEffectFlow::PreviewSize(CSize size) {
    constexpr CSize kBox = kEffectPreviewSize;
    if (size.cy < kBox.cy && size.cx < kBox.cx) return kBox;
    const bool bByHeight = size.cy >= kBox.cy && size.cx <= size.cy;
    if (bByHeight) return {static_cast<int>(std::int64_t{size.cx} * kBox.cy / size.cy), kBox.cy};
    return {kBox.cx, static_cast<int>(std::int64_t{size.cy} * kBox.cx / size.cx)};
}

int CEffectFlow::LevelOf(int nMin, int nMax, int nPos) {
    return nMin < 0 ? -nPos : nMax - nPos;
}

// --- the preview ---

// Of a very long and thin picture one line is left at this size.
bool CEffectFlow::MakePreviewBase(CxImage& image) const {
    image = m_env.images.m_imgWork;
    const CSize size = PreviewSize(image.GetSize());
    return image.Resample(std::max(1, size.cx), std::max(1, size.cy));
}

bool CEffectFlow::Apply(CxImage& image, int nEffect, int nLevel) const {
    return ApplyEffect(image, EffectOf(nEffect), nLevel, m_nRefWidth, m_env.random);
}

void CEffectFlow::ShowSelected(int nEffect) {
    if (m_nEffectShown >= 0) m_list.ReplaceCell(m_nEffectShown, NormalPicture(m_nEffectShown));
    m_list.ReplaceCell(nEffect, SelectedPicture(nEffect));
    m_nEffectShown = nEffect;
}

void CEffectFlow::ShowLevel(bool bHasLevel) {
    m_env.controls.SetText(kEffectLevel, bHasLevel ? std::to_string(m_nEffectLevel) : kBlankReadout);
}

void CEffectFlow::OnSelChangeEffectList() {
    const int nEffect = m_list.Selection();
    if (!m_env.state.m_bImageOpen || nEffect < 0 || nEffect >= kEffectCount) return;
    const CWaitScope wait(m_env.wait);
    m_nRefWidth = m_env.images.m_nDispWidth;
    CxImage imgBase;
    CxImage imgSmall;
    const bool bMade = Prepare([&] {
        if (!MakePreviewBase(imgBase)) return false;
        imgSmall = imgBase;
        return Apply(imgSmall, nEffect, 0);
    });
    if (!bMade) {
        m_env.controls.Select(kEffectList, m_nEffectShown);
        m_env.editor.ReportNoMemory();
        return;
    }
    m_nEffectIndex = nEffect;
    m_nEffectLevel = 0;
    ShowSelected(nEffect);
    const CEffectRow& row = RowOf(nEffect);
    m_env.controls.SetRange(kEffectSlider, row.nMin, row.nMax);
    m_env.controls.SetPosition(kEffectSlider, row.nStart);
    ShowLevel(row.bHasLevel);
    m_imgEffectBase = std::move(imgBase);
    m_imgEffectSmall = std::move(imgSmall);
    m_bNoEffectLevel = !row.bHasLevel;
    m_bEffectPending = true;
    m_env.events.Tell(row.bHasLevel ? EEditEvent::LevelPreviewBegun : EEditEvent::PreviewBegun);
    m_env.controls.SetFocus(kEffectList);
    m_env.panel.Invalidate();
}

// Every notice does the whole of it, on a fresh copy of the untouched preview.
void CEffectFlow::OnVScroll() {
    if (!m_imgEffectBase.IsValid()) return;
    const CControl& slider = *m_env.controls.Find(kEffectSlider);
    const int nLevel = LevelOf(slider.nMin, slider.nMax, slider.nPos);
    CxImage image = m_imgEffectBase;
    m_nRefWidth = m_env.images.m_nDispWidth;
    if (!Apply(image, m_nEffectIndex, nLevel)) {
        // The level counts from either end alike.
        m_env.controls.SetPosition(kEffectSlider, LevelOf(slider.nMin, slider.nMax, m_nEffectLevel));
        m_env.editor.ReportNoMemory();
        return;
    }
    m_nEffectLevel = nLevel;
    m_imgEffectSmall = std::move(image);
    m_bEffectPending = true;
    m_env.events.Tell(EEditEvent::LevelMoved);
    ShowLevel(true);
    RepaintPreview();
    m_env.controls.SetFocus(kEffectList);
}

void CEffectFlow::RepaintPreview() {
    CClientArea& client = m_env.panel.Client();
    {
        const CClientArea::CClip clip(client, PreviewBox());
        client.DrawBitmap(kBmpBackground, 0, 0);
    }
    PaintPreview(client);
    m_env.panel.Present();
}

void CEffectFlow::PaintPreview(CClientArea& client) const {
    if (!m_bEffectPending) return;
    const CRect rcBox = PreviewBox();
    const CSize size = m_imgEffectSmall.GetSize();
    const CClientArea::CClip clip(client, rcBox);
    client.DrawSurface(CSurface(m_imgEffectSmall.Pixels()), rcBox.left + rcBox.Width() / 2 - size.cx / 2,
                       rcBox.top + rcBox.Height() / 2 - size.cy / 2);
}

// --- its end ---

// The effect runs once more, from the picture itself.
bool CEffectFlow::OnConfirm() {
    if (!m_bEffectPending) return false;
    const CWaitScope wait(m_env.wait);
    const bool bChanged = m_env.editor.Change(m_env.images.m_imgWork, [&](CEditPictures& next) {
        next.m_bFrameOn = false;
        return Apply(next.m_imgWork, m_nEffectIndex, m_nEffectLevel) && next.RebuildDisplay(next.RuledSize());
    });
    if (bChanged) EndPreview();
    return bChanged;
}

// That this too makes a frame part of the picture for good is meant.
bool CEffectFlow::OnCancel() {
    if (!m_bEffectPending) return false;
    m_env.images.m_bFrameOn = false;
    EndPreview();
    return true;
}

// The common end of CONFIRM and CANCEL: commands back, preview and slider gone. The list's selection and its
// selected picture stay.
void CEffectFlow::EndPreview() {
    m_bEffectPending = false;
    m_env.controls.SetFocus(kEffectList);
    RestSlider();
    m_env.events.Tell(EEditEvent::PreviewEnded);
    DropPreview();
    m_env.panel.Invalidate();
}
