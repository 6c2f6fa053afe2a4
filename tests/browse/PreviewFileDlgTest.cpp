#include "browse/PreviewFileDlg.h"

#include <gtest/gtest.h>

#include "resources/Ids.h"
#include "support/Pictures.h"
#include "support/TempFolder.h"

namespace {

constexpr CColor kGround{109, 121, 126};

class PreviewFileDlg : public testing::Test {
  protected:
    PreviewFileDlg() { m_dialog.OnInitDialog(); }

    std::string Save(const std::string& strName, const CxImage& image) {
        EXPECT_TRUE(image.Save(m_folder.Path(strName), FindImageTypeOfName(strName)));
        return m_folder.Path(strName);
    }
    bool IsShown() const { return m_dialog.Controls().IsShown(kPreviewView); }
    CScrollView& View() { return *m_dialog.ViewOf(kPreviewView); }
    const CSurface& Painted() {
        View().Paint();
        return View().Surface();
    }
    // The box of all pixels that are not the ground.
    CRect PaintedBox() {
        const CSurface& surface = Painted();
        CRect rc;
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x)
                if (surface.GetPixel(x, y) != kGround) rc = rc.Union(CRect::FromPlace(x, y, 1, 1));
        return rc;
    }

    CTempFolder m_folder;
    CPreviewFileDlg m_dialog;
};

}  // namespace

TEST_F(PreviewFileDlg, ScalesToTheHeightOrTheWidthOfThePlace) {
    struct {
        CSize size;
        CSize sizePreview;
        CRect rcBox;  // in a view of 125 by 142
    } const kCases[] = {
        {{1, 1}, {117, 117}, {4, 12, 121, 129}},
        {{500, 500}, {117, 117}, {4, 12, 121, 129}},
        {{100, 200}, {68, 136}, {28, 3, 96, 139}},
        {{200, 100}, {117, 58}, {4, 42, 121, 100}},
        {{60, 61}, {133, 136}, {0, 3, 125, 139}},  // wider than the place: cut at its right
        {{1000, 9}, {117, 1}, {4, 70, 121, 71}},
        // Too thin to be scaled: as it is, from the place's edge on.
        {{1, 1500}, {0, 136}, {62, 0, 63, 142}},
        {{1500, 2}, {117, 0}, {0, 70, 125, 72}},
        {{90, 12500}, {0, 136}, {17, 0, 107, 142}},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.size.cx);
        EXPECT_EQ(CPreviewFileDlg::PreviewSize(row.size), row.sizePreview);
        for (const char* szType : {".png", ".jpg"}) {
            const std::string strName = std::to_string(row.size.cx) + szType;
            m_dialog.OnFileNameChange(Save(strName, FlatImage(row.size.cx, row.size.cy, {200, 0, 0})));
            EXPECT_TRUE(IsShown());
            EXPECT_EQ(PaintedBox(), row.rcBox) << szType;
        }
    }
    // Sides whose product does not fit into 32 bits.
    EXPECT_EQ(CPreviewFileDlg::PreviewSize({40000000, 50000000}), (CSize{108, 136}));
    EXPECT_EQ(CPreviewFileDlg::PreviewSize({50000000, 40000000}), (CSize{117, 93}));
}

TEST_F(PreviewFileDlg, TakesTheNearestPixelsAndDecodesAPhotographSmall) {
    const CxImage image = NumberedImage(200, 100);
    m_dialog.OnFileNameChange(Save("a.png", image));
    CSurface expected(125, 142);
    expected.FillRect(expected.Bounds(), kGround);
    expected.DrawPixels(NaiveResample(image.Pixels(), 117, 58), 4, 42);
    EXPECT_EQ(Painted().Pixels(), expected.Pixels());

    // Of a large photograph the size is that of the whole, whatever part of it was decoded.
    m_dialog.OnFileNameChange(Save("b.jpg", FlatImage(1003, 2001, {250, 250, 250})));
    EXPECT_EQ(PaintedBox(), CRect::FromPlace(28, 3, 68, 136));
}

TEST_F(PreviewFileDlg, StaysEmptyBehindItsOnePaint) {
    const std::string strPath = Save("a.png", FlatImage(20, 20, {200, 0, 0}));
    m_dialog.OnFileNameChange(strPath);
    EXPECT_FALSE(PaintedBox().IsEmpty());
    View().Invalidate();
    EXPECT_TRUE(PaintedBox().IsEmpty());
    // The same path brings nothing new, another one does.
    m_dialog.OnFileNameChange(strPath);
    EXPECT_TRUE(PaintedBox().IsEmpty());
    // Of two quick changes the second is painted.
    m_dialog.OnFileNameChange(Save("b.png", FlatImage(100, 200, {200, 0, 0})));
    m_dialog.OnFileNameChange(Save("c.png", FlatImage(200, 100, {0, 200, 0})));
    EXPECT_EQ(Painted().GetPixel(60, 60), (CColor{0, 200, 0}));
}

TEST_F(PreviewFileDlg, ShowsNothingNewForWhatIsNoPicture) {
    const std::string strBad = m_folder.Write("bad.jpg", "no picture at all");
    m_dialog.OnFileNameChange(strBad);
    EXPECT_FALSE(IsShown());
    // The same path is tried again, and opens once it can; other kinds leave it.
    Save("bad.jpg", FlatImage(100, 200, {200, 0, 0}));
    for (const std::string& strPath :
         {strBad, m_folder.Path(), m_folder.Write("a.txt", "words"), m_folder.Path("none"), std::string()}) {
        m_dialog.OnFileNameChange(strPath);
        EXPECT_TRUE(IsShown());
    }
    EXPECT_EQ(PaintedBox(), CRect::FromPlace(28, 3, 68, 136));
    // Of a picture that cannot be read the one that waited is gone, the view stays.
    m_dialog.OnFileNameChange(Save("c.png", FlatImage(100, 200, {200, 0, 0})));
    m_dialog.OnFileNameChange(m_folder.Write("worse.jpg", "nor this"));
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(PaintedBox().IsEmpty());
}

TEST_F(PreviewFileDlg, CheckBoxHidesAndReadsAgain) {
    const std::string strPath = Save("a.png", FlatImage(100, 200, {200, 0, 0}));
    EXPECT_TRUE(m_dialog.Controls().IsChecked(kPreviewCheck));
    m_dialog.OnFileNameChange(strPath);
    m_dialog.OnCommand(kPreviewCheck);
    EXPECT_FALSE(m_dialog.Controls().IsChecked(kPreviewCheck));
    EXPECT_FALSE(IsShown());
    m_dialog.OnFileNameChange(Save("b.png", FlatImage(200, 100, {0, 200, 0})));
    EXPECT_FALSE(IsShown());
    m_dialog.OnCommand(kPreviewCheck);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(PaintedBox(), CRect::FromPlace(4, 42, 117, 58));
    // Off and on brings back a picture that has been painted already.
    m_dialog.OnCommand(kPreviewCheck);
    m_dialog.OnCommand(kPreviewCheck);
    EXPECT_EQ(PaintedBox(), CRect::FromPlace(4, 42, 117, 58));
}
