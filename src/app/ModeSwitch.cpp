#include "app/ModeSwitch.h"

#include <utility>

#include "resources/Ids.h"
#include "resources/Texts.h"

// The pictures as the new mode has them. What DRAW holds goes along into all but THUM, which leaves the
// working image one stroke behind the canvas.
bool CModeSwitch::MakePictures(EMode mode, CEditPictures& next) const {
    const bool bFetch = m_env.state.IsUp(EMode::Draw) && mode != EMode::Thum;
    if (bFetch && !m_env.draw.MakeSettled(next.m_imgWork)) return false;
    next.ShowWork();
    if (mode == EMode::Thum) return true;
    return next.RebuildDisplay(mode, mode == EMode::Draw ? next.DisplaySize() : next.RuledSize());
}

CCanvasGuest* CModeSwitch::GuestOf(EMode mode) const {
    if (mode == EMode::Draw) return &m_env.draw;
    return mode == EMode::Font ? &m_env.textArt.Guest() : nullptr;
}

bool CModeSwitch::ChangeMode(EMode mode) {
    const CWaitScope wait(m_env.wait);
    CEditPictures next = m_env.images;
    if (m_env.state.m_bImageOpen) {
        if (!Prepare([&] { return MakePictures(mode, next); })) return m_env.editor.ReportNoMemory();
        // Into THUM the float goes with the canvas.
        if (mode == EMode::Thum && !m_env.draw.PrepareDrop()) return false;
    }
    Leave(mode);
    static_cast<CEditPictures&>(m_env.images) = std::move(next);
    m_env.state.m_nMode = mode;
    m_env.canvas.SetGuest(GuestOf(mode));
    if (mode == EMode::Thum)
        EnterThum();
    else if (m_env.state.m_bImageOpen)
        m_env.lines.TellOfEdit();
    m_env.desk.EnterMode();
    m_env.link.ForgetSend();
    m_env.thum.List().ForgetPress();
    if (mode == EMode::Draw) EnterDraw();
    if (mode == EMode::Font) BeginFont();
    if (mode == EMode::Effect) {
        m_env.effects.RestSlider();
        m_env.controls.SetFocus(kEffectList);
    }
    if (mode == EMode::Stick && m_env.state.m_bImageOpen)
        m_env.controls.SetFocus(m_env.images.IsPhoneSize() ? kRadioPhoneSize : kRadioImageSize);
    if (mode != EMode::Thum && !m_env.state.m_bImageOpen) m_env.lines.ShowFileInfo("", EFileInfo::Clear);
    m_env.canvas.OnInitialUpdate();
    return true;
}

// A fill of the file list ends here: the list is read anew on the way back. A preview that waits for CONFIRM
// is dropped: the working image never held it.
void CModeSwitch::Leave(EMode modeNext) {
    m_env.thum.List().StopFill();
    m_env.effects.DropPreview();
    m_env.effects.BlankReadout();
    m_env.textArt.End();
    if (!m_env.state.IsUp(EMode::Draw)) return;
    // A float has gone along into the working image; for THUM, which fetches nothing, it goes with the paper.
    if (modeNext == EMode::Thum) m_env.draw.DropFloat();
    m_env.draw.ForgetFloat();
    m_env.draw.Leave();
}

void CModeSwitch::EnterThum() {
    m_env.lines.SetHelp(kHelpClear);
    m_env.thum.ReturnToFolder();
    m_env.lines.TellOfBrowsing();
}

void CModeSwitch::EnterDraw() {
    m_env.tools.FocusCurrentTool();
    if (!m_env.state.m_bImageOpen) return;
    m_env.tools.ResetZoom();
    m_env.lines.SetHelp(HelpCodeOf(m_env.tools.CurrentTool()));
    m_env.draw.LoadCanvas();
    m_env.tools.EnterMagnifier();
}

void CModeSwitch::BeginFont() {
    m_env.textArt.Begin();
}
