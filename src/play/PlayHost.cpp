#include "play/PlayHost.h"

#include <algorithm>

#include "play/ScriptedPlatform.h"
#include "window/DialogKeys.h"
#include "window/Marks.h"
#include "window/PictureGridHand.h"

namespace {

// Paints that one event may cause before it counts as never ending.
constexpr int kMostPaints = 100;

bool IsPushed(EControlKind kind) {
    return kind == EControlKind::Button || kind == EControlKind::BitmapButton ||
           kind == EControlKind::Radio || kind == EControlKind::Check;
}

bool IsList(EControlKind kind) {
    return kind == EControlKind::PictureList || kind == EControlKind::Combo;
}

// Spots that the dialog draws on itself: nothing stands there.
bool IsGround(EControlKind kind) {
    return kind == EControlKind::Group || kind == EControlKind::Place;
}

// The first nMost characters of a UTF-8 text; all of it for 0.
std::string Shorten(const std::string& strText, int nMost) {
    if (nMost <= 0) return strText;
    std::size_t n = 0;
    for (int nLeft = nMost; n < strText.size(); ++n) {
        const bool bStarts = (static_cast<unsigned char>(strText[n]) & 0xC0U) != 0x80U;
        if (bStarts && nLeft-- == 0) break;
    }
    return strText.substr(0, n);
}

std::string At(CPoint pt) {
    return std::string("(") + std::to_string(pt.x) + "," + std::to_string(pt.y) + ")";
}

unsigned FlagOf(EMouseButton button) {
    if (button == EMouseButton::None) return 0;
    return button == EMouseButton::Left ? kMouseLeftDown : kMouseRightDown;
}

}  // namespace

CPlayHost::CPlayHost(CScriptedPlatform& platform, CDialog& dialog, CBitmaps* pBitmaps)
    : m_platform(platform), m_dialog(dialog) {
    m_dialog.Client().SetUp(pBitmaps, 1);
    m_dialog.Attach(this);
    for (const CControl& control : m_dialog.Controls().All()) {
        if (CIconListModel* pIcons = IconsOf(control.nId); pIcons != nullptr) {
            pIcons->Attach(this);
            m_mapIcons.try_emplace(pIcons, *pIcons);
        }
        CCheckTableModel* pTable =
            control.kind == EControlKind::CheckTable ? m_dialog.TableOf(control.nId) : nullptr;
        if (pTable != nullptr) {
            pTable->Attach(this);
            m_mapTables.try_emplace(control.nId, m_dialog, control.nId, *pTable);
        }
        CScrollView* pView = ViewOf(control.nId);
        if (pView == nullptr) continue;
        pView->Attach(this);
        m_arrViews.push_back(pView);
    }
    m_platform.Watch(*this);
}

CPlayHost::~CPlayHost() {
    if (m_bInit) m_dialog.OnDestroy();
    m_platform.Forget(*this);
    m_platform.Timers().KillAllOf(m_dialog);
    for (CScrollView* pView : m_arrViews) {
        m_platform.Timers().KillAllOf(*pView);
        pView->Attach(nullptr);
    }
    for (const auto& [pIcons, hand] : m_mapIcons) pIcons->Attach(nullptr);
    for (const auto& [nId, hand] : m_mapTables) m_dialog.TableOf(nId)->Attach(nullptr);
    m_dialog.Attach(nullptr);
}

void CPlayHost::Init() {
    m_bInit = true;
    m_dialog.OnInitDialog();
    Pump();
}

CScrollView* CPlayHost::ViewOf(int nId) {
    const CControl* pControl = m_dialog.Controls().Find(nId);
    return pControl != nullptr && pControl->kind == EControlKind::View ? m_dialog.ViewOf(nId) : nullptr;
}

CIconListModel* CPlayHost::IconsOf(int nId) {
    const CControl* pControl = m_dialog.Controls().Find(nId);
    return pControl != nullptr && pControl->kind == EControlKind::IconList ? m_dialog.IconsOf(nId) : nullptr;
}

bool CPlayHost::Pump() {
    for (int nRound = 0; nRound < kMostPaints; ++nRound) {
        bool bPainted = m_dialog.WantsPaint();
        m_dialog.Paint();
        for (const CControl& control : m_dialog.Controls().All()) {
            CScrollView* pView = control.bShown ? ViewOf(control.nId) : nullptr;
            if (pView == nullptr || !pView->WantsPaint()) continue;
            pView->Paint();
            bPainted = true;
        }
        if (!bPainted) return true;
        ++m_nPaints;
    }
    return false;
}

std::string CPlayHost::Done() {
    return Pump() ? std::string{} : "the window never stops painting";
}

// The control, if the user can reach it.
std::string CPlayHost::Reach(int nId, const CControl*& pControl) const {
    pControl = m_dialog.Controls().Find(nId);
    const std::string strId = std::to_string(nId);
    if (pControl == nullptr) return "there is no control " + strId;
    if (!pControl->bShown) return "control " + strId + " is hidden";
    if (!pControl->bEnabled) return "control " + strId + " is disabled";
    return {};
}

void CPlayHost::TakeFocus(int nId) {
    const CControl* pBefore = m_dialog.Controls().Find(m_dialog.Controls().Focus());
    if (pBefore != nullptr && pBefore->kind == EControlKind::Edit && pBefore->nId != nId)
        m_dialog.OnNotify(pBefore->nId, ENotice::TextDone);
    m_dialog.Controls().SetFocus(nId);
}

std::string CPlayHost::Click(int nId) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    if (!IsPushed(pControl->kind) && pControl->kind != EControlKind::BitmapLabel)
        return std::string("control ") + std::to_string(nId) + " is nothing to click";
    if (IsPushed(pControl->kind)) TakeFocus(nId);
    ClickMark(m_dialog.Controls(), nId);
    m_dialog.OnCommand(nId);
    return Done();
}

std::string CPlayHost::NoRow(int nId, int nRow, int nRows) {
    return std::string("list ") + std::to_string(nId) + " has no row " + std::to_string(nRow) + ", only " +
           std::to_string(nRows) + " from 0 on";
}

std::string CPlayHost::SelectRow(int nId, int nRow) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    if (pControl->kind == EControlKind::IconList) return ClickIcon(nId, nRow);
    if (pControl->kind == EControlKind::PictureGrid) return ClickGrid(nId, nRow);
    if (pControl->kind == EControlKind::TextList) return ClickText(nId, nRow, false);
    if (pControl->kind == EControlKind::CheckTable) return ClickTable(nId, nRow, ETableClick::Row);
    if (!IsList(pControl->kind)) return std::string("control ") + std::to_string(nId) + " has no rows";
    const int nRows = static_cast<int>(pControl->arrItems.size());
    if (nRow < 0 || nRow >= nRows) return NoRow(nId, nRow, nRows);
    TakeFocus(nId);
    if (pControl->nSel != nRow) {
        m_dialog.Controls().Select(nId, nRow);
        m_dialog.OnNotify(nId, ENotice::SelectionChanged);
    }
    if (pControl->kind != EControlKind::Combo) m_dialog.OnNotify(nId, ENotice::Clicked);
    return Done();
}

std::string CPlayHost::ClickGrid(int nId, int nItem) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    const int nItems = static_cast<int>(pControl->arrItems.size());
    if (pControl->kind != EControlKind::PictureGrid || nItem < -1 || nItem >= nItems)
        return std::string("grid ") + std::to_string(nId) + " has no item " + std::to_string(nItem);
    TakeFocus(nId);
    CPictureGridHand hand(m_dialog, nId);
    if (nItem >= 0) hand.BringIntoSight(nItem);
    hand.OnPress(nItem);
    hand.OnRelease(nItem);
    return Done();
}

std::string CPlayHost::MoveSlider(int nId, int nPos) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    if (pControl->kind != EControlKind::Slider)
        return std::string("control ") + std::to_string(nId) + " is no slider";
    if (nPos < pControl->nMin || nPos > pControl->nMax)
        return std::string("the slider goes from ") + std::to_string(pControl->nMin) + " to " +
               std::to_string(pControl->nMax);
    TakeFocus(nId);
    if (pControl->nPos != nPos) {
        m_dialog.Controls().SetPosition(nId, nPos);
        m_dialog.OnNotify(nId, ENotice::Scrolled);
    }
    return Done();
}

std::string CPlayHost::Type(int nId, const std::string& strText) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    if (pControl->kind != EControlKind::Edit)
        return std::string("control ") + std::to_string(nId) + " takes no text";
    TakeFocus(nId);
    const std::string strShort = Shorten(strText, pControl->nMaxText);
    if (pControl->strText != strShort) {
        m_dialog.Controls().SetText(nId, strShort);
        m_dialog.OnNotify(nId, ENotice::TextChanged);
    }
    return Done();
}

std::string CPlayHost::ScrollView(int nId, CPoint pt) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    CScrollView* pView = ViewOf(nId);
    if (pView == nullptr) return std::string("control ") + std::to_string(nId) + " is no view";
    const CPoint ptLimit = pView->ScrollLimit();
    if (pt.x < 0 || pt.y < 0 || pt.x > ptLimit.x || pt.y > ptLimit.y)
        return "the view scrolls no further than " + At(ptLimit);
    pView->ScrollTo(pt);
    return Done();
}

std::string CPlayHost::Key(const CKeyEvent& event) {
    const bool bSwallowed = m_dialog.OnKey(event);
    if (!bSwallowed) KeyToControl(event);
    return Done();
}

void CPlayHost::KeyToControl(const CKeyEvent& event) {
    const CControl* pControl = m_dialog.Controls().Find(m_dialog.Controls().Focus());
    const bool bGrid = pControl != nullptr && pControl->kind == EControlKind::PictureGrid;
    if (bGrid && CPictureGridHand(m_dialog, pControl->nId).OnKey(event.nKey)) return;
    if (pControl != nullptr && KeyToRows(*pControl, event.nKey)) return;
    CIconListModel* pIcons = IconsOf(m_dialog.Controls().Focus());
    if (pIcons != nullptr && HandOf(*pIcons).OnKey(event)) return;
    DoDialogKey(m_dialog, event);
}

// A button that is down already can go down again: its release was lost on a dialog that came up.
std::string CPlayHost::CheckButton(EMouseAction action, EMouseButton button) const {
    if (action != EMouseAction::Move && button == EMouseButton::None) return "which mouse button?";
    if (action == EMouseAction::Release && (m_nHeld & FlagOf(button)) == 0)
        return "that mouse button is not down";
    return {};
}

CMouseEvent CPlayHost::MakeEvent(EMouseAction action, EMouseButton button, CPoint pt, unsigned nKeys) {
    if (action == EMouseAction::Release)
        m_nHeld &= ~FlagOf(button);
    else if (action != EMouseAction::Move)
        m_nHeld |= FlagOf(button);
    return {action, action == EMouseAction::Move ? EMouseButton::None : button, pt, m_nHeld | nKeys};
}

const CControl* CPlayHost::ControlAt(CPoint pt) const {
    const CControl* pFound = nullptr;
    for (const CControl& control : m_dialog.Controls().All())
        if (control.bShown && !IsGround(control.kind) && control.rcPlace.Contains(pt)) pFound = &control;
    return pFound;
}

std::string CPlayHost::MouseOnView(int nId, EMouseAction action, EMouseButton button, CPoint pt,
                                   unsigned nKeys) {
    const CControl* pControl = nullptr;
    if (std::string strWhy = Reach(nId, pControl); !strWhy.empty()) return strWhy;
    CScrollView* pView = ViewOf(nId);
    if (pView == nullptr) return std::string("control ") + std::to_string(nId) + " is no view";
    const CSize size = pView->ClientSize();
    if (!CRect::FromPlace(0, 0, size.cx, size.cy).Contains(pt))
        return At(pt) + " is outside of the view, which is " + std::to_string(size.cx) + " by " +
               std::to_string(size.cy);
    if (std::string strWhy = CheckButton(action, button); !strWhy.empty()) return strWhy;
    const CMouseEvent event = MakeEvent(action, button, pt, nKeys);
    if (action == EMouseAction::Move) {
        m_dialog.OnHover(nId, (event.nFlags & kMouseLeftDown) != 0);
        Pump();
    }
    if (action == EMouseAction::Press) TakeFocus(nId);
    pView->OnMouse(event);
    return Done();
}

std::string CPlayHost::MouseOnWindow(EMouseAction action, EMouseButton button, CPoint pt, unsigned nKeys) {
    const CSize size = m_dialog.Template().sizeClient;
    if (!CRect::FromPlace(0, 0, size.cx, size.cy).Contains(pt)) return At(pt) + " is outside of the window";
    if (std::string strWhy = CheckButton(action, button); !strWhy.empty()) return strWhy;
    const CControl* pControl = ControlAt(pt);
    const bool bOnControl = pControl != nullptr && pControl->kind != EControlKind::Static;
    if (action == EMouseAction::Move) {
        CScrollView* pView = pControl == nullptr ? nullptr : ViewOf(pControl->nId);
        if (pView != nullptr) {
            const CPoint ptView{pt.x - pControl->rcPlace.left, pt.y - pControl->rcPlace.top};
            const CSize sizeView = pView->ClientSize();
            if (CRect::FromPlace(0, 0, sizeView.cx, sizeView.cy).Contains(ptView))
                return MouseOnView(pControl->nId, action, button, ptView, nKeys);
        }
        m_dialog.OnHover(pControl == nullptr ? 0 : pControl->nId, ((m_nHeld | nKeys) & kMouseLeftDown) != 0);
        Pump();
        if (bOnControl) return Done();
    } else if (bOnControl) {
        return At(pt) + " is on control " + std::to_string(pControl->nId);
    }
    m_dialog.OnMouse(MakeEvent(action, button, pt, nKeys));
    return Done();
}
