#pragma once

#include <map>
#include <string>
#include <vector>

#include "window/Bitmaps.h"
#include "window/CheckTableHand.h"
#include "window/Dialog.h"
#include "window/IconListHand.h"
#include "window/ScrollView.h"
#include "window/TreeModel.h"

class CScriptedPlatform;

// The window of a dialog where there is no window: keeps dialog and views painted between events as the real
// one does, and is the user's hand in it. What the user could not do is not done.
//
// Operations of the hand return an empty text, or why the thing cannot be done. They return when the event
// and all that it wanted painted are over.
class CPlayHost : private CDialogHost,
                  private CViewHost,
                  private CIconListObserver,
                  private CCheckTableObserver {
  public:
    // Both outlive the host, and so do the pictures, which may be null for a window without a skin. Nothing
    // of the dialog is called yet but Attach. As long as the host lives, the platform keeps the dialog
    // painted while it asks a question.
    CPlayHost(CScriptedPlatform& platform, CDialog& dialog, CBitmaps* pBitmaps = nullptr);
    // Ends the dialog's window: OnDestroy if Init has run, and its timers go.
    ~CPlayHost() override;
    CPlayHost(const CPlayHost&) = delete;
    CPlayHost& operator=(const CPlayHost&) = delete;

    CDialog& Dialog() { return m_dialog; }
    CScriptedPlatform& Platform() { return m_platform; }

    // OnInitDialog, and the first paint.
    void Init();
    // Paints the dialog and the views that are shown until nothing wants to be painted. False if they want it
    // without end.
    bool Pump();
    int PaintCount() const { return m_nPaints; }

    // A click of a button, a bitmap label, a check box or a radio button.
    [[nodiscard]] std::string Click(int nId);
    // A click on a row of a list, or on an item of a list of icons; in a table of rows to tick beside its
    // box.
    [[nodiscard]] std::string SelectRow(int nId, int nRow);
    // A click on a picture of a grid, which is scrolled to it, or beside all of them for -1.
    [[nodiscard]] std::string ClickGrid(int nId, int nItem);
    // Of a list of texts or a table of rows to tick.
    [[nodiscard]] std::string DoubleClickRow(int nId, int nRow);
    // A click on the box of a row in a table, which ticks or unticks it.
    [[nodiscard]] std::string TickRow(int nId, int nRow) { return ClickTable(nId, nRow, ETableClick::Box); }
    // In a table; -1 for below all rows.
    [[nodiscard]] std::string RightClickRow(int nId, int nRow) {
        return ClickTable(nId, nRow, ETableClick::Right);
    }
    [[nodiscard]] std::string MoveSlider(int nId, int nPos);
    // Replaces the text of an edit; what is beyond its most characters does not go in.
    [[nodiscard]] std::string Type(int nId, const std::string& strText);
    [[nodiscard]] std::string ScrollView(int nId, CPoint pt);
    // A key that the dialog does not take goes to the list, table or grid that has the focus, or means Ok and
    // Cancel as in every dialog.
    [[nodiscard]] std::string Key(const CKeyEvent& event);
    // pt in client pixels of the view in that control.
    [[nodiscard]] std::string MouseOnView(int nId, EMouseAction action, EMouseButton button, CPoint pt,
                                          unsigned nKeys = 0);
    // pt in client pixels of the dialog. A move may go anywhere; the rest only beside all controls.
    [[nodiscard]] std::string MouseOnWindow(EMouseAction action, EMouseButton button, CPoint pt,
                                            unsigned nKeys = 0);

    // A click before an item of a tree, which opens or closes it. Only what is in sight can be clicked: all
    // above it has to be open.
    [[nodiscard]] std::string OpenItem(int nId, CTreeItem item) { return ToggleItem(nId, item, true); }
    [[nodiscard]] std::string CloseItem(int nId, CTreeItem item) { return ToggleItem(nId, item, false); }
    [[nodiscard]] std::string SelectItem(int nId, CTreeItem item);
    // The child of that text, as far as the tree has been read; kNoTreeItem as parent looks among the top
    // items. kNoTreeItem if there is none.
    CTreeItem FindItem(int nId, CTreeItem parent, const std::string& strText);

    // A left click in a list of icons, -1 for beside all of them: alone it selects just the item, with
    // kMouseCtrl it adds or takes away one, with kMouseShift it selects all from the last one clicked.
    [[nodiscard]] std::string ClickIcon(int nId, int nItem, unsigned nKeys = 0);
    [[nodiscard]] std::string DoubleClickIcon(int nId, int nItem);
    [[nodiscard]] std::string RightPressIcon(int nId, int nItem);
    // Draws a rubber band that selects just these items, in their order.
    [[nodiscard]] std::string BandIcons(int nId, const std::vector<int>& arrItems);
    [[nodiscard]] std::string KeyInIcons(int nId, const CKeyEvent& event);
    // -1 if the list has no item of that name.
    int FindIcon(int nId, const std::string& strText);

    // The shown control that the mouse is over; null beside all of them.
    const CControl* ControlAt(CPoint pt) const;
    CScrollView* ViewOf(int nId);

  private:
    void OnPaintWanted() override {}
    void OnDrawn() override {}
    void OnShowNow() override { Pump(); }
    void OnEnded() override {}
    void OnScrollChanged() override {}
    void OnCursorChanged() override {}
    void OnIconsReset() override;
    void OnIconChanged(int /*nItem*/) override {}
    void OnIconsSelected() override {}
    void OnRowsReset() override;
    void OnRowTicked(int /*nRow*/) override {}

    std::string Reach(int nId, const CControl*& pControl) const;
    std::string ReachItem(int nId, CTreeItem item, CTreeModel*& pTree);
    std::string ReachIcons(int nId, int nItem, CIconListModel*& pIcons);
    CIconListHand& HandOf(CIconListModel& icons) { return m_mapIcons.at(&icons); }
    CIconListModel* IconsOf(int nId);
    // Where a click goes in a table of rows to tick.
    enum class ETableClick { Row, Box, Double, Right };
    std::string ClickTable(int nId, int nRow, ETableClick click);
    std::string ClickText(int nId, int nRow, bool bDouble);
    static std::string NoRow(int nId, int nRow, int nRows);
    bool KeyToRows(const CControl& control, int nKey);
    std::string ToggleItem(int nId, CTreeItem item, bool bOpen);
    // The hand puts the focus there, which ends the typing elsewhere.
    void TakeFocus(int nId);
    void KeyToControl(const CKeyEvent& event);
    CMouseEvent MakeEvent(EMouseAction action, EMouseButton button, CPoint pt, unsigned nKeys);
    std::string CheckButton(EMouseAction action, EMouseButton button) const;
    std::string Done();

    CScriptedPlatform& m_platform;
    CDialog& m_dialog;
    std::vector<CScrollView*> m_arrViews;
    std::map<CIconListModel*, CIconListHand> m_mapIcons;
    std::map<int, CCheckTableHand> m_mapTables;  // by their controls
    unsigned m_nHeld = 0;                        // mouse buttons that are down, as flags
    int m_nAnchor = 0;                           // the icon from which a click with shift selects
    int m_nPaints = 0;
    bool m_bInit = false;
};
