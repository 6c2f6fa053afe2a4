// STICK: frames that take each other's place, with everything else that happens to an edit in between.

#include <functional>

#include "app/Workshop.h"
#include "compose/FrameRecord.h"

namespace {

constexpr int kWidth = 60;
constexpr int kHeight = 40;

// Frame n: one colour, with the key in the lower half.
std::vector<std::uint8_t> MakeRecord(int nFrame) {
    std::vector<std::uint8_t> arrBytes;
    for (std::size_t i = 0; i < kFrameRecordBytes / 3; ++i) {
        const bool bKey = i >= kFrameRecordBytes / 6;
        for (const int n : {bKey ? 254 : 200 - nFrame, bKey ? 1 : nFrame, bKey ? 1 : 90})
            arrBytes.push_back(static_cast<std::uint8_t>(n));
    }
    return arrBytes;
}
template <int N>
const std::uint8_t* Record() {
    static const std::vector<std::uint8_t> arrRecord = MakeRecord(N);
    return arrRecord.data();
}
const std::uint8_t* NoRecord() {
    return nullptr;
}

CxImage Framed(CxImage image, const std::uint8_t* pRecord) {
    EXPECT_TRUE(LayFrame(pRecord, image));
    return image;
}

class StickTest : public Workshop {
  protected:
    StickTest() {
        AddFunction(3, &Record<3>);
        AddFunction(5, &Record<5>);
        AddFunction(7, &Record<7>);
        AddFunction(9, &NoRecord);
    }
    void AddFunction(int nFrame, const std::uint8_t* (*pFunction)()) {
        m_platform.Libraries().AddFunction("FuncStickerFrameData_" + std::to_string(nFrame),
                                           reinterpret_cast<void*>(pFunction));
    }
    void Begin() {
        OpenNumbered(kWidth, kHeight);
        GoTo(EMode::Stick);
    }
    // In any mode, as a click on it would be in STICK.
    void Choose(int nItem) {
        GoTo(EMode::Stick);
        EXPECT_EQ(m_host.SelectRow(kFrameList, nItem), "");
        EXPECT_EQ(m_platform.Libraries().LoadedCount(), 0);
    }
    int Mark() { return Controls().Selection(kFrameList); }
    const CPixels& Work() const { return Images().m_imgWork.Pixels(); }
    bool IsFrameOn() const { return Images().m_bFrameOn; }
    static CPixels Bare() { return NumberedPixels(kWidth, kHeight); }
    template <int N>
    static CPixels Framed() {
        return ::Framed(NumberedImage(kWidth, kHeight), Record<N>()).Pixels();
    }
};

const CMessageBox kNoFrames{"没有搜索到StickerFrameData.dll文件", "Orvo Fotarium V 1.0",
                            EBoxIcon::Exclamation, EBoxButtons::Ok};

}  // namespace

TEST_F(StickTest, WithoutAPictureTheFocusGoesToTheSizeRule) {
    GoTo(EMode::Stick);
    for (const int nRadio : {kRadioPhoneSize, kRadioImageSize}) {
        Click(nRadio);
        for (const int nItem : {3, 0, -1}) {
            Controls().SetFocus(kFrameList);
            Choose(nItem);
            EXPECT_EQ(Controls().Focus(), nRadio);
            EXPECT_EQ(Mark(), -1);
        }
    }
    EXPECT_EQ(Undos(), 0);
    EXPECT_TRUE(m_platform.Libraries().Asked().empty());
}

TEST_F(StickTest, OneFrameTakesThePlaceOfAnother) {
    Begin();
    const int nWaits = m_platform.WaitCount();
    for (const int nItem : {7, 3}) Choose(nItem);
    EXPECT_EQ(m_platform.WaitCount(), nWaits + 2);
    EXPECT_EQ(m_platform.Libraries().Asked(), std::vector<std::string>(2, "StickerFrameData.dll"));
    EXPECT_EQ(Difference(Work(), Framed<3>()), "");
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), Work());
    EXPECT_EQ(Images().m_imgOpened.Pixels(), Bare());
    EXPECT_TRUE(IsFrameOn());
    EXPECT_EQ(Mark(), 3);
    EXPECT_EQ(Undos(), 2);
    // Back to no frame, and once more with none on.
    for (int n = 3; n < 5; ++n) {
        Choose(0);
        EXPECT_EQ(Work(), Bare());
        EXPECT_EQ(Images().m_imgDisplay.Pixels(), Bare());
        EXPECT_FALSE(IsFrameOn());
        EXPECT_EQ(Undos(), n);
    }
}

TEST_F(StickTest, ASizeRuleOnlyChoosesHowAFrameIsShown) {
    Begin();
    m_dialog.OnCommand(kCmdLarge);
    Choose(3);
    EXPECT_EQ(Work(), Framed<3>());
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(Framed<3>(), 75, 50));
    Click(kRadioPhoneSize);
    Choose(5);
    EXPECT_EQ(Work(), Framed<5>());
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(Framed<5>(), 176, 144));
    EXPECT_EQ(Images().DisplaySize(), (CSize{75, 50}));
    Choose(0);
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), NaiveResample(Bare(), 176, 144));
}

// The old frame is off the working image, and still on for all that asks.
TEST_F(StickTest, AClickBesideTheItemsIsAStepAndLeavesWhatIsSeen) {
    Begin();
    Choose(-1);
    EXPECT_EQ(Undos(), 1);
    EXPECT_EQ(Work(), Bare());
    EXPECT_FALSE(IsFrameOn());
    Choose(3);
    Click(kCmdUndo);
    EXPECT_EQ(Redos(), 1);
    Choose(3);
    Choose(-1);
    EXPECT_EQ(Mark(), -1);
    EXPECT_EQ(Undos(), 3);
    EXPECT_EQ(Redos(), 0);
    EXPECT_EQ(Work(), Bare());
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), Framed<3>());
    EXPECT_TRUE(IsFrameOn());
    Click(kCmdUndo);
    EXPECT_EQ(Work(), Framed<3>());
    Choose(5);
    EXPECT_EQ(Work(), Framed<5>());
}

TEST_F(StickTest, AMissingFrameIsOnByName) {
    Begin();
    // One that the library lacks, one without a record, and no library at all.
    for (const int nItem : {4, 9, 3}) {
        if (nItem == 3) m_platform.Libraries().RemoveFunctions();
        const int nUndos = Undos();
        EXPECT_EQ(m_host.SelectRow(kFrameList, nItem), "");
        ExpectBoxes({kNoFrames});
        EXPECT_EQ(Undos(), nUndos + 1);
        EXPECT_EQ(Work(), Bare());
        EXPECT_EQ(Images().m_imgDisplay.Pixels(), Bare());
        EXPECT_TRUE(IsFrameOn());
        EXPECT_EQ(Mark(), nItem);
    }
    AddFunction(3, &Record<3>);
    Choose(3);
    EXPECT_EQ(Work(), Framed<3>());
    // In the place of one that is on, it takes that off.
    m_platform.Libraries().RemoveFunctions();
    EXPECT_EQ(m_host.SelectRow(kFrameList, 5), "");
    ExpectBoxes({kNoFrames});
    EXPECT_EQ(Work(), Bare());
    EXPECT_EQ(Images().m_imgDisplay.Pixels(), Bare());
}

TEST_F(StickTest, HistoryKnowsThePictureWithoutItsFrame) {
    Begin();
    const std::pair<int, CPixels> kSteps[] = {
        {3, Framed<3>()}, {5, Framed<5>()}, {0, Bare()}, {7, Framed<7>()}};
    for (const auto& [nItem, pixels] : kSteps) Choose(nItem);
    const auto nSteps = std::size(kSteps);
    for (int nRound = 0; nRound < 2; ++nRound) {
        for (std::size_t n = nSteps; n-- > 0;) {
            Click(kCmdUndo);
            EXPECT_EQ(Work(), n == 0 ? Bare() : kSteps[n - 1].second);
            EXPECT_EQ(IsFrameOn(), n != 0 && kSteps[n - 1].first != 0);
        }
        for (const auto& [nItem, pixels] : kSteps) {
            Click(kCmdRedo);
            EXPECT_EQ(Work(), pixels);
            EXPECT_EQ(IsFrameOn(), nItem != 0);
        }
    }
    // From every place on the way the next frame goes over the bare picture.
    for (std::size_t n = 0; n <= nSteps; ++n) {
        SCOPED_TRACE(n);
        for (std::size_t i = 0; i < n; ++i) Click(kCmdUndo);
        Choose(5);
        EXPECT_EQ(Difference(Work(), Framed<5>()), "");
        Click(kCmdUndo);
        Choose(0);
        EXPECT_EQ(Work(), Bare());
        Click(kCmdUndo);
        for (std::size_t i = n; i < nSteps; ++i) Click(kCmdUndo);
        for (const auto& [nItem, pixels] : kSteps) Choose(nItem);
    }
}

// What a command makes of the picture and of the same without its frame, and what the next frame goes over.
TEST_F(StickTest, CommandsWithAFrameOn) {
    const CPixels framed = Framed<3>();
    const auto fnTurned = [](const CPixels& pixels) {
        CxImage image(pixels);
        EXPECT_TRUE(image.Rotate(-90));
        return image.Pixels();
    };
    const auto fnEffect = [this](EEffect effect, int nEnd) {
        GoTo(EMode::Effect);
        EXPECT_EQ(m_host.SelectRow(kEffectList, NumberOf(effect)), "");
        Click(nEnd);
    };
    const CPixels negative = [&] {
        CPixels pixels = framed;
        for (std::uint8_t& byte : pixels.MutableBytes()) byte = static_cast<std::uint8_t>(255 - byte);
        return pixels;
    }();
    const struct {
        const char* szName;
        std::function<void()> fnDo;
        bool bFrameOn;
        CPixels work;  // behind it
        CPixels bare;  // what the next frame goes over
    } kCases[] = {
        {"turn", [&] { Click(kCmdTurnLeft); }, true, fnTurned(framed), fnTurned(Bare())},
        {"flip", [&] { Click(kCmdFlipVertical); }, true, NaiveFlip(framed, true), NaiveFlip(Bare(), true)},
        {"mirror", [&] { Click(kCmdFlipHorizontal); }, true, NaiveFlip(framed, false),
         NaiveFlip(Bare(), false)},
        {"large", [&] { Click(kCmdLarge); }, true, framed, Bare()},
        {"reset", [&] { Click(kCmdReset); }, true, Bare(), Bare()},
        // Turned and large, then brought to the size as opened: only the working image takes that.
        {"actual",
         [&] {
             Click(kCmdTurnLeft);
             Click(kCmdLarge);
             Click(kCmdActual);
         },
         true, fnTurned(framed), fnTurned(Bare())},
        {"confirm", [&] { fnEffect(EEffect::Negative, kConfirm); }, false, negative, negative},
        {"cancel", [&] { fnEffect(EEffect::Brightness, kCancel); }, false, framed, framed},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.szName);
        Begin();
        Choose(3);
        row.fnDo();
        EXPECT_EQ(Difference(Work(), row.work), "");
        EXPECT_EQ(IsFrameOn(), row.bFrameOn);
        const int nUndos = Undos();
        Choose(7);
        EXPECT_EQ(Difference(Work(), ::Framed(CxImage(row.bare), Record<7>()).Pixels()), "");
        EXPECT_TRUE(IsFrameOn());
        EXPECT_EQ(Undos(), nUndos + 1);
        Choose(0);
        EXPECT_EQ(Difference(Work(), row.bare), "");
        // All the way back: the frame is on, and off by the next click, with nothing of it left. CANCEL alone
        // is no step, so its end of the frame stays.
        while (Undos() > 1) Click(kCmdUndo);
        EXPECT_EQ(Work(), framed);
        const bool bCancelled = std::string("cancel") == row.szName;
        EXPECT_EQ(IsFrameOn(), !bCancelled);
        Choose(0);
        EXPECT_EQ(Work(), bCancelled ? framed : Bare());
    }
}

// Actual alone changes the size of the working image, and not of the picture without its frame.
TEST_F(StickTest, ActualLeavesThePictureWithoutItsFrame) {
    Begin();
    Choose(3);
    Touch(Images().m_imgWork) = NumberedImage(30, 20);
    Click(kCmdActual);
    EXPECT_EQ(Work(), NaiveResample(NumberedPixels(30, 20), kWidth, kHeight));
    Choose(0);
    EXPECT_EQ(Work(), Bare());
}

TEST_F(StickTest, ANewPictureHasNoFrame) {
    Begin();
    Choose(3);
    Click(kCmdNew);
    EXPECT_FALSE(IsFrameOn());
    const CPixels page = Work();
    Choose(5);
    Choose(0);
    EXPECT_EQ(Work(), page);
    Begin();
    EXPECT_FALSE(IsFrameOn());
    Choose(5);
    EXPECT_EQ(Work(), Framed<5>());
}

TEST_F(StickTest, KeysChooseAsAClickDoes) {
    Begin();
    Controls().SetFocus(kFrameList);
    const auto press = [this](int nKey) { EXPECT_EQ(m_host.Key({nKey}), ""); };
    press(kKeyDown);
    EXPECT_EQ(Mark(), 0);
    press(kKeyRight);
    press(kKeyDown);
    EXPECT_EQ(Mark(), 3);
    EXPECT_EQ(Work(), Framed<3>());
    ExpectBoxes({kNoFrames});  // of frame 1 on the way
    EXPECT_EQ(Undos(), 3);
}
