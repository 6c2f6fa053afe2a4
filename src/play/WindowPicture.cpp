#include "play/WindowPicture.h"

#include <algorithm>

#include "browse/Thumbnail.h"
#include "controls/SkinSlider.h"
#include "image/Image.h"
#include "resources/Grounds.h"
#include "window/CheckTableHand.h"
#include "window/IconListModel.h"
#include "window/TextListHand.h"
#include "window/TreeModel.h"

namespace {

constexpr CColor kBarGround{95, 107, 112};
constexpr CColor kPaper{245, 247, 244};
constexpr CColor kFace{214, 220, 214};
constexpr CColor kRim{64, 74, 78};
constexpr CColor kMark{232, 143, 54};
constexpr CColor kInk{40, 46, 48};
// The list of icons: cells in rows from the left, each with its name below.
constexpr CSize kCellPitch{130, 150};
constexpr int kNameHeight = 12;
// The tree: one item a row, each level further in.
constexpr int kTreeRow = 16;
constexpr int kTreeIndent = 19;
constexpr int kCharacter = 6;

// The first row that is seen of a list: its first, or such that the last one seen is the selected one.
int FirstInSight(int nSel, int nRows) {
    return std::max(0, nSel - nRows + 1);
}

CRect InsideOf(const CControl& control) {
    const CRect& rc = control.rcPlace;
    return HasBorder(control) ? CRect{rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1} : rc;
}

class CComposer {
  public:
    CComposer(CPlayHost& host, CBitmaps* pBitmaps)
        : m_host(host), m_pBitmaps(pBitmaps), m_surface(host.Dialog().Client().Surface()) {}

    CSurface Compose() {
        for (const CControl& control : m_host.Dialog().Controls().All())
            if (control.bShown) Draw(control);
        return std::move(m_surface);
    }

  private:
    void Draw(const CControl& control);
    void DrawButton(const CControl& control);
    void DrawMark(const CControl& control);
    void DrawCheck(const CRect& rc, bool bChecked);
    void DrawRows(const CControl& control);
    void DrawGrid(const CControl& control);
    void DrawSlider(const CControl& control);
    void DrawShare(const CControl& control);
    void DrawView(const CControl& control);
    void DrawIcons(const CControl& control);
    void DrawPaper(const CControl& control) {
        m_surface.FillRect(control.rcPlace, kPaper);
        if (HasBorder(control)) m_surface.FrameRect(control.rcPlace, kRim);
    }
    void DrawTexts(const CControl& control);
    void DrawTable(const CControl& control);
    void DrawTableRow(const CControl& control, const CCheckTableModel::CRow& row, const CRect& rcRow,
                      int nBox, bool bCurrent);
    void DrawTree(const CControl& control);
    void DrawBranch(const CRect& rcTree, const CTreeModel& tree, CTreeItem parent, CPoint& pt);
    void DrawName(const CRect& rcClip, const std::string& strName, CPoint pt, bool bSelected);
    void DrawBar(const CRect& rcClip, int nWidth, CPoint pt, bool bSelected);
    bool DrawBitmap(const std::string& strName, const CControl& control);
    void DrawBox(const CRect& rc, CColor color) {
        m_surface.FillRect(rc, color);
        m_surface.FrameRect(rc, kRim);
    }

    CPlayHost& m_host;
    CBitmaps* m_pBitmaps;
    CSurface m_surface;
};

bool CComposer::DrawBitmap(const std::string& strName, const CControl& control) {
    const CxImage* pImage = m_pBitmaps == nullptr ? nullptr : m_pBitmaps->Find(strName, 1);
    if (pImage == nullptr) return false;
    m_surface.DrawPart(pImage->Pixels(),
                       CRect::FromPlace(0, 0, control.rcPlace.Width(), control.rcPlace.Height()),
                       control.rcPlace.left, control.rcPlace.top);
    return true;
}

// A state without a picture shows the normal one.
void CComposer::DrawButton(const CControl& control) {
    std::string strRoot = control.strCaption;
    std::transform(strRoot.begin(), strRoot.end(), strRoot.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    const bool bFocus = m_host.Dialog().Controls().Focus() == control.nId;
    const char cState = !control.bEnabled ? 'X' : bFocus ? 'F' : 'U';
    if (!DrawBitmap(strRoot + cState, control)) DrawBitmap(strRoot + 'U', control);
}

void CComposer::DrawMark(const CControl& control) {
    const int nSide = std::min(control.rcPlace.Width(), control.rcPlace.Height());
    DrawCheck(CRect::FromPlace(control.rcPlace.left, control.rcPlace.top, nSide, nSide), control.bChecked);
}

void CComposer::DrawCheck(const CRect& rc, bool bChecked) {
    DrawBox(rc, kPaper);
    if (bChecked) m_surface.FillRect({rc.left + 4, rc.top + 4, rc.right - 4, rc.bottom - 4}, kMark);
}

// The rows of a list of pictures from the first one on, or the last of them the selected one.
void CComposer::DrawRows(const CControl& control) {
    CRect rc = control.rcPlace;
    m_surface.FillRect(rc, Grounds::kList);
    if (HasBorder(control)) {
        m_surface.FrameRect(rc, kRim);
        rc = {rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1};
    }
    if (m_pBitmaps == nullptr || control.arrItems.empty()) return;
    const CxImage* pFirst = m_pBitmaps->Find(control.arrItems[0].strText, 1);
    if (pFirst == nullptr) return;
    const int nHeight = pFirst->GetHeight();
    const int nRows = rc.Height() / nHeight;
    int nRow = -FirstInSight(control.nSel, nRows);
    for (const CListItem& item : control.arrItems) {
        const CxImage* pImage = nRow >= 0 && nRow < nRows ? m_pBitmaps->Find(item.strText, 1) : nullptr;
        if (pImage != nullptr)
            m_surface.DrawPart(pImage->Pixels(), CRect::FromPlace(0, 0, rc.Width(), nHeight), rc.left,
                               rc.top + nRow * nHeight);
        ++nRow;
    }
}

// A grid of pictures as far as it has scrolled.
void CComposer::DrawGrid(const CControl& control) {
    const CGridLayout& grid = *control.look.grid;
    CRect rc = control.rcPlace;
    DrawBox(rc, Grounds::kList);
    if (HasBorder(control)) rc = {rc.left + 1, rc.top + 1, rc.right - 1, rc.bottom - 1};
    int nItem = 0;
    for (const CListItem& item : control.arrItems) {
        const CRect rcItem = grid.PlaceOf(nItem).Offset(rc.left, rc.top - control.nPos);
        const CRect rcRim{rcItem.left - 2, rcItem.top - 2, rcItem.right + 2, rcItem.bottom + 2};
        if (nItem++ == control.nSel) m_surface.FillRect(rcRim.Intersect(rc), kMark);
        const CRect rcSeen = rcItem.Intersect(rc);
        const CxImage* pImage = m_pBitmaps == nullptr ? nullptr : m_pBitmaps->Find(item.strText, 1);
        if (pImage == nullptr || rcSeen.IsEmpty()) continue;
        m_surface.DrawPart(pImage->Pixels(), rcSeen.Offset(-rcItem.left, -rcItem.top), rcSeen.left,
                           rcSeen.top);
    }
}

void CComposer::DrawSlider(const CControl& control) {
    CSkinSlider slider(m_host.Dialog().Controls(), control.nId);
    slider.SetUp(m_pBitmaps, 1);
    slider.Paint();
    m_surface.DrawPixels(slider.Client().Surface().Pixels(), control.rcPlace.left, control.rcPlace.top);
}

// A progress bar: how far it is.
void CComposer::DrawShare(const CControl& control) {
    const CRect& rc = control.rcPlace;
    const int nRange = std::max(1, control.nMax - control.nMin);
    const int nShare = control.nPos - control.nMin;
    m_surface.FillRect(rc, Grounds::kInfo);
    m_surface.FillRect({rc.left, rc.top, rc.left + rc.Width() * nShare / nRange, rc.bottom}, kMark);
}

// A text is a bar as long as the text, on a mark where it is selected.
void CComposer::DrawName(const CRect& rcClip, const std::string& strName, CPoint pt, bool bSelected) {
    const auto nLength = std::min<std::size_t>(strName.size(), kThumbnailSide / kCharacter);
    DrawBar(rcClip, static_cast<int>(nLength) * kCharacter, pt, bSelected);
}

void CComposer::DrawBar(const CRect& rcClip, int nWidth, CPoint pt, bool bSelected) {
    const CRect rc = CRect::FromPlace(pt.x, pt.y, nWidth, kNameHeight);
    if (bSelected) m_surface.FillRect(rc.Intersect(rcClip), kMark);
    const CRect rcInk{rc.left + 2, rc.top + 4, rc.right - 2, rc.bottom - 4};
    m_surface.FillRect(rcInk.Intersect(rcClip), bSelected ? kPaper : kInk);
}

// From the top of the list; what does not fit is not drawn.
void CComposer::DrawIcons(const CControl& control) {
    const CRect& rc = control.rcPlace;
    m_surface.FillRect(rc, Grounds::kList);
    const CIconListModel* pIcons = m_host.Dialog().IconsOf(control.nId);
    if (pIcons == nullptr) return;
    const int nColumns = std::max(1, rc.Width() / kCellPitch.cx);
    for (int i = 0; i < pIcons->Count(); ++i) {
        const CPoint pt{rc.left + (kCellPitch.cx - kThumbnailSide) / 2 + i % nColumns * kCellPitch.cx,
                        rc.top + 2 + i / nColumns * kCellPitch.cy};
        if (pt.y + kCellPitch.cy > rc.bottom) break;
        if (!pIcons->Picture(i).IsEmpty()) m_surface.DrawPixels(pIcons->Picture(i), pt.x, pt.y);
        DrawName(rc, pIcons->Text(i), {pt.x, pt.y + kThumbnailSide + 4}, pIcons->IsSelected(i));
    }
}

void CComposer::DrawTexts(const CControl& control) {
    constexpr int kRow = CTextListHand::kRowPixels;
    const CRect rc = InsideOf(control);
    DrawPaper(control);
    const int nRows = rc.Height() / kRow;
    const int nFirst = FirstInSight(control.nSel, nRows);
    const int nEnd = std::min(static_cast<int>(control.arrItems.size()), nFirst + nRows);
    for (int nRow = nFirst; nRow < nEnd; ++nRow) {
        const bool bSelected = nRow == control.nSel;
        const CRect rcRow = CRect::FromPlace(rc.left, rc.top + (nRow - nFirst) * kRow, rc.Width(), kRow);
        if (bSelected) m_surface.FillRect(rcRow, kMark);
        DrawName(rcRow, control.arrItems[static_cast<std::size_t>(nRow)].strText,
                 {rcRow.left + 4, rcRow.top + 2}, bSelected);
    }
}

// Each text in the middle of its column, in the first behind the box, whose pixels are nBox.
void CComposer::DrawTableRow(const CControl& control, const CCheckTableModel::CRow& row, const CRect& rcRow,
                             int nBox, bool bCurrent) {
    if (bCurrent) m_surface.FillRect(rcRow, kMark);
    int nLeft = rcRow.left;
    for (std::size_t i = 0; i < control.look.arrColumns.size() && i < row.arrTexts.size(); ++i) {
        const int nRight = nLeft + control.look.arrColumns[i].nWidth;
        if (i == 0) nLeft += nBox;
        const auto nLength =
            std::min(row.arrTexts[i].size(), static_cast<std::size_t>(nRight - nLeft) / kCharacter);
        const int nWidth = static_cast<int>(nLength) * kCharacter;
        DrawBar(rcRow, nWidth,
                {(nLeft + nRight - nWidth) / 2, rcRow.top + (rcRow.Height() - kNameHeight) / 2}, bCurrent);
        m_surface.FillRect(CRect{nRight - 1, rcRow.top, nRight, rcRow.bottom}.Intersect(rcRow), kRim);
        nLeft = nRight;
    }
    m_surface.FillRect({rcRow.left, rcRow.bottom - 1, rcRow.right, rcRow.bottom}, kRim);
}

void CComposer::DrawTable(const CControl& control) {
    using CHand = CCheckTableHand;
    const CRect rc = InsideOf(control);
    DrawPaper(control);
    const CRect rcTitles = CRect::FromPlace(rc.left, rc.top, rc.Width(), CHand::kTitlePixels);
    m_surface.FillRect(rcTitles, kFace);
    CCheckTableModel::CRow titles;
    for (const CTableColumn& column : control.look.arrColumns) titles.arrTexts.emplace_back(column.szTitle);
    DrawTableRow(control, titles, rcTitles, 0, false);
    const CCheckTableModel* pTable = m_host.Dialog().TableOf(control.nId);
    if (pTable == nullptr) return;
    const int nRows = (rc.Height() - CHand::kTitlePixels) / CHand::kRowPixels;
    const int nFirst = FirstInSight(control.nSel, nRows);
    for (int nRow = nFirst; nRow < std::min(pTable->Count(), nFirst + nRows); ++nRow) {
        const CRect rcRow = CRect::FromPlace(rc.left, rcTitles.bottom + (nRow - nFirst) * CHand::kRowPixels,
                                             rc.Width(), CHand::kRowPixels);
        DrawTableRow(control, pTable->Row(nRow), rcRow, CHand::kBoxLeft + CHand::kBoxPixels,
                     nRow == control.nSel);
        DrawCheck(CRect::FromPlace(rcRow.left + CHand::kBoxLeft,
                                   rcRow.top + (CHand::kRowPixels - CHand::kBoxPixels) / 2, CHand::kBoxPixels,
                                   CHand::kBoxPixels),
                  pTable->Row(nRow).bTicked);
    }
}

void CComposer::DrawBranch(const CRect& rcTree, const CTreeModel& tree, CTreeItem parent, CPoint& pt) {
    for (const CTreeItem item : tree.Children(parent)) {
        if (pt.y + kTreeRow > rcTree.bottom) return;
        if (tree.HasChildrenMark(item))
            DrawBox(CRect::FromPlace(pt.x, pt.y + 4, 9, 9).Intersect(rcTree),
                    tree.IsExpanded(item) ? kPaper : kMark);
        DrawName(rcTree, tree.Text(item), {pt.x + kTreeIndent, pt.y + 2}, tree.Selected() == item);
        pt.y += kTreeRow;
        if (!tree.IsExpanded(item)) continue;
        pt.x += kTreeIndent;
        DrawBranch(rcTree, tree, item, pt);
        pt.x -= kTreeIndent;
    }
}

void CComposer::DrawTree(const CControl& control) {
    m_surface.FillRect(control.rcPlace, kPaper);
    const CTreeModel* pTree = m_host.Dialog().TreeOf(control.nId);
    CPoint pt{control.rcPlace.left + 2, control.rcPlace.top + 2};
    if (pTree != nullptr) DrawBranch(control.rcPlace, *pTree, kNoTreeItem, pt);
}

void CComposer::DrawView(const CControl& control) {
    m_surface.FillRect(control.rcPlace, kBarGround);
    const CScrollView* pView = m_host.ViewOf(control.nId);
    if (pView == nullptr) return;
    m_surface.DrawPixels(pView->Surface().Pixels(), control.rcPlace.left, control.rcPlace.top);
}

void CComposer::Draw(const CControl& control) {
    switch (control.kind) {
        case EControlKind::Group:
        case EControlKind::Place:
            return;
        case EControlKind::BitmapButton:
            return DrawButton(control);
        case EControlKind::BitmapLabel:
            DrawBitmap(control.strCaption, control);
            return;
        case EControlKind::Radio:
        case EControlKind::Check:
            return DrawMark(control);
        case EControlKind::Static:
            return m_surface.FillRect(control.rcPlace, control.look.colorGround.value_or(kFace));
        case EControlKind::Button:
            return DrawBox(control.rcPlace, kFace);
        case EControlKind::Edit:
        case EControlKind::Combo:
            return DrawBox(control.rcPlace, kPaper);
        case EControlKind::TextList:
            return DrawTexts(control);
        case EControlKind::CheckTable:
            return DrawTable(control);
        case EControlKind::PictureList:
            return DrawRows(control);
        case EControlKind::PictureGrid:
            return DrawGrid(control);
        case EControlKind::IconList:
            return DrawIcons(control);
        case EControlKind::Tree:
            return DrawTree(control);
        case EControlKind::Slider:
            return DrawSlider(control);
        case EControlKind::Progress:
            return DrawShare(control);
        case EControlKind::View:
            return DrawView(control);
    }
}

}  // namespace

CSurface ComposeWindow(CPlayHost& host, CBitmaps* pBitmaps) {
    return CComposer(host, pBitmaps).Compose();
}
