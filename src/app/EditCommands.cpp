#include "app/EditCommands.h"

#include <filesystem>

#include "resources/Ids.h"
#include "resources/Texts.h"

// The base in DRAW is what stands on the canvas, a float merged; the float is over when the command is done.
template <class TCommand>
bool CEditCommands::Run(TCommand command) {
    const CWaitScope wait(m_env.wait);
    const bool bDraw = m_env.state.IsUp(EMode::Draw);
    CxImage imgBase = m_env.images.m_imgWork;
    if (bDraw && !Prepare([&] { return m_env.draw.MakeSettled(imgBase); }))
        return m_env.editor.ReportNoMemory();
    if (!command(imgBase)) return false;
    if (bDraw) m_env.draw.ForgetFloat();
    m_env.draw.AbandonShape();
    return true;
}

void CEditCommands::FocusEffectList() {
    if (m_env.state.IsAtWork(EMode::Effect)) m_env.controls.SetFocus(kEffectList);
}

void CEditCommands::ShowSizeRule() {
    m_env.controls.Check(kRadioImageSize, !m_env.images.IsPhoneSize());
    m_env.controls.Check(kRadioPhoneSize, m_env.images.IsPhoneSize());
}

void CEditCommands::ShowPicture() {
    if (m_env.state.IsUp(EMode::Draw)) return m_env.draw.LoadCanvas();
    m_env.canvas.OnInitialUpdate();
}

template <class TCommand>
bool CEditCommands::Change(TCommand command) {
    if (!m_env.state.m_bImageOpen || !Run(command)) return false;
    FocusEffectList();
    ShowPicture();
    return true;
}

// Behind Undo and Redo.
void CEditCommands::ShowStep() {
    ShowSizeRule();
    if (m_env.state.IsUp(EMode::Draw)) m_env.tools.ReenterCurrentTool();
    if (m_env.state.IsUp(EMode::Font)) m_env.modes.BeginFont();
}

// --- files ---

// The common end of all ways into an edit: EFFECT with no preview.
void CEditCommands::EnterEdit() {
    m_env.textArt.InitTextArt();
    ShowSizeRule();
    GoToMode(EMode::Effect);
}

// On the way from DRAW to EFFECT the canvas is fetched: it must hold the new picture by then.
void CEditCommands::OpenFile(const CFileChoice& choice) {
    if (!m_env.files.Open(choice)) return;
    if (m_env.state.IsUp(EMode::Draw)) m_env.draw.LoadCanvas();
    EnterEdit();
}

void CEditCommands::OnOpen() {
    m_env.draw.AbandonShape();
    const auto choice = m_env.files.ChooseOpen();
    if (!choice) return;
    m_env.lines.TellOfEdit();
    const CWaitScope wait(m_env.wait);
    if (!m_env.draw.PrepareDrop()) return;
    m_env.draw.DropFloat();
    OpenFile(*choice);
}

void CEditCommands::OpenFileByName(const std::string& strFolder, const std::string& strName) {
    const CWaitScope wait(m_env.wait);
    m_env.lines.TellOfEdit();
    std::string strPath = strFolder;
    if (strPath.empty() || strPath.back() != m_env.folders.Separator()) strPath += m_env.folders.Separator();
    OpenFile({strPath + strName, strName});
}

void CEditCommands::OnNew() {
    const CWaitScope wait(m_env.wait);
    const bool bWasOpen = m_env.state.m_bImageOpen;
    if (!m_env.files.MakePage(m_env.state.m_nMode)) return;
    m_env.lines.TellOfEdit();
    m_env.draw.ForgetFloat();
    m_env.draw.AbandonShape();
    m_env.draw.ForgetSelection();
    m_env.events.Tell(EEditEvent::SelectionGone);
    if (!bWasOpen || m_env.state.IsUp(EMode::Thum)) {
        // The page has never been on the canvas: there is no paint to fetch from it.
        if (m_env.state.IsUp(EMode::Draw)) m_env.draw.LoadCanvas();
        EnterEdit();
    }
    if (m_env.state.IsUp(EMode::Font)) m_env.textArt.InitTextArt();
    ShowPicture();
    if (m_env.state.IsUp(EMode::Font)) m_env.modes.BeginFont();
    m_env.files.NamePage();
}

void CEditCommands::OnSave() {
    if (!m_env.state.m_bImageOpen) return;
    m_env.draw.AbandonShape();
    const auto choice = m_env.files.ChooseSave();
    if (!choice) return;
    const bool bDraw = m_env.state.IsUp(EMode::Draw);
    CxImage imgSettled;
    const bool bSaved = Run([&](const CxImage& imgBase) {
        imgSettled = imgBase;
        return m_env.files.Save(*choice, bDraw ? imgBase : m_env.images.m_imgDisplay);
    });
    if (!bSaved) return;
    if (bDraw) {
        m_env.images.TakeWork(imgSettled);
        m_env.draw.LoadCanvas();
    }
    m_env.thum.FollowFolder(std::filesystem::path(choice->strPath).parent_path().string());
    FocusEffectList();
}

void CEditCommands::OnPrint() {
    m_env.draw.AbandonShape();
    if (SettlePicture()) m_env.print.OnPrint();
}

bool CEditCommands::SettlePicture() {
    if (!m_env.state.IsAtWork(EMode::Draw)) return true;
    if (!m_env.draw.PrepareDrop()) return false;
    m_env.draw.DropFloat();
    m_env.draw.FetchCanvas();
    return true;
}

// --- history ---

void CEditCommands::OnUndo() {
    const EMode mode = m_env.state.m_nMode;
    if (m_env.images.m_stackUndo.IsEmpty()) return;
    if (Change([&](const CxImage& imgBase) { return m_env.editor.Undo(imgBase, mode); })) ShowStep();
}

void CEditCommands::OnRedo() {
    const EMode mode = m_env.state.m_nMode;
    if (m_env.images.m_stackRedo.IsEmpty()) return;
    if (Change([&](const CxImage& imgBase) { return m_env.editor.Redo(imgBase, mode); })) ShowStep();
}

// Its step keeps the picture without the float.
void CEditCommands::OnReset() {
    const EMode mode = m_env.state.m_nMode;
    const bool bReset = Change([&](const CxImage& imgBase) {
        return m_env.editor.Reset(mode == EMode::Draw ? m_env.draw.Committed() : imgBase, mode);
    });
    if (!bReset) return;
    if (mode == EMode::Draw) {
        m_env.tools.ResetZoom();
        m_env.tools.EnterMagnifier();
        m_env.tools.FocusCurrentTool();
    }
    if (mode == EMode::Font) m_env.modes.BeginFont();
}

// The click has moved the mark already.
void CEditCommands::OnSizeRule(ESizeRule rule) {
    const bool bChanged = m_env.editor.SetSizeRule(rule);
    ShowSizeRule();
    if (bChanged && m_env.state.m_bImageOpen) m_env.canvas.OnInitialUpdate();
}

// --- geometry ---

void CEditCommands::OnSize() {
    if (!m_env.state.m_bImageOpen || !m_env.geometry.MaySize()) return;
    const auto size = m_env.geometry.ChooseSize(m_env.link.PhoneSizes());
    if (!size) return FocusEffectList();
    Change([&](const CxImage& imgBase) { return m_env.geometry.ChangeSize(imgBase, *size); });
}

bool CEditCommands::ResizeForPhone(CSize size) {
    const bool bChanged =
        Change([&](const CxImage& imgBase) { return m_env.geometry.SetSize(imgBase, size); });
    if (bChanged && m_env.state.IsUp(EMode::Font)) m_env.textArt.DrawAnew();
    return bChanged;
}

void CEditCommands::OnLarge() {
    Change([&](const CxImage& imgBase) { return m_env.geometry.ZoomIn(imgBase); });
}

void CEditCommands::OnSmall() {
    Change([&](const CxImage& imgBase) { return m_env.geometry.ZoomOut(imgBase); });
}

void CEditCommands::OnActual() {
    Change([&](const CxImage& imgBase) { return m_env.geometry.ZoomToActual(imgBase); });
}

void CEditCommands::OnFlip(EFlip flip) {
    const bool bChanged = Change([&](const CxImage& imgBase) { return m_env.geometry.Flip(imgBase, flip); });
    if (bChanged && m_env.state.IsUp(EMode::Draw)) m_env.tools.FocusCurrentTool();
}

void CEditCommands::OnTurn(ETurn turn) {
    Change([&](const CxImage& imgBase) { return m_env.geometry.Turn(imgBase, turn); });
}

// --- modes ---

void CEditCommands::OnConfirm() {
    if (m_env.effects.OnConfirm()) m_env.canvas.Invalidate();
}

void CEditCommands::OnCancel() {
    if (m_env.effects.OnCancel()) m_env.canvas.Invalidate();
}

void CEditCommands::OnTab(EMode mode) {
    GoToMode(mode);
    if (m_env.state.IsAtWork(EMode::Font)) m_env.lines.SetHelp(kHelpTextArt);
}

void CEditCommands::GoToMode(EMode mode) {
    if (m_env.modes.ChangeMode(mode)) m_env.window.Invalidate();
}

// An option of the current tool, or the end of an open shape. Either way the working image catches up with
// the canvas.
void CEditCommands::OnPaintPress(CPoint pt) {
    if (!m_env.tools.OnPanelPress(pt)) m_env.draw.AbandonShape();
    if (m_env.state.m_bImageOpen) m_env.draw.FetchCanvas();
}
