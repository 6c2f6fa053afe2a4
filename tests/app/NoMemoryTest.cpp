// Every command with one of its large blocks refused, each in turn: the edit stays as it was, and the user is
// told.

#include <functional>
#include <new>

#include "app/PaintWorkshop.h"
#include "compose/FrameRecord.h"
#include "support/ShortMemory.h"

namespace {

const CMessageBox kNoMemory{"Memory leak", "Orvo Fotarium V 1.0", EBoxIcon::Exclamation, EBoxButtons::Ok};

// What must be as it was.
struct CEditNow {
    CSnapshot snapshot;
    CPixels committed;
    bool bFloating = false;
    bool bMarked = false;
    ETool tool = ETool::SelectRect;
    std::vector<int> arrMarks;  // of lists and slider
    bool bFrameOn = false;
    CPixels noFrame;
    bool operator==(const CEditNow&) const = default;
};

class NoMemoryTest : public PaintWorkshop {
  protected:
    NoMemoryTest() {
        // Every picture of the edit takes more than the smallest block that counts, the preview too.
        m_strPicture = SavePicture("picture.bmp", NumberedImage(210, 190));
    }

    CEditNow Now() {
        return {Snapshot(),
                Draw().Paper().Committed().Pixels(),
                Draw().IsFloating(),
                Draw().Selection().IsMarked(),
                Tools().m_nTool,
                {Controls().Selection(kEffectList), Controls().Position(kEffectSlider),
                 Controls().Selection(kFrameList)},
                Images().m_bFrameOn,
                Images().m_imgNoFrame.Pixels()};
    }
    // Runs it with the first, second, ... large block refused until it needs no more of them. nElse: so many
    // come first that belong to something else, a dialog's window for one.
    void Try(const std::string& strName, const std::function<void()>& command, int nElse = 0) {
        SCOPED_TRACE(strName);
        m_host.Pump();
        const CEditNow before = Now();
        for (int n = 1; n < 30; ++n) {
            SCOPED_TRACE("block " + std::to_string(n));
            bool bRefused = false;
            {
                const CBlockGate gate(nElse + n);
                command();
                bRefused = gate.HasRefused();
            }
            const std::vector<CMessageBox> arrBoxes = m_platform.TakeBoxes();
            m_platform.TakeProblems();
            m_platform.TakeAsked();
            EXPECT_EQ(m_platform.WaitDepth(), 0);
            // What the clipboard does not take is another story.
            const bool bClipboard = arrBoxes.size() == 1 && arrBoxes[0].strText.starts_with("Unable to set");
            if (!bRefused || bClipboard) {
                EXPECT_TRUE(bClipboard || arrBoxes.empty());
                EXPECT_GT(n, 1) << "it takes no memory";
                m_host.Pump();
                return;
            }
            EXPECT_EQ(arrBoxes, std::vector<CMessageBox>{kNoMemory});
            ASSERT_TRUE(Now() == before);
        }
        ADD_FAILURE() << "it never ends";
    }
    void TryCommand(int nId) {
        Try("command " + std::to_string(nId), [=, this] { m_dialog.OnCommand(nId); });
    }
    void OpenPicture() {
        Open(m_strPicture);
        ASSERT_TRUE(State().m_bImageOpen);
    }
    // DRAW with a step behind it and a float up, or with what was copied for it still marked.
    void Mark() {
        Tool(ETool::SelectRect);
        Drag({5, 5}, {205, 185});
    }
    void Float() {
        Mark();
        Click(kCmdCopy);
        Click(kCmdPaste);
        ASSERT_TRUE(Draw().IsFloating());
    }

    std::string m_strPicture;
};

}  // namespace

TEST_F(NoMemoryTest, CommandsOfThePictureModes) {
    for (const EMode mode : {EMode::Effect, EMode::Stick}) {
        OpenPicture();
        GoTo(mode);
        for (const int nId : {kCmdLarge, kCmdLarge, kCmdSmall, kCmdUndo, kCmdRedo, kCmdLarge,
                              kCmdFlipVertical, kCmdFlipHorizontal, kCmdTurnLeft, kCmdTurnRight, kCmdNew})
            TryCommand(nId);
    }
    TryCommand(kRadioPhoneSize);
    TryCommand(kCmdFlipVertical);
    TryCommand(kCmdReset);
    TryCommand(kCmdNew);
}

TEST_F(NoMemoryTest, ASizeFromItsDialog) {
    OpenPicture();
    CBlockGate* pGate = nullptr;
    int nWindow = 0;
    m_platform.SetRunner(kDlgSize, [&](CPlayHost& host) {
        if (pGate != nullptr) nWindow = pGate->Count();
        EXPECT_EQ(host.Type(kSizeWidth, "300"), "");
        EXPECT_EQ(host.Click(pGate == nullptr ? kSizeOk : kSizeCancel), "");
    });
    {
        CBlockGate gate(0);
        pGate = &gate;
        m_dialog.OnCommand(kCmdSize);
        pGate = nullptr;
    }
    m_platform.TakeAsked();
    Try(
        "size", [this] { m_dialog.OnCommand(kCmdSize); }, nWindow);
    EXPECT_NE(Images().DisplaySize(), (CSize{210, 190}));
}

TEST_F(NoMemoryTest, ModesAndNew) {
    Open(SavePicture("large.bmp", NumberedImage(900, 700)));
    GoTo(EMode::Stick);
    m_dialog.OnCommand(kCmdLarge);
    m_host.Pump();
    for (const int nTab : {kTabFont, kTabEffect, kTabDraw, kTabStick}) TryCommand(nTab);
    GoTo(EMode::Font);
    TryCommand(kCmdNew);
    GoTo(EMode::Draw);
    TryCommand(kCmdNew);
}

// What finds no memory is no picture; both names are the new file's whatever becomes of it.
TEST_F(NoMemoryTest, Open) {
    OpenPicture();
    Edit(1);
    const CEditNow before = Now();
    for (int n = 1, nBoxes = 1; nBoxes == 1; ++n) {
        {
            const CBlockGate gate(n);
            m_dialog.OpenFileByName(m_folder.Path(), "picture.bmp");
        }
        nBoxes = static_cast<int>(m_platform.TakeBoxes().size());
        ASSERT_EQ(Now() == before, nBoxes == 1);
        EXPECT_TRUE(nBoxes == 1 || n > 2);
    }
    m_platform.TakeProblems();
    EXPECT_EQ(Undos(), 0);
}

TEST_F(NoMemoryTest, Effects) {
    OpenPicture();
    for (const int nEffect :
         {NumberOf(EEffect::Brightness), NumberOf(EEffect::Art), NumberOf(EEffect::OilPainting),
          NumberOf(EEffect::Tile), NumberOf(EEffect::Haze1)}) {
        const auto choose = [&] {
            Controls().Select(kEffectList, nEffect);
            m_dialog.OnNotify(kEffectList, ENotice::SelectionChanged);
        };
        Try("choice", choose);
        ASSERT_TRUE(m_dialog.Effects().IsPending());
        if (Controls().IsShown(kEffectSlider)) {
            Try("slider", [&] {
                Controls().SetPosition(kEffectSlider, Controls().Find(kEffectSlider)->nMin + 3);
                m_dialog.OnNotify(kEffectSlider, ENotice::Scrolled);
            });
        }
        TryCommand(kConfirm);
    }
}

TEST_F(NoMemoryTest, Frames) {
    static const std::vector<std::uint8_t> arrRecord(kFrameRecordBytes, 9);
    using CRecordFunction = const std::uint8_t* (*)();
    const CRecordFunction pRecord = [] { return arrRecord.data(); };
    for (const int nFrame : {3, 5})
        m_platform.Libraries().AddFunction("FuncStickerFrameData_" + std::to_string(nFrame),
                                           reinterpret_cast<void*>(pRecord));
    OpenPicture();
    GoTo(EMode::Stick);
    for (const int nRadio : {kRadioImageSize, kRadioPhoneSize}) {
        Click(nRadio);
        m_dialog.OnCommand(nRadio == kRadioImageSize ? kCmdLarge : kCmdFlipVertical);
        for (const int nItem : {3, 5, 0})
            Try("frame " + std::to_string(nItem), [=, this] {
                Controls().Select(kFrameList, nItem);
                m_dialog.OnNotify(kFrameList, ENotice::Clicked);
            });
    }
    EXPECT_EQ(m_platform.Libraries().LoadedCount(), 0);
    Click(kRadioImageSize);
    EXPECT_EQ(m_host.SelectRow(kFrameList, 3), "");
    for (const int nId : {kCmdFlipVertical, kCmdTurnLeft, kCmdUndo}) TryCommand(nId);
}

TEST_F(NoMemoryTest, CommandsOfDraw) {
    const int kCommands[] = {kCmdFlipVertical, kCmdFlipHorizontal, kCmdTurnLeft, kCmdTurnRight};
    for (const bool bFloat : {false, true}) {
        for (const int nId : kCommands) {
            OpenPicture();
            GoTo(EMode::Draw);
            if (bFloat) Float();
            TryCommand(nId);
        }
        for (const int nId : {kCmdUndo, kCmdReset, kTabEffect, kTabThum, kTabFont}) {
            if (!bFloat) break;
            OpenPicture();
            GoTo(EMode::Draw);
            Float();
            TryCommand(nId);
        }
    }
    OpenPicture();
    GoTo(EMode::Draw);
    Mark();
    TryCommand(kCmdCopy);
    TryCommand(kCmdPaste);
    TryCommand(FindToolButton(ETool::Pen));
    Mark();
    TryCommand(kCmdCut);
    Mark();
    TryCommand(kCmdCrop);
    GoTo(EMode::Effect);
    TryCommand(kCmdActual);
}

// What the canvas needs is as with every command; what the preview lacks it does not show, and a page that
// lacks something is not printed.
TEST_F(NoMemoryTest, Print) {
    CScriptedPrinters& printers = m_platform.Printers();
    int nTold = 0;
    for (int n = 1; n < 60; ++n) {
        SCOPED_TRACE("block " + std::to_string(n));
        OpenPicture();
        GoTo(EMode::Draw);
        Float();
        CAnswer answer;
        answer.question = EQuestion::Print;
        answer.arrSteps = {"ok"};
        m_platform.Answer(answer);
        const CEditNow before = Now();
        const int nPrinted = printers.Documents();
        bool bRefused = false;
        {
            const CBlockGate gate(n);
            m_dialog.OnCommand(kCmdPrint);
            bRefused = gate.HasRefused();
        }
        m_platform.ForgetAnswers();
        m_platform.TakeProblems();
        const std::vector<CMessageBox> arrBoxes = m_platform.TakeBoxes();
        if (!arrBoxes.empty()) {
            ++nTold;
            EXPECT_EQ(arrBoxes, std::vector<CMessageBox>{kNoMemory});
            EXPECT_EQ(printers.Documents(), nPrinted);
        } else {
            EXPECT_EQ(printers.Documents(), nPrinted + 1);
        }
        EXPECT_TRUE(Now() == before || !Draw().IsFloating());
        if (!bRefused) break;
    }
    EXPECT_GE(nTold, 2);
}

// Each on a picture that the edit and both stores still share. Who is told so goes on with nothing.
TEST_F(NoMemoryTest, Strokes) {
    const auto drag = [this] { Drag({5, 5}, {205, 185}); };
    const auto corners = [this] {
        for (const CPoint pt : {CPoint{9, 9}, CPoint{180, 20}, CPoint{100, 170}}) {
            if (!m_platform.Boxes().empty()) return;
            Drag(pt, pt);
        }
        Mouse(EMouseAction::DoubleClick, {100, 170});
        Mouse(EMouseAction::Release, {100, 170});
    };
    const auto bend = [this] {
        for (const CPoint pt : {CPoint{205, 185}, CPoint{9, 180}, CPoint{180, 9}}) {
            if (m_platform.Boxes().empty()) Drag({5, 5}, pt);
        }
    };
    const std::pair<ETool, std::function<void()>> kStrokes[] = {
        {ETool::Pen, drag},        {ETool::Brush, drag},
        {ETool::Eraser, drag},     {ETool::Airbrush, drag},
        {ETool::Line, drag},       {ETool::Rectangle, drag},
        {ETool::Ellipse, drag},    {ETool::RoundRect, drag},
        {ETool::Polygon, corners}, {ETool::Curve, bend},
        {ETool::Fill, drag},       {ETool::SelectRect, drag},
        {ETool::SelectFree, drag}, {ETool::SelectPolygon, corners},
    };
    for (const auto& [tool, stroke] : kStrokes) {
        OpenPicture();
        GoTo(EMode::Draw);
        Tool(tool);
        Try("tool " + std::to_string(static_cast<int>(tool)), stroke);
    }
    // A float is merged by a press beside it; the edit holds the paper's pixels too.
    Float();
    m_dialog.OnCommand(kCmdUndo);
    m_host.Pump();
    Float();
    PressWindow({30, 400});
    Try("beside the float", [this] { Drag({208, 188}, {100, 100}); });
    EXPECT_FALSE(Draw().IsFloating());
}

TEST_F(NoMemoryTest, Words) {
    OpenPicture();
    GoTo(EMode::Font);
    TryCommand(kTextApply);
    Try("colour", [this] {
        m_platform.AnswerColor({1, 2, 3});
        m_dialog.OnCommand(kTextColor);
    });
    EXPECT_EQ(m_dialog.TextArt().TextColor(), (CColor{1, 2, 3}));
    Try("font", [this] {
        m_platform.AnswerFont("黑体", true);
        m_dialog.OnCommand(kTextFont);
    });
    Try("style", [this] {
        Controls().Select(kTextEffectList, 2);
        m_dialog.OnNotify(kTextEffectList, ENotice::SelectionChanged);
    });
    EXPECT_EQ(m_dialog.TextArt().Param().nTextEffect, 2);
    for (const int nShape : {kRadioMesh, kRadioProjection}) TryCommand(nShape);
    const CPoint pt = m_dialog.TextArt().Guest().Handles().Quad()[0];
    Try("shape", [&] {
        for (const auto action : {EMouseAction::Press, EMouseAction::Release})
            EXPECT_EQ(m_host.MouseOnView(kCanvas, action, EMouseButton::Left, pt), "");
    });
}
