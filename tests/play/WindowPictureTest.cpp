#include "play/WindowPicture.h"

#include <gtest/gtest.h>

#include <array>

#include "play/ScriptedPlatform.h"
#include "support/Pictures.h"
#include "window/CheckTableModel.h"

namespace {

using enum EControlKind;

constexpr std::array kControls = {
    CControlTemplate{1, Check, CRect::FromPlace(0, 0, 14, 20)},
    CControlTemplate{2, Static, CRect::FromPlace(20, 0, 20, 10)},
    CControlTemplate{3, Progress, CRect::FromPlace(0, 30, 40, 10)},
    CControlTemplate{4, PictureList, CRect::FromPlace(50, 0, 40, 42)},
    CControlTemplate{5, PictureList, CRect::FromPlace(100, 0, 40, 42)},
    CControlTemplate{6, Button, CRect::FromPlace(0, 50, 20, 10)},
    CControlTemplate{7, Edit, CRect::FromPlace(30, 50, 20, 10), "", false},
    CControlTemplate{8, BitmapButton, CRect::FromPlace(0, 70, 10, 10), "Key"},
};
constexpr std::array kLooks = {CControlLookRow{2, {.colorGround = CColor{1, 2, 3}}},
                               CControlLookRow{4, {.border = EBorder::Sunken}}};
constexpr CDialogTemplate kTemplate = {900, "", {150, 100}, EDialogFrame::Plain, kControls, kLooks};
constexpr CColor kMark{232, 143, 54}, kPaper{245, 247, 244}, kRim{64, 74, 78}, kList{109, 121, 126};

// Rows 20 high, keys in their states.
class CSkin : public CBitmaps {
  public:
    const CxImage* Find(const std::string& strName, int /*nDensity*/) override {
        const auto it = m_map.find(strName);
        return it == m_map.end() ? nullptr : &it->second;
    }

  private:
    std::map<std::string, CxImage> m_map = {{"a", FlatImage(60, 20, {10, 0, 0})},
                                            {"b", FlatImage(60, 20, {20, 0, 0})},
                                            {"KEYU", FlatImage(10, 10, {30, 0, 0})},
                                            {"KEYF", FlatImage(10, 10, {40, 0, 0})}};
};

}  // namespace

// Lists of texts and tables to tick: the selected row in its mark and in sight, boxes, lines, titles.
TEST(WindowPicture, DrawsRowsOfTextsWhereTheyStand) {
    static constexpr std::array kRows = {CControlTemplate{1, TextList, CRect::FromPlace(0, 0, 60, 40)},
                                         CControlTemplate{2, CheckTable, CRect::FromPlace(0, 50, 90, 60)}};
    static constexpr std::array kColumns = {CTableColumn{"N", 40}, CTableColumn{"Name", 60}};
    static constexpr std::array kRowLooks = {CControlLookRow{2, {.arrColumns = kColumns}}};
    static constexpr CDialogTemplate kDialog = {901, "", {100, 120}, EDialogFrame::Plain, kRows, kRowLooks};
    struct CTableDialog : CDialog {
        using CDialog::CDialog;
        CCheckTableModel* TableOf(int nId) override { return nId == 2 ? &m_table : nullptr; }
        CCheckTableModel m_table;
    };
    CScriptedPlatform platform;
    CTableDialog dialog(kDialog);
    CPlayHost host(platform, dialog);
    dialog.m_table.SetRows({{{"1", "abcd"}, 0, true}, {{"2", ""}, 1}, {{"3", ""}, 2, true}});
    dialog.Controls().SetItems(1, {{"one"}, {"two"}, {"three"}});
    const auto expect = [&](std::initializer_list<std::pair<CPoint, CColor>> arrPixels) {
        const CSurface surface = ComposeWindow(host, nullptr);
        for (const auto& [pt, color] : arrPixels)
            EXPECT_EQ(surface.GetPixel(pt.x, pt.y), color) << pt.x << "," << pt.y;
    };
    constexpr CColor kInk{40, 46, 48}, kFace{214, 220, 214};
    expect({{{7, 8}, kInk}, {{50, 8}, kPaper}, {{7, 24}, kInk}, {{7, 39}, kPaper}});
    expect({{{2, 52}, kFace}, {{39, 52}, kRim}, {{2, 69}, kRim}, {{39, 75}, kRim}, {{2, 87}, kRim}});
    expect({{{70, 79}, kInk}, {{45, 79}, kPaper}, {{11, 79}, kMark}, {{11, 97}, kPaper}, {{70, 97}, kPaper}});
    dialog.Controls().Select(1, 2);
    dialog.Controls().Select(2, 2);
    expect({{{50, 8}, kPaper}, {{50, 24}, kMark}, {{70, 97}, kMark}, {{11, 79}, kPaper}, {{70, 79}, kPaper}});
}

// What stands where in the picture of a window.
TEST(WindowPicture, DrawsEachKindOfControlWhereItStands) {
    CSkin skin;
    CScriptedPlatform platform;
    CDialog dialog(kTemplate);
    CPlayHost host(platform, dialog, &skin);
    CControlSet& controls = dialog.Controls();
    const auto expect = [&](std::initializer_list<std::pair<CPoint, CColor>> arrPixels) {
        const CSurface surface = ComposeWindow(host, &skin);
        for (const auto& [pt, color] : arrPixels)
            EXPECT_EQ(surface.GetPixel(pt.x, pt.y), color) << pt.x << "," << pt.y;
    };
    for (const int nId : {4, 5}) controls.SetItems(nId, {{"a"}, {"b"}, {"a"}, {"none"}});
    controls.SetRange(3, -10, 30);
    controls.SetPosition(3, 10);
    expect({{{0, 0}, kRim}, {{7, 7}, kPaper}, {{7, 16}, {}}, {{20, 0}, {1, 2, 3}}, {{39, 9}, {1, 2, 3}}});
    expect({{{19, 35}, kMark}, {{20, 35}, {142, 154, 143}}, {{0, 50}, kRim}, {{5, 55}, {214, 220, 214}}});
    expect({{{30, 55}, {}}, {{5, 75}, {30, 0, 0}}});
    // The list with a border has its rows inside.
    expect({{{50, 5}, kRim},
            {{89, 5}, kRim},
            {{88, 5}, {10, 0, 0}},
            {{51, 20}, {10, 0, 0}},
            {{51, 21}, {20, 0, 0}}});
    expect({{{100, 0}, {10, 0, 0}},
            {{139, 19}, {10, 0, 0}},
            {{140, 19}, {}},
            {{100, 20}, {20, 0, 0}},
            {{100, 41}, kList}});
    controls.Check(1, true);
    controls.Select(5, 3);
    controls.SetFocus(8);
    controls.Show(7, true);
    expect({{{7, 7}, kMark}, {{4, 4}, kMark}, {{3, 4}, kPaper}, {{10, 10}, kPaper}, {{9, 9}, kMark}});
    expect({{{100, 0}, {10, 0, 0}}, {{100, 20}, kList}, {{5, 75}, {40, 0, 0}}, {{31, 51}, kPaper}});
}
