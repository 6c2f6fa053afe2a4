// A long walk of random commands, held against a plain model of the edit.

#include <array>
#include <random>

#include "app/Workshop.h"

namespace {

// What an edit holds, in the plainest form: values, copied whole.
struct CModel {
    struct CStep {
        CPixels work;
        CSize sizeDisplay;
        bool bPhone = false;
    };
    bool bOpen = false;
    CStep now;
    CPixels opened;
    std::vector<CStep> arrUndo, arrRedo;

    CSize Ruled() const { return now.bPhone ? CSize{176, 144} : now.sizeDisplay; }
    void Push(std::vector<CStep>& arrSteps) const {
        arrSteps.push_back({now.work, Ruled(), now.bPhone});
        if (arrSteps.size() > 10) arrSteps.erase(arrSteps.begin());
    }
    void Begin() {
        Push(arrUndo);
        arrRedo.clear();
    }
    void Step(std::vector<CStep>& arrFrom, std::vector<CStep>& arrTo) {
        if (!bOpen || arrFrom.empty()) return;
        Push(arrTo);
        now = arrFrom.back();
        arrFrom.pop_back();
    }
    void Undo() { Step(arrUndo, arrRedo); }
    void Redo() { Step(arrRedo, arrUndo); }
    void Reset() {
        if (!bOpen) return;
        Begin();
        now.work = opened;
        now.sizeDisplay = {opened.Width(), opened.Height()};
    }
    void SetRule(bool bPhone) {
        if (bOpen) Begin();
        now.bPhone = bPhone;
    }
    void Start(const CPixels& pixels) {
        bOpen = true;
        opened = now.work = pixels;
        arrUndo.clear();
        arrRedo.clear();
    }
    void Open(const CPixels& pixels) {
        Start(pixels);
        now.sizeDisplay = {pixels.Width(), pixels.Height()};
        now.bPhone = false;
    }
    void New() {
        if (!bOpen) now.sizeDisplay = {640, 480};
        CPixels page;
        page.CreateFilled(Ruled().cx, Ruled().cy, {255, 255, 255});
        Start(page);
    }
};

constexpr std::array<CSize, 4> kSizes = {{{60, 40}, {23, 71}, {700, 30}, {1, 1}}};

class WalkTest : public Workshop {
  protected:
    WalkTest() {
        for (std::size_t n = 0; n < kSizes.size(); ++n)
            SavePicture(NameOfPicture(n), NumberedImage(kSizes[n].cx, kSizes[n].cy));
        m_folder.Write("bad.jpg", "no picture");
    }

    static std::string NameOfPicture(std::size_t n) { return std::to_string(n) + ".png"; }
    int Pick(int nBelow) { return std::uniform_int_distribution<int>(0, nBelow - 1)(m_random); }

    // A click that only a person who sees an enabled button can do.
    bool CanClick(int nId) { return Controls().IsShown(nId) && Controls().IsEnabled(nId); }
    bool TryClick(int nId) {
        if (!CanClick(nId)) return false;
        EXPECT_EQ(m_host.Click(nId), "");
        return true;
    }

    void OpenSomething() {
        const auto n = static_cast<std::size_t>(Pick(static_cast<int>(kSizes.size())));
        const bool bDialog = Pick(2) == 0;
        const int nKind = Pick(8);
        const std::string strName = nKind == 0 ? "bad.jpg" : nKind == 1 ? "noextension" : NameOfPicture(n);
        if (bDialog) {
            m_platform.AnswerOpen(m_folder.Path(strName));
            Click(kCmdOpen);
        } else {
            m_dialog.OpenFileByName(m_folder.Path(), strName);
        }
        if (nKind == 0) m_platform.TakeBoxes();
        if (nKind > 1) m_model.Open(NumberedPixels(kSizes[n].cx, kSizes[n].cy));
    }

    // Another hand paints on the working image behind a push, as the flows of the modes do.
    void PaintSomething() {
        if (!m_model.bOpen || State().m_bDrawMode) return;
        const CColor color{static_cast<std::uint8_t>(Pick(256)), 1, 2};
        PaintOver(*Images().m_pImgWork, color);
        m_model.now.work = Images().m_pImgWork->Pixels();
    }

    void Act() {
        switch (Pick(14)) {
            case 0:
                if (TryClick(kCmdNew)) m_model.New();
                break;
            case 1:
            case 2:
                if (TryClick(kCmdUndo)) m_model.Undo();
                break;
            case 3:
                if (TryClick(kCmdRedo)) m_model.Redo();
                break;
            case 4:
                if (TryClick(kCmdReset)) m_model.Reset();
                break;
            case 5:
                m_model.bOpen ? (CtrlKey('Z'), m_model.Undo()) : m_model.Undo();
                break;
            case 6:
                m_model.bOpen ? (CtrlKey('Y'), m_model.Redo()) : m_model.Redo();
                break;
            case 7:
                if (TryClick(Pick(2) ? kRadioPhoneSize : kLabelPhoneSize))
                    m_model.SetRule(true), PaintSomething();
                break;
            case 8:
                if (TryClick(Pick(2) ? kRadioImageSize : kLabelImageSize))
                    m_model.SetRule(false), PaintSomething();
                break;
            case 9:
                if (Pick(3) == 0) OpenSomething();
                break;
            case 10:
                ClickAnything();
                break;
            default:
                TryClick(TabOf(kAllModes[Pick(5)]));
        }
    }

    // Any other button, any mouse move, any second that passes.
    void ClickAnything() {
        const auto& arrAll = Controls().All();
        const int nId = arrAll[static_cast<std::size_t>(Pick(static_cast<int>(arrAll.size())))].nId;
        m_dialog.OnHover(nId, false);
        if (Pick(4) == 0) m_platform.Tick(700);
        for (const int nSpecial : {kCmdOpen, kCmdNew, kCmdSave, kCmdUndo, kCmdRedo, kCmdReset,
                                   kRadioImageSize, kRadioPhoneSize, kLabelImageSize, kLabelPhoneSize})
            if (nId == nSpecial) return;
        const EControlKind kind = Controls().Find(nId)->kind;
        if (kind == EControlKind::BitmapButton || kind == EControlKind::Check) TryClick(nId);
    }

    void CheckModel() {
        ASSERT_EQ(State().m_bImageOpen, m_model.bOpen);
        ASSERT_EQ(Undos(), static_cast<int>(m_model.arrUndo.size()));
        ASSERT_EQ(Redos(), static_cast<int>(m_model.arrRedo.size()));
        ASSERT_EQ(Images().m_bPhoneSize, m_model.now.bPhone);
        if (!m_model.bOpen) return;
        ASSERT_EQ(Images().DisplaySize(), m_model.now.sizeDisplay);
        ASSERT_TRUE(Images().m_pImgWork->Pixels() == m_model.now.work);
        ASSERT_TRUE(Images().m_pImgOpened->Pixels() == m_model.opened);
    }

    void CheckState() {
        const CEditState& state = State();
        const CWorkingImages& images = Images();
        const bool bOpen = state.m_bImageOpen;
        ASSERT_NE(images.m_bImageSize, images.m_bPhoneSize);
        ASSERT_EQ(Controls().IsChecked(kRadioImageSize), images.m_bImageSize);
        ASSERT_EQ(Controls().IsChecked(kRadioPhoneSize), images.m_bPhoneSize);
        for (const auto* pImage : {&images.m_pImgOpened, &images.m_pImgWork, &images.m_pImgDisplay})
            ASSERT_EQ(*pImage != nullptr && (*pImage)->IsValid(), bOpen);
        ASSERT_EQ(m_platform.WaitDepth(), 0);
        ASSERT_EQ(state.m_nLastMode, state.m_nMode);
        ASSERT_EQ(state.m_bThumbMode, state.m_nMode == kModeThum);
        ASSERT_EQ(state.m_bDrawMode, state.m_nMode == kModeDraw);
        ASSERT_EQ(state.m_bEffectMode, bOpen && state.m_nMode == kModeEffect);
        ASSERT_EQ(state.m_bFontMode, bOpen && state.m_nMode == kModeFont);
        ASSERT_EQ(state.m_bStickMode, bOpen && state.m_nMode == kModeStick);
        ASSERT_EQ(state.m_bEditSource, bOpen && state.m_nMode != kModeThum);
        for (const int nMode : kAllModes) ASSERT_EQ(Controls().IsShown(TabOf(nMode)), nMode != state.m_nMode);
        ASSERT_EQ(Controls().IsShown(kCanvas), bOpen && state.m_nMode != kModeThum);
        ASSERT_EQ(Controls().IsShown(kFileList), state.m_nMode == kModeThum);
        ASSERT_TRUE(Controls().IsEnabled(kCmdOpen) && Controls().IsEnabled(kCmdNew));
    }

    void CheckPicture() {
        const CWorkingImages& images = Images();
        if (!State().m_bImageOpen || State().m_nMode == kModeThum) return;
        ASSERT_EQ(Controls().IsEnabled(kCmdUndo), Undos() > 0);
        ASSERT_EQ(Controls().IsEnabled(kCmdRedo), Redos() > 0);
        if (State().m_bEffectMode || State().m_bStickMode) {
            ASSERT_EQ(images.m_pImgDisplay->GetSize(), images.RuledSize());
        }
        if (State().m_bFontMode) {
            ASSERT_LE(images.m_pImgDisplay->GetWidth(), 649);
            ASSERT_LE(images.m_pImgDisplay->GetHeight(), 533);
        }
        if (State().m_bDrawMode) {
            ASSERT_TRUE(m_dialog.Canvas().CommittedPixels() == images.m_pImgWork->Pixels());
        }
        ASSERT_FALSE(m_dialog.Canvas().WantsPaint());
    }

    std::mt19937 m_random;
    CModel m_model;
};

}  // namespace

TEST_F(WalkTest, TwentyThousandCommands) {
    const unsigned nSeed = std::random_device{}();
    m_random.seed(nSeed);
    for (int nStep = 0; nStep < 20000; ++nStep) {
        SCOPED_TRACE("seed " + std::to_string(nSeed) + ", step " + std::to_string(nStep));
        Act();
        m_host.Pump();
        m_platform.TakeProblems();
        m_platform.TakeAsked();
        CheckModel();
        CheckState();
        CheckPicture();
        if (HasFailure()) return;
    }
}
