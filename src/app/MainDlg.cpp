#include "app/MainDlg.h"

#include "browse/PreviewFileDlg.h"
#include "resources/Ids.h"
#include "resources/MainDialog.h"
#include "resources/Texts.h"

CMainDlg::CMainDlg(const CPlatform& platform)
    : CDialog(kMainDialog),
      m_platform(platform),
      m_canvas({m_state, m_images, *this}),
      m_draw({m_images, m_toolState, m_canvas, m_editor, m_desk, *this, platform.timers, m_random}),
      m_desk({m_state, m_images, m_draw.Selection(), Controls(), [this] { return m_link.IsConnected(); }}),
      m_tools(
          {m_state, m_toolState, Controls(), m_draw, platform.colors, platform.text, *this, m_desk, *this}),
      m_editor({m_images, m_desk, platform.boxes}),
      m_clipboard({m_images, Controls(), m_draw, m_toolState, m_editor, m_desk, platform.boxes, platform.wait,
                   platform.clipboard}),
      m_files({m_state, m_images, platform.boxes, platform.files, *this, m_editor}),
      m_geometry({m_state, m_images, platform.boxes, platform.modals, m_editor}),
      m_lines(m_state, m_images, Controls(), m_desk),
      m_skin(m_state, Controls(), platform.timers, *this, *this),
      m_thum(platform.drives, {Controls(), platform.folders, platform.shell, platform.boxes, platform.timers,
                               platform.wait, platform.bitmaps, *this, m_desk}),
      m_effects({m_state, m_images, Controls(), *this, m_desk, platform.wait, m_editor, m_random}),
      m_frames({m_state, m_images, Controls(), m_canvas, m_editor, platform.boxes, platform.wait,
                platform.libraries}),
      m_textArt({m_state, m_images, Controls(), m_canvas, *this, m_editor, platform.colors, platform.fonts,
                 platform.text, platform.wait}),
      m_print({m_images,
               platform.modals,
               {platform.boxes, platform.printers, platform.clock, platform.text, platform.wait}}),
      m_link({{m_state, m_desk, platform.boxes, platform.modals, platform.timers, platform.wait,
               platform.files, platform.folders, platform.menus, platform.libraries, platform.ports},
              m_images,
              m_thum,
              *this}),
      m_modes({m_state, m_images, Controls(), m_desk, m_canvas, m_draw, m_tools, m_editor, m_lines, m_thum,
               m_effects, m_textArt, m_link, platform.wait}),
      m_commands({m_state, m_images,   Controls(), m_canvas,         m_draw,        m_tools,   m_editor,
                  m_files, m_geometry, m_modes,    m_lines,          m_thum,        m_effects, m_textArt,
                  m_print, m_link,     m_desk,     platform.folders, platform.wait, *this}) {}

void CMainDlg::OnInitDialog() {
    Controls().Check(kCheckLines, true);
    Controls().Check(kRadioImageSize, true);
    m_effects.Init();
    m_frames.Init();
    m_textArt.Init();
    m_thum.Build();
    m_thum.ShowCurrentFolder();
    m_commands.GoToMode(EMode::Thum);
}

void CMainDlg::OnDestroy() {
    m_thum.List().StopFill();
    m_images.Release();
    m_state.m_bImageOpen = false;
    for (const int nTimer : {CMainSkin::kTimerTopHint, CMainSkin::kTimerTabHint})
        m_platform.timers.KillTimer(*this, nTimer);
    m_draw.Leave();
}

// What the rooms have on their panels comes over the skin.
void CMainDlg::OnPaint(CClientArea& client) {
    m_skin.Paint(client);
    if (m_state.IsUp(EMode::Effect)) m_effects.PaintPreview(client);
    if (m_state.IsUp(EMode::Draw)) m_tools.OnWindowPainted();
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
    m_commands.OpenFileByName(strFolder, strName);
}

std::unique_ptr<CFileDialogPanel> CMainDlg::MakePreview() {
    return std::make_unique<CPreviewFileDlg>();
}

void CMainDlg::OnCanvasPainted() {
    if (!m_state.IsUp(EMode::Thum)) m_lines.ShowEditInfo();
}

void CMainDlg::ToggleLines() {
    Controls().Check(kCheckLines, !Controls().IsChecked(kCheckLines));
    m_textArt.OnShowLines();
}
