#include "editor/EditorBench.h"

namespace {

using CCommand = std::function<bool(CGeometryCommands&, const CxImage&)>;

struct CCase {
    const char* szName;
    CCommand command;
    CSize sizeDisplay;  // from one of 50 by 40
    CSize sizeWork;
};
const CCase kCases[] = {
    {"flip", [](auto& g, const CxImage& base) { return g.Flip(base, EFlip::Vertical); }, {50, 40}, {30, 20}},
    {"mirror",
     [](auto& g, const CxImage& base) { return g.Flip(base, EFlip::Horizontal); },
     {50, 40},
     {30, 20}},
    {"left", [](auto& g, const CxImage& base) { return g.Turn(base, ETurn::Left); }, {40, 50}, {20, 30}},
    {"right", [](auto& g, const CxImage& base) { return g.Turn(base, ETurn::Right); }, {40, 50}, {20, 30}},
    {"size",
     [](auto& g, const CxImage& base) {
         return g.ChangeSize(base, {300, 200});
     },
     {300, 200},
     {30, 20}},
    {"large", [](auto& g, const CxImage& base) { return g.ZoomIn(base); }, {62, 50}, {30, 20}},
    {"small", [](auto& g, const CxImage& base) { return g.ZoomOut(base); }, {37, 30}, {30, 20}},
    {"actual", [](auto& g, const CxImage& base) { return g.ZoomToActual(base); }, {30, 20}, {30, 20}},
};

using GeometryCommandsTest = EditorBench;

}  // namespace

TEST_F(GeometryCommandsTest, EachCommandIsOneStepFromItsBase) {
    for (const CCase& test : kCases) {
        SCOPED_TRACE(test.szName);
        Open(EMode::Stick);
        m_images.SetDisplaySize({50, 40});
        const CxImage base = FlatImage(30, 20, {0, 200, 0});
        EXPECT_TRUE(test.command(m_geometry, base));
        ASSERT_EQ(m_images.m_stackUndo.Count(), 1);
        const CUndoEntry& entry = m_images.m_stackUndo.Top();
        EXPECT_EQ((CSize{entry.nWidth, entry.nHeight}), (CSize{50, 40}));
        EXPECT_EQ(entry.image.Pixels(), base.Pixels());
        EXPECT_EQ(m_images.DisplaySize(), test.sizeDisplay);
        EXPECT_EQ(m_images.m_imgDisplay.GetSize(), test.sizeDisplay);
        EXPECT_EQ(Work().GetSize(), test.sizeWork);
        EXPECT_EQ(PixelAt(Work().Pixels(), 0, 0), (CColor{0, 200, 0}));
        EXPECT_TRUE(TakeBoxes().empty());
    }
}

// The picture without its frame goes along as long as the frame can be swapped.
TEST_F(GeometryCommandsTest, FlipsAndTurnsMoveThePictureWithoutItsFrameToo) {
    const CPixels bare = NumberedPixels(30, 20, 99);
    const CPixels kWanted[] = {NaiveFlip(bare, true), NaiveFlip(bare, false), NaiveTurn(bare, false),
                               NaiveTurn(bare, true)};
    for (std::size_t i = 0; i < std::size(kCases); ++i)
        for (const bool bFrameOn : {true, false}) {
            Open(EMode::Stick);
            m_images.m_imgNoFrame = NumberedImage(30, 20, 99);
            m_images.m_bFrameOn = bFrameOn;
            EXPECT_TRUE(kCases[i].command(m_geometry, Work()));
            EXPECT_EQ(m_images.m_imgNoFrame.Pixels(), bFrameOn && i < std::size(kWanted) ? kWanted[i] : bare);
            EXPECT_EQ(m_images.m_bFrameOn, bFrameOn);
        }
    // A frame that is on without a picture below it.
    m_images.m_bFrameOn = true;
    m_images.m_imgNoFrame = {};
    EXPECT_TRUE(m_geometry.Flip(Work(), EFlip::Vertical) && m_geometry.Turn(Work(), ETurn::Left));
}

TEST_F(GeometryCommandsTest, AFlipUnderThePhonesSizeKeepsItOutsideDraw) {
    for (const EMode mode : {EMode::Effect, EMode::Draw}) {
        Open(mode);
        m_images.m_sizeRule = ESizeRule::PhoneScreen;
        EXPECT_TRUE(m_geometry.Flip(Work(), EFlip::Vertical));
        EXPECT_EQ(m_images.m_imgDisplay.GetSize(), (mode == EMode::Draw ? CSize{30, 20} : CSize{176, 144}));
    }
}
