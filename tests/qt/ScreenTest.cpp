// What comes to the screen. Every check reads the screen itself, which holds only what somebody has asked to
// be painted, and holds it against the window painted anew.

#include <QLineEdit>
#include <QListView>

#include "MainWindow.h"
#include "support/Pictures.h"

namespace {

using enum EControlKind;

constexpr CControlTemplate kControls[] = {
    {10, Button, CRect::FromPlace(10, 10, 60, 20), "button"},
    {11, BitmapButton, CRect::FromPlace(80, 10, 30, 20), "Key"},
    {12, Radio, CRect::FromPlace(10, 40, 14, 14)},
    {13, Check, CRect::FromPlace(30, 40, 80, 14), "check"},
    {14, Static, CRect::FromPlace(10, 60, 100, 15), "text"},
    {15, Edit, CRect::FromPlace(10, 80, 100, 18), "abc"},
    {16, Combo, CRect::FromPlace(10, 110, 100, 22)},
    {17, PictureList, CRect::FromPlace(120, 10, 60, 60)},
    {19, Progress, CRect::FromPlace(10, 140, 100, 16)},
    {20, View, CRect::FromPlace(120, 80, 60, 60)},
    {21, BitmapLabel, CRect::FromPlace(120, 150, 30, 14), "Key"},
};
constexpr CDialogTemplate kDialog{900, "Screen", {220, 180}, EDialogFrame::Plain, kControls};

CTestBitmaps Skin() {
    CTestBitmaps skin;
    int nRed = 0;
    for (const char* szName : {"KEYU", "KEYF", "KEYX", "1", "2", "Key"})
        skin.Add(szName, {22, 20}, {static_cast<std::uint8_t>(nRed += 20), 7, 9});
    return skin;
}

// The picture that the real window works on: every pixel of its top left part has a colour of its own.
constexpr CSize kPicture{900, 700};

class Screen : public MainWindow {
  protected:
    void SetUp() override {
        CxImage image = NumberedImage(kPicture.cx, kPicture.cy);
        ASSERT_TRUE(image.Save(m_folder.path().toStdString() + "/a.png", ImageType::kPng));
        Start();
        m_dialog.OpenFileByName(m_folder.path().toStdString(), "a.png");
        m_screen = OnScreen(m_view);
    }
    // The step has to change the screen, and to leave nothing there that is not up to date.
    void ExpectChange(const char* szStep, const QRect& rc = {}) {
        const QImage now = OnScreen(m_view);
        EXPECT_NE(now.copy(rc), m_screen.copy(rc)) << szStep;
        EXPECT_EQ(now, Repainted(m_view)) << szStep;
        m_screen = now;
    }
    QPoint OnCanvas(int x, int y) { return Widget(kCanvas).pos() + QPoint(x, y); }
    QRgb CanvasPixel(int x, int y) { return m_screen.pixel(OnCanvas(x, y)); }
    static QRgb ColorIn(const CPixels& pixels, int x, int y) {
        const CColor color = PixelAt(pixels, x, y);
        return qRgb(color.r, color.g, color.b);
    }
    static QRgb PictureColor(int x, int y) { return ColorIn(NumberedPixels(kPicture.cx, kPicture.cy), x, y); }
    void ChooseEffect(int nRow) {
        auto& list = static_cast<QListView&>(Widget(kEffectList));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {60, 68 * nRow + 5});
    }

    QImage m_screen;
};

}  // namespace

TEST(ControlScreen, EveryChangeOfAControlShowsAtOnce) {
    CTestScrollView view{{60, 60}};
    CShownDialog shown(kDialog, Skin(), {.pView = &view});
    CControlSet& controls = shown.Controls();
    const std::vector<CListItem> arrItems = {{"1", 0}, {"2", 1}};
    constexpr CSize sizeContent{500, 500};
    constexpr CPoint ptBelow{0, 250};
    controls.SetFocus(10);
    const std::pair<const char*, std::function<void()>> arrSteps[] = {
        {"text of a button", [&] { controls.SetText(10, "other"); }},
        {"text of a line", [&] { controls.SetText(14, "other"); }},
        {"text of an edit", [&] { controls.SetText(15, "other"); }},
        {"radio", [&] { controls.Check(12, true); }},
        {"check", [&] { controls.Check(13, true); }},
        {"rows", [&] { controls.SetItems(17, arrItems); }},
        {"chosen text",
         [&] {
             controls.SetItems(16, arrItems);
             controls.Select(16, 1);
         }},
        {"progress", [&] { controls.SetPosition(19, 50); }},
        {"its range", [&] { controls.SetRange(19, 0, 300); }},
        {"focus on a key", [&] { controls.SetFocus(11); }},
        {"focus on a mark", [&] { controls.SetFocus(13); }},
        {"focus on a combo", [&] { controls.SetFocus(16); }},
        {"disabled key", [&] { controls.Enable(11, false); }},
        {"disabled line", [&] { controls.Enable(14, false); }},
        {"disabled mark", [&] { controls.Enable(13, false); }},
        {"hidden label", [&] { controls.Show(21, false); }},
        {"moved", [&] { controls.Move(14, CRect::FromPlace(10, 160, 100, 15)); }},
        {"drawn beside the controls",
         [&] {
             shown.dialog.Client().FillRect(CRect::FromPlace(200, 150, 9, 9), {1, 2, 3});
             shown.dialog.Present();
         }},
        {"painted anew",
         [&] {
             shown.dialog.m_colorGround = {90, 80, 70};
             shown.dialog.Invalidate();
         }},
        {"drawn on the view", [&] { view.DrawDot(5, 6); }},
        {"bars of the view", [&] { view.SetScrollSizes(sizeContent); }},
        {"scrolled", [&] { view.ScrollTo(ptBelow); }},
        {"scrolled while it is hidden",
         [&] {
             controls.Show(20, false);
             view.ScrollTo({0, 0});
             Settle();
             controls.Show(20, true);
         }},
    };
    QImage before = OnScreen(*shown.view);
    for (const auto& [szStep, fnStep] : arrSteps) {
        fnStep();
        const QImage now = OnScreen(*shown.view);
        EXPECT_FALSE(view.WantsPaint()) << szStep;
        EXPECT_NE(now, before) << szStep;
        EXPECT_EQ(now, Repainted(*shown.view)) << szStep;
        before = now;
    }
}

// Pixel by pixel: whoever changes a look means to, and puts its new sum here.
TEST(ControlScreen, LooksOfControlsWithoutText) {
    CTestScrollView view{{60, 60}};
    CShownDialog shown(kDialog, Skin(), {.pView = &view});
    CControlSet& controls = shown.Controls();
    view.SetScrollSizes({500, 500});
    controls.SetItems(17, {{"1", 0}, {"2", 1}});
    controls.SetPosition(19, 40);
    const auto fnLooks = [&] {
        std::vector<int> arrSums;
        for (const int nId : {12, 13, 16, 17, 19, 20}) {
            Settle();
            const QImage image = shown.Widget(nId)
                                     ->grab(nId == 13 ? QRect(0, 0, 15, 14) : QRect(0, 0, -1, -1))
                                     .toImage()
                                     .convertToFormat(QImage::Format_RGB32);
            arrSums.push_back(qChecksum(QByteArrayView(image.bits(), image.sizeInBytes())));
        }
        return arrSums;
    };
    EXPECT_EQ(fnLooks(), (std::vector<int>{19815, 31421, 47141, 46221, 11410, 35149}));
    for (const int nId : {12, 13}) controls.Check(nId, true);
    controls.Select(17, 1);
    controls.SetFocus(13);
    EXPECT_EQ(fnLooks(), (std::vector<int>{13466, 45857, 47141, 46221, 11410, 35149})) << "chosen";
    for (const int nId : {12, 13, 16, 17, 19}) controls.Enable(nId, false);
    EXPECT_EQ(fnLooks(), (std::vector<int>{23078, 35795, 16401, 46221, 11410, 35149})) << "disabled";
}

// What the keys, lists and lines of the window are called, and where the lists have a border.
TEST_F(Screen, SpeaksAndFramesAsTheTemplateSays) {
    for (const auto& [nId, szName] : {std::pair{kCmdOpen, "打开"},
                                      {kTabDraw, "绘画"},
                                      {kEffectList, "特效"},
                                      {kEffectSlider, "强度"},
                                      {kRadioImageSize, "当前图片大小"},
                                      {1175, "圆角四边形"}})
        EXPECT_EQ(Widget(nId).accessibleName().toStdString(), szName);
    const auto& list = static_cast<QListView&>(Widget(kEffectList));
    EXPECT_EQ(list.model()->index(30, 0).data(Qt::AccessibleTextRole).toString().toStdString(), "版画效果");
    EXPECT_EQ(m_screen.pixel(58, 149), qRgb(74, 84, 88));
    EXPECT_EQ(m_screen.pixel(list.geometry().right(), list.geometry().top() + 5), qRgb(170, 181, 172));
    EXPECT_EQ(list.viewport()->geometry().topLeft(), QPoint(1, 1));
    m_dialog.Controls().Show(kTextEffectList, true);
    EXPECT_EQ(static_cast<QListView&>(Widget(kTextEffectList)).viewport()->geometry().topLeft(),
              QPoint(0, 0));
    EXPECT_EQ(m_screen.pixel(342, 97), qRgb(142, 154, 143)) << "the line of the name stands on its strip";
}

// The size dialog by its keys: Enter is Ok also in the middle of typing, Esc leaves all as it was.
TEST_F(Screen, EnterAndEscAnswerTheSizeDialog) {
    const auto fnType = [this](const char* szWidth, Qt::Key key) {
        Later([=] {
            QWidget* pDialog = QApplication::activeModalWidget();
            auto* pWidth = pDialog->findChildren<QLineEdit*>().constFirst();
            pWidth->selectAll();
            QTest::keyClicks(pWidth, szWidth);
            QTest::keyClick(pWidth, key);
            if (QApplication::activeModalWidget() == pDialog && pDialog->isVisible()) pDialog->close();
        });
        Click(kCmdSize);
        return m_dialog.Images().DisplaySize();
    };
    EXPECT_EQ(fnType("450", Qt::Key_Escape), kPicture);
    EXPECT_EQ(fnType("450", Qt::Key_Return).cx, 450);
}

// The real window at its work, driven by the hand.
TEST_F(Screen, ShowsWhatTheHandDoes) {
    const QRect rcCanvas = Widget(kCanvas).geometry();
    EXPECT_EQ(CanvasPixel(5, 5), PictureColor(5, 5));
    Wheel(Widget(kCanvas), -240);
    ExpectChange("scrolled", rcCanvas);
    EXPECT_EQ(CanvasPixel(5, 5), PictureColor(5, 5 + 96));

    // EFFECT: the preview in the panel, the picture itself only behind CONFIRM.
    ChooseEffect(1);
    ExpectChange("effect");
    QTest::keyClick(&Widget(kEffectSlider), Qt::Key_Home);
    ExpectChange("level");
    EXPECT_EQ(CanvasPixel(5, 5), PictureColor(5, 5 + 96));
    Click(kConfirm);
    ExpectChange("confirmed", rcCanvas);
    EXPECT_NE(CanvasPixel(5, 5), PictureColor(5, 5 + 96));
    EXPECT_EQ(CanvasPixel(5, 5), ColorIn(m_dialog.Images().m_imgDisplay.Pixels(), 5, 5 + 96));
    ChooseEffect(0);
    ExpectChange("next effect");
    m_dialog.OnCommand(kCancel);
    EXPECT_TRUE(m_dialog.ViewOf(kCanvas)->WantsPaint());
    ExpectChange("cancelled");

    // A hint below a key, and what a key does.
    Move(m_view, Widget(kCmdOpen).geometry().center());
    ExpectChange("hint");
    Click(kCmdFlipHorizontal);
    ExpectChange("flipped", rcCanvas);
    Click(kCmdUndo);
    ExpectChange("undone", rcCanvas);
}

TEST_F(Screen, ShowsStrokesColoursAndPanelsOfDraw) {
    const QRect rcCanvas = Widget(kCanvas).geometry();
    Click(kTabDraw);
    ExpectChange("draw");
    constexpr int kPen = 1178, kLine = 1171, kPicker = 1182;
    Click(kPen);
    Press(m_view, OnCanvas(100, 100));
    Move(m_view, OnCanvas(140, 100));
    ExpectChange("stroke", rcCanvas);
    EXPECT_EQ(CanvasPixel(120, 100), qRgb(0, 0, 0)) << "while the button is down";
    Release(m_view, OnCanvas(140, 100));
    m_screen = OnScreen(m_view);

    constexpr QRect kForeground(214, 493, 20, 20);
    constexpr QRect kOptions(169, 345, 73, 75);
    Click(kLine);
    ExpectChange("options", kOptions);
    Tap(m_view, {205, 394});
    ExpectChange("option", kOptions);
    Click(kPicker);
    ExpectChange("no options", kOptions);
    EXPECT_EQ(m_screen.pixel(205, 394), qRgb(0x90, 0x97, 0x97));
    Tap(m_view, OnCanvas(30, 200));
    ExpectChange("picked colour", kForeground);
    EXPECT_EQ(m_screen.pixel(kForeground.center()), PictureColor(30, 200));
}
