#include <map>
#include <optional>

#include "app/Workshop.h"
#include "resources/HintTable.h"
#include "resources/MainDialog.h"

namespace {

// A picture in a flat colour of its own for each name: red holds the number's last byte, green the next one.
class CFlatBitmaps : public CBitmaps {
  public:
    static CColor ColorOf(int nResource) {
        return {static_cast<std::uint8_t>(nResource & 0xFF), static_cast<std::uint8_t>(nResource >> 8), 77};
    }
    const CxImage* Find(const std::string& strName, int /*nDensity*/) override {
        const auto size = SizeOf(strName);
        if (!size) return nullptr;
        auto [it, bNew] = m_map.try_emplace(strName);
        if (bNew) it->second = FlatImage(size->cx, size->cy, ColorOf(std::stoi(strName)));
        return &it->second;
    }

  private:
    static std::optional<CSize> SizeOf(const std::string& strName) {
        if (strName.empty() || strName.find_first_not_of("0123456789") != std::string::npos)
            return std::nullopt;
        const int nResource = std::stoi(strName);
        if (nResource == 522) return CSize{1014, 710};
        if (nResource == 440) return CSize{976, 17};
        if (nResource >= 486 && nResource <= 490) return CSize{310, 32};
        if (nResource == 296 || nResource == 286 || nResource == 343) return CSize{310, 563};
        if (nResource == 507) return CSize{323, 18};
        if (nResource >= 503 && nResource <= 506) return CSize{324, 18};
        return CSize{36, 16};
    }
    std::map<std::string, CxImage> m_map;
};

constexpr CColor kTextArtColor{217, 40, 200};
constexpr CRect kSwatch{237, 257, 257, 277};

class SkinTest : public testing::Test {
  protected:
    SkinTest() : m_dialog(m_platform.Get()), m_host(m_platform, m_dialog, &m_bitmaps) { m_host.Init(); }

    void GoTo(EMode nMode) {
        EXPECT_TRUE(m_dialog.State().m_nMode == nMode || m_host.Click(TabOf(nMode)).empty());
    }
    void Hover(CPoint pt) { EXPECT_EQ(m_host.MouseOnWindow(EMouseAction::Move, EMouseButton::None, pt), ""); }
    void HoverOver(int nId) {
        const CRect rc = m_dialog.Controls().Find(nId)->rcPlace;
        Hover({rc.left + 5, rc.top + 5});
    }
    // The picture that is seen at a point, 0 for the swatch.
    int SeenAt(int x, int y) {
        const CColor color = m_dialog.Client().Surface().GetPixel(x, y);
        return color == kTextArtColor ? 0 : color.r + color.g * 256;
    }

    CFlatBitmaps m_bitmaps;
    CScriptedPlatform m_platform;
    CMainDlg m_dialog;
    CPlayHost m_host;
};

struct CLook {
    EMode nMode;
    int nTabRow;
    int nPanel;  // the background where a mode has none
    int nStrip;
};
constexpr CLook kLooks[] = {{EMode::Thum, 486, 522, 503},
                            {EMode::Effect, 487, 522, 504},
                            {EMode::Font, 488, 296, 505},
                            {EMode::Stick, 489, 286, 506},
                            {EMode::Draw, 490, 343, 507}};

}  // namespace

TEST_F(SkinTest, EachModePaintsBackgroundTabRowAndPanel) {
    for (const CLook& look : kLooks) {
        SCOPED_TRACE(look.nMode);
        GoTo(look.nMode);
        m_dialog.Invalidate();
        m_host.Pump();
        const CSurface& surface = m_dialog.Client().Surface();
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x) {
                int nWanted = 522;
                if (CRect::FromPlace(0, 79, 310, 32).Contains({x, y})) nWanted = look.nTabRow;
                if (CRect::FromPlace(0, 111, 310, 563).Contains({x, y})) nWanted = look.nPanel;
                if (look.nMode == EMode::Font && kSwatch.Contains({x, y})) nWanted = 0;
                // The tool panel and the wells are the tools' own.
                const bool bTools = look.nMode == EMode::Draw && CRect{160, 340, 260, 540}.Contains({x, y});
                if (bTools) continue;
                ASSERT_EQ(SeenAt(x, y), nWanted) << x << "," << y;
            }
    }
}

TEST_F(SkinTest, EachKeyAndTabBringsUpItsHint) {
    int nHints = 0;
    for (const CControlTemplate& control : kMainDialog.arrControls) {
        const CHint* const pHint = FindHint(control.nId);
        if (pHint == nullptr) continue;
        SCOPED_TRACE(control.nId);
        ++nHints;
        const bool bTab = control.nId >= kTabThum && control.nId <= kTabStick;
        GoTo(control.nId == kTabThum ? EMode::Effect : EMode::Thum);
        m_dialog.Controls().Enable(control.nId, true);
        m_dialog.Controls().SetFocus(kTabStick);
        HoverOver(control.nId);
        EXPECT_EQ(SeenAt(pHint->x, bTab ? 110 : 61), pHint->nBitmap);
        EXPECT_EQ(SeenAt(pHint->x + 35, bTab ? 125 : 76), pHint->nBitmap);
        // The strips around it are clean.
        EXPECT_EQ(SeenAt(20, 62), 440);
        EXPECT_EQ(SeenAt(990, 76), 440);
        EXPECT_EQ(SeenAt(320, 126), control.nId == kTabThum ? 504 : 503);
        // All keys of the top bar take the focus but the one that takes pictures; tabs do not.
        const bool bFocus = !bTab && control.nId != kCmdTake;
        EXPECT_EQ(m_dialog.Controls().Focus(), bFocus ? control.nId : kTabStick);
        EXPECT_TRUE(m_platform.Timers().IsRunning(m_dialog, bTab ? 1 : 0));
    }
    EXPECT_EQ(nHints, 27);
}

TEST_F(SkinTest, ADisabledKeyTellsItsHintButTakesNoFocus) {
    HoverOver(kCmdOpen);
    HoverOver(kCmdSave);
    EXPECT_EQ(SeenAt(122, 61), 447);
    EXPECT_EQ(m_dialog.Controls().Focus(), kCmdOpen);
}

TEST_F(SkinTest, TheNextMouseMoveWipesAHint) {
    for (const CPoint pt : {CPoint{70, 400}, {10, 10}, {500, 300}}) {
        HoverOver(kCmdOpen);
        EXPECT_EQ(SeenAt(50, 62), 336);
        Hover(pt);
        EXPECT_EQ(SeenAt(50, 62), 440);
        HoverOver(kTabFont);
        EXPECT_EQ(SeenAt(215, 112), 317);
        Hover(pt);
        EXPECT_EQ(SeenAt(215, 112), 503);
    }
    // From hint to hint only the new one stays.
    HoverOver(kCmdUndo);
    HoverOver(kTabDraw);
    EXPECT_EQ(SeenAt(215, 62), 440);
    EXPECT_EQ(SeenAt(270, 112), 326);
}

TEST_F(SkinTest, AHintLeftAloneStandsForOneSecond) {
    for (const CLook& look : kLooks) {
        SCOPED_TRACE(look.nMode);
        GoTo(look.nMode);
        HoverOver(kCmdOpen);
        m_platform.Tick(999);
        EXPECT_EQ(SeenAt(50, 62), 336);
        m_platform.Tick(1);
        EXPECT_EQ(SeenAt(50, 62), 440);

        const bool bStick = look.nMode == EMode::Stick;
        HoverOver(bStick ? kTabFont : kTabStick);
        m_platform.Tick(999);
        EXPECT_EQ(SeenAt(bStick ? 215 : 160, 112), bStick ? 317 : 327);
        m_platform.Tick(1);
        EXPECT_EQ(SeenAt(bStick ? 215 : 160, 112), look.nStrip);
        EXPECT_EQ(SeenAt(245, 260) == 0, look.nMode == EMode::Font);
        EXPECT_EQ(m_platform.Timers().Count(), 0);
    }
}

// The second of one hint runs on while the other strip shows the next: each still goes when its own is over.
TEST_F(SkinTest, EachStripHasASecondOfItsOwn) {
    HoverOver(kCmdOpen);
    m_platform.Tick(500);
    HoverOver(kTabFont);
    m_platform.Tick(999);
    EXPECT_EQ(SeenAt(215, 112), 317);
    m_platform.Tick(1);
    EXPECT_EQ(SeenAt(215, 112), 503);

    HoverOver(kTabFont);
    m_platform.Tick(500);
    HoverOver(kCmdOpen);
    m_platform.Tick(999);
    EXPECT_EQ(SeenAt(50, 62), 336);
    m_platform.Tick(1);
    EXPECT_EQ(SeenAt(50, 62), 440);
    // On the same strip the second starts anew.
    HoverOver(kCmdOpen);
    m_platform.Tick(500);
    HoverOver(kCmdUndo);
    m_platform.Tick(999);
    EXPECT_EQ(SeenAt(215, 62), 329);
    m_platform.Tick(1);
    EXPECT_EQ(SeenAt(215, 62), 440);
}

TEST_F(SkinTest, TheSwatchOfFontSurvivesHints) {
    GoTo(EMode::Font);
    for (const int nId : {kTabDraw, kCmdOpen}) {
        HoverOver(nId);
        EXPECT_EQ(SeenAt(237, 257), 0);
        EXPECT_EQ(SeenAt(256, 276), 0);
        EXPECT_EQ(SeenAt(257, 277), 296);
        m_platform.Tick(1000);
        EXPECT_EQ(SeenAt(237, 257), 0);
    }
}
