#include "compose/TextArtFlow.h"

#include <array>
#include <utility>
#include <vector>

#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "resources/Texts.h"

namespace {

constexpr int kTextHeight = 72;
constexpr int kHeavy = 1000;
constexpr int kLight = 100;

std::string PictureOf(int nEffect, bool bSelected) {
    return std::to_string((bSelected ? kBmpTextEffectSelected : kBmpTextEffectNormal) + nEffect);
}

void Colour(TextArtParam& param, CColor color) {
    param.byRed = color.r;
    param.byGreen = color.g;
    param.byBlue = color.b;
}

}  // namespace

CTextArtFlow::CTextArtFlow(const CEnvironment& env)
    : m_env(env),
      m_list(env.controls, kTextEffectList),
      m_guest({env.images, env.canvas, m_textParam, [this] { DrawAnew(); }}) {}

void CTextArtFlow::DrawAnew() {
    if (RunTextArt(Words())) m_env.canvas.Invalidate();
}

void CTextArtFlow::Init() {
    std::vector<std::string> arrCells;
    arrCells.reserve(kTextEffectCount);
    for (int i = 0; i < kTextEffectCount; ++i) arrCells.push_back(PictureOf(i, i == m_nTextEffectShown));
    m_list.SetImageList(std::move(arrCells), kTextEffectCellSize);
    for (int i = 0; i < kTextEffectCount; ++i) m_list.AddItem(i, 0, kTextEffectNames[i]);
    m_list.Select(m_nTextEffectShown);
    ShowKind();
}

// The panel says what the engine is told.
void CTextArtFlow::InitTextArt() {
    m_textParam = {};
    Colour(m_textParam, m_color);
    m_bTextBaseLoaded = false;
    ShowKind();
    ShowEffect();
}

void CTextArtFlow::Begin() {
    m_bTextBaseLoaded = false;
    OnTextInput();
    if (m_env.state.m_bImageOpen) m_guest.Begin();
}

void CTextArtFlow::End() {
    m_bTextBaseLoaded = false;
    m_textWarp.SetBase({});
    m_guest.End();
}

// --- drawing ---

// Ink is 0, the ground 255. Without a text there is no mask.
bool CTextArtFlow::RenderTextMask(CWords& words, const std::string& strText, const CFontChoice& font) const {
    CTextMask mask = m_env.text.Rasterize({font.strFace, kTextHeight, font.bBold ? kHeavy : kLight}, strText);
    for (std::uint8_t& n : mask.coverage) n = static_cast<std::uint8_t>(255 - n);
    return words.warp.SetMask(mask.coverage, mask.nWidth, mask.nHeight);
}

bool CTextArtFlow::Draw(CWords& words, CEditPictures& pictures) const {
    if (!m_bTextBaseLoaded) words.warp.SetBase(pictures.m_imgWork.Pixels());
    if (words.warp.HasMask() && !words.warp.Render(words.param)) return false;
    return pictures.m_imgWork.ReplacePixels(words.warp.Result()) &&
           pictures.RebuildDisplay(EMode::Font, pictures.DisplaySize());
}

void CTextArtFlow::Take(CWords words) {
    m_textWarp = std::move(words.warp);
    m_textParam = words.param;
    m_bTextBaseLoaded = true;
}

template <class TMake>
bool CTextArtFlow::Change(TMake make) {
    const CWaitScope wait(m_env.wait);
    CWords words = Words();
    const bool bChanged = m_env.editor.Change(
        m_env.images.m_imgWork, [&](CEditPictures& next) { return make(words, next) && Draw(words, next); });
    if (!bChanged) return false;
    Take(std::move(words));
    m_env.canvas.Invalidate();
    return true;
}

bool CTextArtFlow::RunTextArt(CWords words) {
    CEditPictures next = m_env.images;
    if (!Prepare([&] { return Draw(words, next); })) return m_env.editor.ReportNoMemory();
    static_cast<CEditPictures&>(m_env.images) = std::move(next);
    Take(std::move(words));
    return true;
}

// --- the commands ---

void CTextArtFlow::OnTextInput() {
    m_strTextInput = m_env.controls.Text(kTextInput);
}

// With the words the frame below them becomes part of the picture for good.
void CTextArtFlow::OnApplyText() {
    if (!m_env.state.m_bImageOpen) return;
    const bool bApplied = Change([&](CWords& words, CEditPictures& next) {
        next.m_bFrameOn = false;
        words.param.nWarpKind = m_env.controls.IsChecked(kRadioMesh) ? kWarpMesh : kWarpProjection;
        Colour(words.param, m_color);
        return RenderTextMask(words, m_strTextInput, m_font);
    });
    if (bApplied) m_guest.SetShowLines(m_env.controls.IsChecked(kCheckLines));
}

// Without a picture nothing is chosen.
void CTextArtFlow::OnCharacter() {
    const auto choice = m_env.fonts.Run(m_font);
    if (!choice || !m_env.state.m_bImageOpen) return;
    const bool bChanged = Change([&](CWords& words, CEditPictures& /*next*/) {
        return RenderTextMask(words, m_strTextInput, *choice);
    });
    if (bChanged) m_font = *choice;
}

void CTextArtFlow::OnTextColor() {
    const auto color = m_env.colors.Run(m_color);
    if (!color) return;
    const auto recolour = [&](CWords& words, CEditPictures& /*next*/) {
        Colour(words.param, *color);
        return true;
    };
    if (m_env.state.m_bImageOpen) {
        if (!Change(recolour)) return;
    } else {
        Colour(m_textParam, *color);
    }
    m_color = *color;
    m_env.panel.Invalidate();
}

void CTextArtFlow::ShowKind() {
    const bool bMesh = m_textParam.nWarpKind == kWarpMesh;
    m_env.controls.Check(kRadioProjection, !bMesh);
    m_env.controls.Check(kRadioMesh, bMesh);
}

// The click has moved the mark already.
void CTextArtFlow::TakeKind(int nWarpKind) {
    CWords words = Words();
    words.param.nWarpKind = nWarpKind;
    if (!m_env.state.m_bImageOpen)
        m_textParam = words.param;
    else if (RunTextArt(std::move(words)))
        m_env.canvas.Invalidate();
    ShowKind();
}

void CTextArtFlow::OnShowLines() {
    m_guest.SetShowLines(m_env.controls.IsChecked(kCheckLines));
    m_env.canvas.Invalidate();
}

// The list's selected picture follows the record.
void CTextArtFlow::ShowEffect() {
    m_list.ReplaceCell(m_nTextEffectShown, PictureOf(m_nTextEffectShown, false));
    m_nTextEffectShown = m_textParam.nTextEffect;
    m_list.ReplaceCell(m_nTextEffectShown, PictureOf(m_nTextEffectShown, true));
    m_list.Select(m_nTextEffectShown);
}

// The selection goes back first: without memory it stays there.
void CTextArtFlow::OnSelChangeTextEffect() {
    const int nEffect = m_list.Selection();
    if (!m_env.state.m_bImageOpen || nEffect < 0 || nEffect >= kTextEffectCount) return;
    m_list.Select(m_nTextEffectShown);
    const bool bChanged = Change([nEffect](CWords& words, CEditPictures& /*next*/) {
        words.param.nTextEffect = nEffect;
        return true;
    });
    if (bChanged) ShowEffect();
}
