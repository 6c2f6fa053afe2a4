// The shape of the words: what a hand may do to corners and mesh, and what the engine is told of it.

#include "compose/TextHandles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// A picture of 1298 by 400 pixels, shown at half its size on a canvas without bars.
const CTextView kHalf{{649, 200}, {659, 543}, 0.5F};

class TextHandles : public testing::Test {
  protected:
    TextHandles() { m_handles.InitTextHandles(kHalf, m_param); }
    void UseMesh() { m_param.nWarpKind = kWarpMesh; }
    CPoint Mesh(std::size_t n) const { return m_handles.Mesh()[n]; }
    CPoint Told(std::size_t n) const {
        return {static_cast<int>(m_param.fMeshDstX[n]), static_cast<int>(m_param.fMeshDstY[n])};
    }

    TextArtParam m_param;
    CTextHandles m_handles;
};

}  // namespace

TEST_F(TextHandles, StartInTheMiddleOfThePicture) {
    EXPECT_EQ(m_handles.Quad(), (CTextHandles::CQuad{{{167, 246}, {491, 246}, {491, 296}, {167, 296}}}));
    EXPECT_EQ(Mesh(5), (CPoint{167 + 108, 246 + 16}));
    EXPECT_EQ(Mesh(15), (CPoint{491, 296}));
    // (167 - 2) / 0.5 and (246 - 169) / 0.5
    EXPECT_EQ((CPoint{m_param.nBoxX, m_param.nBoxY}), (CPoint{330, 154}));
    EXPECT_EQ((CSize{m_param.nBoxWidth, m_param.nBoxHeight}), (CSize{648, 100}));
    EXPECT_EQ(m_param.fQuad, (std::array<float, 8>{0, 0, 648, 0, 648, 100, 0, 100}));
    EXPECT_EQ((CPoint{m_param.nMeshX, m_param.nMeshY}), (CPoint{330, 154}));
    EXPECT_EQ(Told(5), (CPoint{216, 32}));
    EXPECT_EQ(m_param.fMeshSrcX, m_param.fMeshDstX);
}

TEST_F(TextHandles, PointsCutTowardsZeroAndStayOffTheEdge) {
    EXPECT_EQ(kHalf.ScreenToImage({1, 168}), (CPoint{-2, -2}));
    const CTextView odd{{100, 60}, {659, 543}, 0.3F};
    EXPECT_EQ(odd.ScreenToImage({276, 238}), (CPoint{-3, -3})) << "-1 / 0.3, the fraction cut";
    // The picture stands at (5, 171).
    for (const CPoint pt : {CPoint{11, 177}, CPoint{648, 365}}) EXPECT_TRUE(kHalf.IsInsideImage(pt));
    for (const CPoint pt : {CPoint{10, 200}, CPoint{649, 200}, CPoint{200, 176}, CPoint{200, 366}})
        EXPECT_FALSE(kHalf.IsInsideImage(pt)) << pt.x << ", " << pt.y;
}

TEST_F(TextHandles, AreHitWithinFourPixelsTheFirstOneFirst) {
    EXPECT_EQ(m_handles.HitTest(m_param, {171, 250}), 0);
    EXPECT_EQ(m_handles.HitTest(m_param, {172, 250}), -1);
    EXPECT_EQ(m_handles.HitTest(m_param, {487, 300}), 2);
    EXPECT_TRUE(m_handles.DragPoint(kHalf, m_param, 3, {169, 247}));
    EXPECT_EQ(m_handles.HitTest(m_param, {169, 247}), 0) << "of two the one with the lower number";
    UseMesh();
    EXPECT_EQ(m_handles.HitTest(m_param, {275, 262}), 5);
}

// The box goes around the corners wherever they are, also beyond a thousand pixels.
TEST_F(TextHandles, ACornerTakesTheBoxAlong) {
    EXPECT_TRUE(m_handles.DragPoint(kHalf, m_param, 1, {640, 180}));
    EXPECT_EQ((CPoint{m_param.nBoxX, m_param.nBoxY}), (CPoint{330, 22}));
    EXPECT_EQ((CSize{m_param.nBoxWidth, m_param.nBoxHeight}), (CSize{946, 232}));
    EXPECT_EQ(m_param.fQuad, (std::array<float, 8>{0, 132, 946, 0, 648, 232, 0, 232}));
}

TEST_F(TextHandles, AShapeDrawnAnewGoesFromPointToPoint) {
    EXPECT_TRUE(m_handles.DrawAnew(kHalf, m_param, {300, 300}, {200, 250}));
    EXPECT_EQ(m_handles.Quad(), (CTextHandles::CQuad{{{300, 300}, {200, 300}, {200, 250}, {300, 250}}}));
    UseMesh();
    EXPECT_FALSE(m_handles.DrawAnew(kHalf, m_param, {300, 300}, {299, 320})) << "a mesh not to the left";
    EXPECT_FALSE(m_handles.DrawAnew(kHalf, m_param, {300, 300}, {310, 299}));
    EXPECT_EQ(Mesh(0), (CPoint{167, 246}));
    EXPECT_TRUE(m_handles.DrawAnew(kHalf, m_param, {200, 190}, {301, 290}));
    EXPECT_EQ(Mesh(6), (CPoint{267, 223})) << "two thirds and one, cut";
    EXPECT_EQ((CSize{m_param.nMeshWidth, m_param.nMeshHeight}), (CSize{202, 200}));
    EXPECT_EQ(m_param.fMeshSrcY, m_param.fMeshDstY);
}

TEST_F(TextHandles, MeshPointsKeepToTheirEdges) {
    UseMesh();
    const auto nGridBefore = m_param.fMeshSrcX;
    for (const int nCorner : {0, 3, 12, 15})
        EXPECT_FALSE(m_handles.DragPoint(kHalf, m_param, nCorner, {300, 270})) << nCorner;
    EXPECT_TRUE(m_handles.DragPoint(kHalf, m_param, 1, {250, 260}));
    EXPECT_EQ(Mesh(1), (CPoint{250, 246})) << "along the upper edge";
    EXPECT_TRUE(m_handles.DragPoint(kHalf, m_param, 11, {300, 270}));
    EXPECT_EQ(Mesh(11), (CPoint{491, 270})) << "along the right one";
    EXPECT_TRUE(m_handles.DragPoint(kHalf, m_param, 9, {300, 250}));
    EXPECT_EQ(Mesh(9), (CPoint{300, 250}));
    for (const CPoint pt : {CPoint{167, 270}, CPoint{491, 270}, CPoint{300, 246}, CPoint{300, 296}})
        EXPECT_FALSE(m_handles.DragPoint(kHalf, m_param, 9, pt)) << "on the edge it goes no further";
    EXPECT_EQ(Told(9), (CPoint{266, 8}));
    EXPECT_EQ(Told(1), (CPoint{166, 0}));
    EXPECT_EQ(m_param.fMeshSrcX, nGridBefore) << "the grid that they come from stays regular";
    // What an edge is, the last release says.
    m_handles.Settle();
    EXPECT_TRUE(m_handles.DragPoint(kHalf, m_param, 1, {260, 290}));
    EXPECT_EQ(Mesh(1), (CPoint{260, 246}));
}

TEST_F(TextHandles, TheWholeMovesFromWhereItWasAndNotOffThePicture) {
    EXPECT_TRUE(m_handles.MoveAll(kHalf, m_param, {10, -5}));
    EXPECT_TRUE(m_handles.MoveAll(kHalf, m_param, {20, 5}));
    EXPECT_EQ(m_handles.Quad()[0], (CPoint{187, 251}));
    EXPECT_EQ((CPoint{m_param.nBoxX, m_param.nBoxY}), (CPoint{370, 164}));
    EXPECT_TRUE(m_handles.MoveAll(kHalf, m_param, {157, 0}));
    EXPECT_FALSE(m_handles.MoveAll(kHalf, m_param, {158, 0})) << "its right corners would leave";
    EXPECT_EQ(m_handles.Quad()[1], (CPoint{648, 246}));
    UseMesh();
    ASSERT_TRUE(m_handles.DragPoint(kHalf, m_param, 5, {280, 265}));
    const MeshValues bent = m_param.fMeshDstX;
    m_handles.Settle();
    EXPECT_TRUE(m_handles.MoveAll(kHalf, m_param, {-40, 20}));
    EXPECT_EQ(Mesh(5), (CPoint{240, 285}));
    EXPECT_EQ((CPoint{m_param.nMeshX, m_param.nMeshY}), (CPoint{250, 194}));
    EXPECT_EQ(m_param.fMeshDstX, bent) << "the grids count from the box";
}
