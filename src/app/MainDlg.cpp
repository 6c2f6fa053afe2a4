#include "app/MainDlg.h"

#include "browse/PreviewFileDlg.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "resources/Texts.h"
#include "resources/ToolTable.h"

CMainDlg::CMainDlg(const CPlatform& platform)
    : CDialog(kMainDialog),
      m_platform(platform),
      m_canvas({m_state, m_images, m_toolState, *this, *this, platform.timers, m_random}),
      m_tools({m_state, m_toolState, Controls(), m_canvas, platform.colors, platform.text, *this}),
      m_editor({m_state, m_images, Controls(), m_canvas, m_tools, *this, platform.boxes, platform.wait}),
      m_clipboard({m_state, m_images, Controls(), m_canvas, m_toolState, m_editor, platform.boxes,
                   platform.wait, platform.clipboard}),
      m_files({m_state, m_images, Controls(), m_canvas, m_tools, *this, platform.boxes, platform.wait,
               platform.files, platform.folders, *this, m_editor}),
      m_geometry({m_state, m_images, m_canvas, m_tools, *this, platform.boxes, platform.modals, platform.wait,
                  m_editor}),
      m_lines(m_state, m_images, Controls()),
      m_skin(m_state, Controls(), platform.timers, *this, *this),
      m_thum(platform.drives, {Controls(), platform.folders, platform.shell, platform.boxes, platform.timers,
                               platform.wait, platform.bitmaps, *this, *this}),
      m_effects({m_state, m_images, Controls(), m_canvas, *this, *this, platform.wait, platform.boxes,
                 m_editor, m_random}),
      m_modes({m_state, m_images, Controls(), m_canvas, m_tools, m_editor, m_lines, m_thum, m_effects,
               m_textArt, m_link, platform.wait}) {}

void CMainDlg::OnInitDialog() {
    Controls().Check(kCheckLines, true);
    Controls().Check(kRadioProjection, true);
    Controls().Check(kRadioImageSize, true);
    m_effects.Init();
    m_thum.Build();
    m_thum.ShowCurrentFolder();
    GoToMode(kModeThum);
}

void CMainDlg::OnDestroy() {
    m_thum.List().StopFill();
    m_images.Release();
    m_images.m_stackUndo.Clear();
    m_images.m_stackRedo.Clear();
    m_images.m_pImgFrameTemp.reset();
    m_images.m_pImgNoFrame.reset();
    m_state.m_bImageOpen = false;
    for (const int nTimer : {0, 1}) m_platform.timers.KillTimer(*this, nTimer);
    m_platform.timers.KillTimer(m_canvas, CPaintEnvironment::kSprayTimer);
}

void CMainDlg::OnPaint(CClientArea& client) {
    m_skin.Paint(client);
}

void CMainDlg::Tell(EEditEvent event) {
    if (event == EEditEvent::FillBegun) return Controls().Show(kProgress, m_state.m_bThumbMode);
    if (event == EEditEvent::FillEnded) return Controls().Show(kProgress, false);
    if (event == EEditEvent::FileShown) Controls().Show(kProgress, false);
    Controls().Show(kCanvas, false);
    Controls().Show(kFileList, true);
}

CTreeModel* CMainDlg::TreeOf(int nId) {
    return nId == kFolderTree ? &m_thum.Tree().Model() : nullptr;
}

CIconListModel* CMainDlg::IconsOf(int nId) {
    return nId == kFileList ? &m_thum.List().Model() : nullptr;
}

CScrollView* CMainDlg::ViewOf(int nId) {
    return nId == kCanvas ? &m_canvas : nullptr;
}

void CMainDlg::OpenFileByName(const std::string& strFolder, const std::string& strName) {
    m_files.OpenFileByName(strFolder, strName);
}

std::unique_ptr<CFileDialogPanel> CMainDlg::MakePreview() {
    return std::make_unique<CPreviewFileDlg>();
}

void CMainDlg::GoToMode(int nMode) {
    m_state.m_nMode = nMode;
    m_modes.ChangeMode(nMode);
    m_modes.UpdateTabs();
    Invalidate();
}

void CMainDlg::OnTabClick(int nMode) {
    GoToMode(nMode);
    if (nMode == kModeFont && m_state.m_bImageOpen) m_lines.SetHelp(kHelpTextArt);
}

void CMainDlg::OnCanvasPainted() {
    if (m_state.m_nMode == kModeThum) return;
    m_lines.ShowSizeInfo();
    m_lines.ShowNameInfo();
    m_lines.ShowDepthInfo();
}

void CMainDlg::RepaintPreview() {
    m_skin.PaintPreviewBox(Client(), CEffectFlow::kPreviewBox);
    Present();
}

void CMainDlg::OnPrint() {
    m_canvas.AbandonShape();
    if (m_state.m_bDrawMode) m_editor.TransferCanvas(true);
    m_print.OnPrint();
}

void CMainDlg::ToggleLines() {
    Controls().Check(kCheckLines, !Controls().IsChecked(kCheckLines));
    m_textArt.OnShowLines();
}
