// What the option panel and the colour wells look like, pixel by pixel. The places below are client pixels of
// the main window; the panel is the box 168,344 to 243,421.

#include "paint/PanelBench.h"

namespace {

constexpr CColor kBlack{0, 0, 0};
constexpr CColor kWhite{255, 255, 255};
constexpr CColor kGrey{128, 128, 128};
constexpr CColor kGround{0x90, 0x97, 0x97};
constexpr CColor kBlue127{0, 0, 127};
constexpr CColor kBlue128{0, 0, 128};

class PanelTest : public PanelBench {
  protected:
    // An option as it stands there, and its field and itself when it is chosen.
    struct CLook {
        CRect rcNormal, rcField, rcChosen;
    };

    // The wanted panel, on a page as large as the window.
    PanelTest() : m_page(1014, 710) {}

    void Fill(CRect rc, CColor color) { m_page.FillRect(rc, color); }
    void BeginPage() { Fill(kPanel, kGround); }
    // The panel is as it stands on the page, each pixel of which may be two by two on the screen.
    void ExpectPage(int nDensity = 1) {
        Fill({168, 344, 243, 345}, kGrey);
        Fill({168, 344, 169, 421}, kGrey);
        Fill({168, 420, 243, 421}, kWhite);
        Fill({242, 344, 243, 421}, kWhite);
        for (int y = nDensity * kPanel.top; y < nDensity * kPanel.bottom; ++y)
            for (int x = nDensity * kPanel.left; x < nDensity * kPanel.right; ++x)
                ASSERT_EQ(At(x, y), m_page.GetPixel(x / nDensity, y / nDensity)) << x << "," << y;
    }
    // Brings up the tool's panel and selects the option by a press at that place of the panel.
    void Choose(ETool tool, int x, int y) {
        m_controller.OnToolButton(tool);
        ASSERT_TRUE(PressPanel(x, y));
    }
    void DrawBars(std::span<const CLook> looks, const CLook& chosen) {
        BeginPage();
        for (const CLook& look : looks) Fill(look.rcNormal, kBlack);
        Fill(chosen.rcField, kBlue127);
        Fill(chosen.rcChosen, kWhite);
    }

    CSurface m_page;
};

}  // namespace

TEST_F(PanelTest, ToolsWithoutOptionsShowAnEmptyPanel) {
    BeginPage();
    for (const CToolRow& row : kTools) {
        if (row.HasOptions()) continue;
        m_controller.OnToolButton(ETool::Brush);
        m_controller.OnToolButton(row.tool);
        ExpectPage();
    }
}

TEST_F(PanelTest, EraserSquaresAndLineBars) {
    constexpr CLook kSquares[] = {{{203, 352, 207, 356}, {198, 349, 212, 359}, {203, 352, 207, 356}},
                                  {{201, 365, 209, 373}, {198, 359, 212, 374}, {202, 363, 208, 369}},
                                  {{200, 381, 210, 391}, {198, 376, 212, 391}, {201, 379, 209, 387}},
                                  {{199, 399, 211, 411}, {198, 395, 212, 410}, {200, 397, 210, 407}}};
    constexpr CLook kBars[] = {{{174, 354, 237, 356}, {171, 349, 240, 362}, {174, 354, 237, 356}},
                               {{174, 367, 237, 370}, {171, 362, 240, 375}, {174, 367, 237, 369}},
                               {{174, 379, 237, 384}, {171, 375, 240, 388}, {174, 379, 237, 383}},
                               {{174, 392, 237, 398}, {171, 388, 240, 401}, {174, 392, 237, 396}},
                               {{174, 404, 237, 412}, {171, 401, 240, 414}, {174, 404, 237, 410}}};
    const auto expectEach = [&](ETool tool, std::span<const CLook> looks) {
        for (const CLook& look : looks) {
            Choose(tool, 30, look.rcField.top + 2 - kPanel.top);
            DrawBars(looks, look);
            ExpectPage(m_client.Density());
        }
    };
    for (const int nDensity : {1, 2}) {
        SCOPED_TRACE(nDensity);
        SetDensity(nDensity);
        expectEach(ETool::Eraser, kSquares);
        expectEach(ETool::Line, kBars);
        expectEach(ETool::Curve, kBars);
    }
}

TEST_F(PanelTest, FillBoxes) {
    const auto box = [&](int nTop, CColor crOutline, CColor crInside) {
        Fill({176, nTop, 235, nTop + 12}, crOutline);
        Fill({177, nTop + 1, 234, nTop + 11}, crInside);
    };
    for (const int nDensity : {1, 2}) {
        SetDensity(nDensity);
        for (const ETool tool : {ETool::Rectangle, ETool::Polygon, ETool::Ellipse, ETool::RoundRect})
            for (int i = 0; i < 3; ++i) {
                SCOPED_TRACE(i);
                Choose(tool, 30, 8 + 22 * i);
                BeginPage();
                box(356, kBlack, {192, 192, 192});
                box(378, kBlack, kGrey);
                box(400, kGrey, kGrey);
                Fill({171, 351 + 22 * i, 240, 373 + 22 * i}, kBlue128);
                box(356 + 22 * i, i == 2 ? kGrey : kWhite, i == 0 ? kBlue128 : kGrey);
                ExpectPage(nDensity);
            }
    }
}

// The texts are told by their blocks: 15 pixels wide and high with these fonts.
TEST_F(PanelTest, ZoomTextsAndDots) {
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        Choose(ETool::Magnifier, 30, 8 + 15 * i);
        BeginPage();
        constexpr CRect kDots[] = {
            {209, 358, 211, 360}, {208, 372, 212, 376}, {207, 386, 213, 392}, {206, 400, 214, 408}};
        for (int n = 0; n < 4; ++n) {
            Fill({178, 351 + 15 * n, 193, 366 + 15 * n}, kBlack);
            Fill(kDots[n], kBlack);
        }
        Fill({168, 351 + 15 * i, 243, 366 + 15 * i}, kBlue128);
        Fill({178, 351 + 15 * i, 193, 366 + 15 * i}, kWhite);
        Fill(kDots[i].Offset(0, 1), kWhite);
        ExpectPage();
        EXPECT_EQ(std::pair(m_arrFonts.back().nHeight, m_arrFonts.back().nWeight), std::pair(15, 100));
    }
}

TEST_F(PanelTest, BrushDabs) {
    for (int i = 0; i < 12; ++i) {
        SCOPED_TRACE(i);
        Choose(ETool::Brush, 14 + 24 * (i % 3), 5 + 17 * (i / 3));
        EXPECT_EQ(m_tools.m_nBrushShape, i);
        BeginPage();
        for (int n = 0; n < 12; ++n) {
            const int nInset = 2 * (n % 3) + 2;
            const CRect rcCell = CRect::FromPlace(172 + 24 * (n % 3), 348 + 17 * (n / 3), 20, 17);
            const CRect rc{rcCell.left + nInset, rcCell.top + nInset, rcCell.right - nInset,
                           rcCell.bottom - nInset};
            const CColor color = n == i ? kWhite : kBlack;
            if (n == i) Fill(rcCell, kBlue128);
            m_page.SelectPen(CPen::Solid(1, color));
            m_page.SelectBrush(CBrush::Solid(color));
            if (n / 3 == 0) m_page.Ellipse(rc);
            if (n / 3 == 1) m_page.Rectangle(rc);
            m_page.MoveTo(n / 3 == 2 ? CPoint{rc.right, rc.top} : rc.TopLeft());
            if (n / 3 == 2) m_page.LineTo({rc.left, rc.bottom});
            if (n / 3 == 3) m_page.LineTo({rc.right, rc.bottom});
        }
        ExpectPage();
    }
}

TEST_F(PanelTest, SprayClouds) {
    constexpr int kPlain[] = {168, 169, 175};
    constexpr int kChosen[] = {177, 176, 174};
    constexpr int kTops[] = {349, 369, 394};
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        Choose(ETool::Airbrush, 30, kTops[i] - 344 + 1);
        BeginPage();
        for (int n = 0; n < 3; ++n) {
            const CSize size = kPlain[n] == 175 ? CSize{67, 19} : CSize{70, 21};
            Fill(CRect::FromPlace(171, kTops[n], size.cx, size.cy), ColorOfBitmap(kPlain[n]));
        }
        Fill(CRect::FromPlace(171, kTops[i], 70, 21), ColorOfBitmap(kChosen[i]));
        ExpectPage();
    }
}

// What has no straight edges comes finer there, and does not leave its place.
TEST_F(PanelTest, OnADenseScreenRoundAndSlantedGlyphsAndTextsAreFiner) {
    SetDensity(2);
    m_controller.OnToolButton(ETool::Brush);
    CSurface wanted(2 * 16, 2 * 13);
    wanted.FillRect(wanted.Bounds(), kBlue128);
    wanted.SelectPen(CPen::Solid(1, kWhite));
    wanted.Ellipse({0, 0, 32, 26});
    for (int y = 0; y < 26; ++y)
        for (int x = 0; x < 32; ++x) ASSERT_EQ(At(348 + x, 700 + y), wanted.GetPixel(x, y)) << x << "," << y;
    // The longest falling line, from 174,401 to 190,414: within a pixel of the exact one, and whole.
    for (int x = 348; x < 378; ++x) {
        int nTop = 0;
        int nRows = 0;
        for (int y = 798; y < 830; ++y) {
            if (At(x, y) != kBlack) continue;
            if (nRows++ == 0) nTop = y;
        }
        ASSERT_TRUE(nRows >= 1 && nRows <= 4) << x;
        EXPECT_NEAR(nTop + (nRows - 1) / 2.0, 802.5 + (x - 348.5) * 13 / 16, 1.5) << x;
    }
    EXPECT_EQ(At(382, 829), kGround);
    m_controller.OnToolButton(ETool::Magnifier);
    EXPECT_EQ(m_arrFonts.back().nHeight, 30);
    EXPECT_EQ(At(356, 702), kWhite);
    EXPECT_EQ(At(385, 731), kWhite);
    EXPECT_EQ(At(386, 731), kBlue128);
}

// From the back to the front: backdrop, background, foreground; each edge is inside its rectangle.
TEST_F(PanelTest, TheForegroundWellLiesOnTop) {
    m_controller.PickColor(true, {200, 0, 0});
    m_controller.PickColor(false, {0, 0, 200});
    m_controller.OnWindowPainted();
    EXPECT_EQ(At(210, 489), (CColor{128, 128, 128}));
    EXPECT_EQ(At(255, 534), kWhite);
    EXPECT_EQ(At(245, 495), (CColor{0xD2, 0xD2, 0xD2}));
    for (const CPoint pt : {CPoint{213, 492}, {238, 517}, {230, 510}}) EXPECT_EQ(At(pt.x, pt.y).r, 200);
    for (const CPoint pt : {CPoint{243, 506}, {252, 531}, {227, 522}}) EXPECT_EQ(At(pt.x, pt.y).b, 200);
    // A bump: light outside and dark inside at the top left, the other way round at the bottom right.
    EXPECT_GT(At(211, 500).g, At(212, 500).g);
    EXPECT_LT(At(240, 500).g, At(239, 500).g);
    EXPECT_LT(At(254, 520).g, At(253, 520).g);
}
