// Where mouse and keys go that no control takes.

#include "app/MainDlg.h"
#include "resources/Ids.h"
#include "resources/Templates.h"
#include "resources/Texts.h"
#include "resources/ToolTable.h"

namespace {

constexpr CRect kVersionPlate{38, 676, 50, 690};

}  // namespace

void CMainDlg::OnMouse(const CMouseEvent& event) {
    if (event.action == EMouseAction::Press && event.button == EMouseButton::Left) {
        if (kVersionPlate.Contains(event.pt))
            m_platform.boxes.Show({kTextBuildDate, kTitleBuildDate, EBoxIcon::None, EBoxButtons::Ok});
        if (m_state.IsUp(EMode::Draw)) m_commands.OnPaintPress(event.pt);
        return;
    }
    if (!m_state.IsUp(EMode::Draw)) return;
    if (event.action == EMouseAction::Move) {
        if (const int nHelp = m_tools.HelpAt(event.pt); nHelp != 0) m_lines.SetHelp(nHelp);
    }
    if (event.action == EMouseAction::Release && event.button == EMouseButton::Right) m_draw.AbandonShape();
    if (event.action == EMouseAction::DoubleClick) m_tools.OnWellDoubleClick(event);
}

void CMainDlg::OnHover(int nIdControl, bool bLeftDown) {
    m_skin.OnHover(Client(), nIdControl, bLeftDown);
    Present();
    if (!m_state.IsUp(EMode::Draw)) return;
    if (const auto tool = FindTool(nIdControl))
        m_lines.SetHelp(HelpCodeOf(*tool));
    else
        m_lines.SetHelp(nIdControl == kPaintColor ? kHelpPaintColor : kHelpClear);
}

void CMainDlg::OnTimer(int nTimer) {
    m_skin.OnTimer(Client(), nTimer);
    Present();
}

bool CMainDlg::OnKey(const CKeyEvent& event) {
    // Enter in the file list is the list's own.
    if (event.nKey == kKeyEnter && Controls().Focus() == kFileList) return false;
    if (event.nKey == kKeyEscape || event.nKey == kKeyEnter) return true;
    return event.bCtrl && m_state.m_bImageOpen && OnCtrlKey(event.nKey);
}

// These look at flags and counts, not at whether the buttons are on. False for a key that is left to the
// control.
bool CMainDlg::OnCtrlKey(int nKey) {
    const bool bDraw = m_state.IsUp(EMode::Draw);
    switch (nKey) {
        case 'C':
            if (bDraw) m_clipboard.OnCopy();
            return bDraw;
        case 'V':
            if (bDraw) m_clipboard.OnPaste();
            return bDraw;
        case 'X':
            if (bDraw) m_clipboard.OnCut();
            return bDraw;
        case 'Y':
            if (m_images.m_stackRedo.IsEmpty()) return false;
            m_commands.OnRedo();
            return true;
        case 'Z':
            if (m_images.m_stackUndo.IsEmpty()) return false;
            m_commands.OnUndo();
            return true;
        default:
            return false;
    }
}

// No menu over words, nor while an effect with a level is selected, nor over a picture in the phone's size.
void CMainDlg::OnPictureMenu() {
    if (m_state.IsUp(EMode::Font)) return;
    if (m_state.IsUp(EMode::Stick) ? m_images.IsPhoneSize() : !m_effects.HasNoLevel()) return;
    std::vector<CMenuItem> arrItems;
    for (const CMenuItemTemplate& item : kPictureMenu) {
        const bool bEmpty = (item.nId == kMenuUndo && m_images.m_stackUndo.IsEmpty()) ||
                            (item.nId == kMenuRedo && m_images.m_stackRedo.IsEmpty());
        arrItems.push_back({item.nId, item.szText, !bEmpty});
    }
    const int nId = m_platform.menus.Track(arrItems);
    if (nId != 0) OnCommand(nId);
}
