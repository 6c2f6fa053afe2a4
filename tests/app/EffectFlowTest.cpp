#include <algorithm>
#include <array>

#include "app/Workshop.h"

namespace {

constexpr std::array kOffWhilePending = {kCmdReset,          kCmdNew,      kCmdSave,      kCmdPrint,
                                         kCmdUndo,           kCmdRedo,     kCmdSize,      kCmdFlipVertical,
                                         kCmdFlipHorizontal, kCmdTurnLeft, kCmdTurnRight, kCmdLarge,
                                         kCmdActual,         kCmdSmall,    kCmdSend,      kCmdTake};
constexpr std::string_view kBlank = "       ";

class EffectFlowTest : public Workshop {
  protected:
    void Choose(int nEffect) { EXPECT_EQ(m_host.SelectRow(kEffectList, nEffect), ""); }
    void Choose(EEffect effect) { Choose(NumberOf(effect)); }
    void Slide(int nPos) { EXPECT_EQ(m_host.MoveSlider(kEffectSlider, nPos), ""); }
    void Seed(unsigned nSeed) {
        m_dialog.Seed(nSeed);
        m_random.Seed(nSeed);
    }
    // The position of a level on the slider as it is now.
    int PositionOf(int nLevel) {
        const CControl& slider = *Controls().Find(kEffectSlider);
        return slider.nMin < 0 ? -nLevel : slider.nMax - nLevel;
    }
    const CPixels& Preview() { return m_dialog.Effects().Preview().Pixels(); }
    const CPixels& Work() const { return Images().m_imgWork.Pixels(); }

    // What the engine makes of these pixels; its random sequence goes on from call to call.
    CPixels Engine(const CPixels& pixels, EEffect effect, int nLevel, bool bFull) {
        CxImage image(pixels);
        if (!bFull) m_nRefWidth = Images().m_nDispWidth;
        EXPECT_TRUE(ApplyEffect(image, effect, nLevel, m_nRefWidth, m_random));
        return image.Pixels();
    }
    CPixels SmallWork(CSize size) const { return NaiveResample(Work(), size.cx, size.cy); }

    std::string ListPicture(int nRow) {
        return Controls().Find(kEffectList)->arrItems[static_cast<std::size_t>(nRow)].strText;
    }
    // Only that row is in its selected form.
    void ExpectLit(int nLit) {
        for (int i = 0; i < kEffectCount; ++i)
            EXPECT_EQ(ListPicture(i), std::to_string((i == nLit ? 198 : 229) + i));
    }
    void ExpectNoPreview() {
        EXPECT_FALSE(m_dialog.Effects().IsPending());
        EXPECT_TRUE(m_dialog.Effects().HasNoLevel());
        EXPECT_FALSE(m_dialog.Effects().Preview().IsValid());
        for (const int nId : {kConfirm, kCancel, kEffectSlider}) EXPECT_FALSE(Controls().IsShown(nId)) << nId;
    }
    void ExpectSliderAtRest() {
        const CControl& slider = *Controls().Find(kEffectSlider);
        EXPECT_EQ((std::array{slider.nMin, slider.nMax, slider.nPos}), (std::array{-100, 100, 100}));
        EXPECT_FALSE(slider.bShown || slider.bEnabled);
    }
    CColor WindowPixel(int x, int y) { return m_dialog.Client().Surface().GetPixel(x, y); }

    CRandomSequence m_random;
    int m_nRefWidth = 0;
};

}  // namespace

TEST_F(EffectFlowTest, ThePreviewsSize) {
    struct CCase {
        CSize picture, preview;
    };
    constexpr CCase kCases[] = {
        {{100, 80}, {158, 122}},   {{157, 121}, {158, 122}}, {{158, 121}, {158, 121}},
        {{1000, 90}, {158, 14}},   {{400, 900}, {54, 122}},  {{122, 122}, {122, 122}},
        {{130, 125}, {158, 151}},  {{123, 122}, {158, 156}}, {{4000, 3000}, {158, 118}},
        {{3000, 4000}, {91, 122}}, {{1, 122}, {1, 122}},     {{100, 122}, {100, 122}}};
    for (const CCase& c : kCases) EXPECT_EQ(CEffectFlow::PreviewSize(c.picture), c.preview) << c.picture.cx;
    // What is thinner than a line of the preview keeps one line.
    OpenNumbered(4000, 3);
    Choose(EEffect::Negative);
    EXPECT_EQ(CSize({Preview().Width(), Preview().Height()}), (CSize{158, 1}));
}

TEST_F(EffectFlowTest, AChoiceSetsUpEverything) {
    OpenNumbered(300, 200);
    const CSnapshot before = Snapshot();
    for (int n = 0; n < kEffectCount; ++n) {
        SCOPED_TRACE("effect " + std::to_string(n));
        const CEffectRow& row = kEffects[static_cast<std::size_t>(n)];
        Seed(5);
        Choose(n);
        const CControl& slider = *Controls().Find(kEffectSlider);
        EXPECT_EQ(slider.bShown, row.bHasLevel);
        EXPECT_EQ(slider.bEnabled, row.bHasLevel);
        EXPECT_EQ((std::array{slider.nMin, slider.nMax, slider.nPos}),
                  (std::array{row.nMin, row.nMax, row.nStart}));
        EXPECT_EQ(m_dialog.Effects().HasNoLevel(), !row.bHasLevel);
        EXPECT_EQ(Controls().Text(kEffectLevel), row.bHasLevel ? "0" : kBlank);
        for (const int nId : {kEffectPreview, kEffectLevel, kConfirm, kCancel})
            EXPECT_TRUE(Controls().IsShown(nId) && Controls().IsEnabled(nId)) << nId;
        for (const int nId : kOffWhilePending) EXPECT_FALSE(Controls().IsEnabled(nId)) << nId;
        EXPECT_TRUE(Controls().IsEnabled(kCmdOpen) && Controls().IsEnabled(kCmdConnect));
        ExpectLit(n);
        EXPECT_TRUE(m_dialog.Effects().IsPending());
        EXPECT_EQ(Controls().Focus(), kEffectList);
        EXPECT_EQ(Preview(), Engine(SmallWork({158, 105}), EffectOf(n), 0, false))
            << "from the picture, at level 0";
        if (HasFailure()) return;
    }
    EXPECT_EQ(Work(), before.work);
    EXPECT_EQ(Undos(), 0);
}

TEST_F(EffectFlowTest, TheSliderStartsFromTheUntouchedPreview) {
    OpenNumbered(300, 200);
    Click(kCmdLarge);  // the tiles' measure is the width as shown
    ASSERT_NE(Images().m_nDispWidth, 300);
    for (const EEffect effect :
         {EEffect::Brightness, EEffect::Sharpness, EEffect::PureBlackWhite, EEffect::OilPainting,
          EEffect::Tile, EEffect::Laminate, EEffect::Refraction1}) {
        const int n = NumberOf(effect);
        SCOPED_TRACE("effect " + std::to_string(n));
        Seed(3);
        Choose(n);
        const CPixels small = SmallWork({158, 105});
        Engine(small, EffectOf(n), 0, false);
        const CEffectRow& row = kEffects[static_cast<std::size_t>(n)];
        for (const int nPos : {row.nMin, (row.nMin + row.nMax) / 2 + 1, row.nStart - 1}) {
            const int nLevel = CEffectFlow::LevelOf(row.nMin, row.nMax, nPos);
            Controls().Enable(kCmdReset, true);
            Slide(nPos);
            EXPECT_EQ(m_dialog.Effects().Level(), nLevel);
            EXPECT_EQ(Controls().Text(kEffectLevel), std::to_string(nLevel));
            EXPECT_EQ(Preview(), Engine(small, EffectOf(n), nLevel, false));
            EXPECT_FALSE(Controls().IsEnabled(kCmdReset));
            EXPECT_EQ(Controls().Focus(), kEffectList);
        }
    }
}

TEST_F(EffectFlowTest, ThePreviewStandsInTheMiddleOfItsBox) {
    constexpr CRect kBox = CRect::FromPlace(64, 476, 158, 122);
    OpenNumbered(1000, 90);
    Choose(EEffect::Negative);
    ASSERT_EQ(Preview().Height(), 14);
    EXPECT_EQ(WindowPixel(kBox.left, kBox.top + 61 - 7), PixelAt(Preview(), 0, 0));
    EXPECT_EQ(WindowPixel(kBox.right - 1, kBox.top + 61 + 6), PixelAt(Preview(), 157, 13));
    // A slider's move draws the box and nothing beside it.
    Choose(EEffect::Brightness);
    m_dialog.Client().TakeDamage();
    const int nPaints = m_host.PaintCount();
    Slide(-40);
    EXPECT_EQ(m_host.PaintCount(), nPaints);
    EXPECT_EQ(WindowPixel(kBox.left, kBox.top + 54), PixelAt(Preview(), 0, 0));
    const CRect rcDamage = m_dialog.Client().TakeDamage();
    EXPECT_EQ(rcDamage.Union(kBox), kBox);
    // Higher than its box: cut at both ends.
    OpenNumbered(130, 125);
    const CColor crAbove = WindowPixel(kBox.left + 5, kBox.top - 1);
    const CColor crBelow = WindowPixel(kBox.left + 5, kBox.bottom);
    Choose(EEffect::Negative);
    ASSERT_EQ(Preview().Height(), 151);
    EXPECT_EQ(WindowPixel(kBox.left, kBox.top), PixelAt(Preview(), 0, 14));
    EXPECT_EQ(WindowPixel(kBox.left, kBox.bottom - 1), PixelAt(Preview(), 0, 14 + 121));
    EXPECT_EQ(WindowPixel(kBox.left + 5, kBox.top - 1), crAbove);
    EXPECT_EQ(WindowPixel(kBox.left + 5, kBox.bottom), crBelow);
}

TEST_F(EffectFlowTest, ConfirmRunsEachEffectOnThePictureItself) {
    OpenNumbered(301, 203);
    Click(kCmdSmall);
    for (int n = 0; n < kEffectCount; ++n) {
        SCOPED_TRACE("effect " + std::to_string(n));
        const CEffectRow& row = kEffects[static_cast<std::size_t>(n)];
        Seed(9);
        const CSnapshot before = Snapshot();
        Choose(n);
        CPixels small = SmallWork({158, 106});
        Engine(small, EffectOf(n), 0, false);
        const int nLevel = row.bHasLevel ? (row.nMax - row.nMin) / 5 : 0;
        if (row.bHasLevel) {
            Slide(PositionOf(nLevel));
            Engine(small, EffectOf(n), nLevel, false);
        }
        Click(kConfirm);
        EXPECT_EQ(Work(), Engine(before.work, EffectOf(n), nLevel, true));
        const CSize size = Images().DisplaySize();
        EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(Work(), size.cx, size.cy));
        EXPECT_EQ(Undos(), before.nUndo + 1);
        ExpectNoPreview();
        ExpectSliderAtRest();
        ExpectLit(n);
        EXPECT_EQ(Controls().Selection(kEffectList), n);
        EXPECT_EQ(Controls().Focus(), kEffectList);
        Click(kCmdUndo);
        EXPECT_EQ(Work(), before.work);
        if (HasFailure()) return;
    }
}

TEST_F(EffectFlowTest, ConfirmBringsTheCommandsBack) {
    OpenNumbered(60, 40);
    Edit(1);
    Edit(2);
    Click(kCmdUndo);
    GoTo(EMode::Effect);
    CSnapshot before = Snapshot();
    ASSERT_TRUE(Controls().IsEnabled(kCmdUndo) && Controls().IsEnabled(kCmdRedo));
    Choose(EEffect::Negative);
    Click(kConfirm);
    EXPECT_EQ(Undos(), before.nUndo + 1);
    EXPECT_EQ(Redos(), 0) << "a new step ends the way forward";
    std::erase(before.arrEnabled, kCmdRedo);
    EXPECT_EQ(Snapshot().arrEnabled, before.arrEnabled);
    // The list tells changes only: the same effect again takes the way over another.
    Choose(EEffect::Negative);
    EXPECT_FALSE(m_dialog.Effects().IsPending());
    Choose(EEffect::Art);
    Choose(EEffect::Negative);
    EXPECT_TRUE(m_dialog.Effects().IsPending());
}

TEST_F(EffectFlowTest, ConfirmAtLevelZeroAndInThePhonesSize) {
    OpenNumbered(60, 40);
    Choose(EEffect::Brightness);
    Click(kConfirm);
    EXPECT_EQ(Undos(), 1) << "a step all the same";
    EXPECT_EQ(Work(), NumberedPixels(60, 40));
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    GoTo(EMode::Effect);
    Choose(EEffect::Negative);
    Click(kConfirm);
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(Work(), 176, 144));
    EXPECT_EQ(Images().m_imgWork.GetSize(), (CSize{60, 40}));
}

TEST_F(EffectFlowTest, CancelLeavesAllAsItWas) {
    OpenNumbered(60, 40);
    Edit(1);
    Edit(2);
    Click(kCmdUndo);
    GoTo(EMode::Effect);
    CSnapshot before = Snapshot();
    ASSERT_EQ(before.nRedo, 1);
    Choose(EEffect::Tile);
    Slide(4);
    Click(kCancel);
    ExpectNoPreview();
    ExpectSliderAtRest();
    ExpectLit(NumberOf(EEffect::Tile));
    // Box and readout go with the preview.
    std::erase(before.arrShown, kEffectPreview);
    std::erase(before.arrShown, kEffectLevel);
    EXPECT_EQ(Snapshot(), before);
}

// Whatever waits is dropped without a word, and the new mode's own rules hold.
TEST_F(EffectFlowTest, AModeSwitchDropsThePreview) {
    for (const EMode nMode : kAllModes) {
        if (nMode == EMode::Effect) continue;
        SCOPED_TRACE("mode " + testing::PrintToString(nMode));
        OpenNumbered(300, 200);
        GoTo(nMode);
        const CSnapshot wanted = Snapshot();
        GoTo(EMode::Effect);
        Choose(EEffect::Sharpness);
        Slide(-4);
        GoTo(nMode);
        CSnapshot now = Snapshot();
        std::erase(now.arrEnabled, kEffectSlider);  // hidden; it comes to rest on the way back
        EXPECT_EQ(now.arrEnabled, wanted.arrEnabled);
        EXPECT_EQ(now.arrShown, wanted.arrShown);
        EXPECT_EQ(now.work, wanted.work);
        EXPECT_EQ(now.nUndo, wanted.nUndo);
        EXPECT_EQ(Controls().Text(kEffectLevel), "     ");
        ExpectNoPreview();
        GoTo(EMode::Effect);
        ExpectNoPreview();
        ExpectSliderAtRest();
        ExpectLit(NumberOf(EEffect::Sharpness));
        Choose(EEffect::Art);
        EXPECT_TRUE(m_dialog.Effects().IsPending());
    }
}

TEST_F(EffectFlowTest, CtrlZUndoesUnderAPreview) {
    OpenNumbered(60, 40);
    Edit(77);
    Edit(78);
    GoTo(EMode::Effect);
    Choose(EEffect::Negative);
    EXPECT_TRUE(CtrlKey('Z'));
    EXPECT_FALSE(Controls().IsEnabled(kCmdUndo)) << "a step that is left lights nothing";
    EXPECT_TRUE(Controls().IsEnabled(kCmdRedo)) << "the one that has come does";
    GoTo(EMode::Thum);
    EXPECT_TRUE(CtrlKey('Z'));
    EXPECT_TRUE(CtrlKey('Y'));
    EXPECT_TRUE(Controls().IsEnabled(kCmdUndo)) << "a push is a push in THUM too";
    GoTo(EMode::Effect);
    Choose(EEffect::Art);
    Choose(EEffect::Negative);
    const CPixels preview = Preview();
    EXPECT_TRUE(CtrlKey('Z'));
    EXPECT_EQ(Work(), NumberedPixels(60, 40));
    EXPECT_TRUE(m_dialog.Effects().IsPending());
    EXPECT_EQ(Preview(), preview) << "the preview stays as it was";
    EXPECT_EQ(Redos(), 2);
    Click(kConfirm);
    EXPECT_EQ(Work(), Engine(NumberedPixels(60, 40), EEffect::Negative, 0, true))
        << "what is there is changed";
    EXPECT_EQ(Redos(), 0);
}

TEST_F(EffectFlowTest, WithoutAPictureAChoiceIsTheListsOwn) {
    GoTo(EMode::Effect);
    CSnapshot before = Snapshot();
    Choose(3);
    EXPECT_EQ(Snapshot(), before);
    EXPECT_EQ(Controls().Selection(kEffectList), 3);
    ExpectLit(-1);
    ExpectSliderAtRest();
}

TEST_F(EffectFlowTest, ANewPictureDropsThePreviewOfTheOld) {
    OpenNumbered(60, 40);
    Choose(EEffect::Brightness);
    OpenNumbered(50, 70);
    ExpectNoPreview();
    ExpectSliderAtRest();
    for (const int nId : {kCmdNew, kCmdSave, kCmdReset, kCmdLarge})
        EXPECT_TRUE(Controls().IsEnabled(nId)) << nId;
    Choose(EEffect::Negative);
    EXPECT_EQ(Preview(), Engine(SmallWork({158, 122}), EEffect::Negative, 0, false));
}

// What swaps a frame would not know of the effect; it also must not know of one that was only looked at.
TEST_F(EffectFlowTest, AFrameCanNoLongerBeSwappedBehindAPreview) {
    OpenNumbered(60, 40);
    for (const int nButton : {kConfirm, kCancel}) {
        bool& bFrameOn = const_cast<CWorkingImages&>(Images()).m_bFrameOn;
        bFrameOn = true;
        Choose(nButton == kConfirm ? EEffect::Negative : EEffect::Art);
        EXPECT_TRUE(bFrameOn);
        Click(nButton);
        EXPECT_FALSE(bFrameOn) << nButton;
    }
}

// What takes its time says so; a slider under the hand and CANCEL do not.
TEST_F(EffectFlowTest, TheWaitCursorComesWithAChoiceAndWithConfirm) {
    OpenNumbered(60, 40);
    const auto Waits = [&](const auto& fnStep) {
        const int nBefore = m_platform.WaitCount();
        fnStep();
        return m_platform.WaitCount() > nBefore;
    };
    EXPECT_TRUE(Waits([&] { Choose(EEffect::Brightness); }));
    EXPECT_FALSE(Waits([&] { Slide(-30); }));
    EXPECT_TRUE(Waits([&] { Click(kConfirm); }));
    Choose(EEffect::Contrast);
    EXPECT_FALSE(Waits([&] { Click(kCancel); }));
}
