#pragma once

#include <array>
#include <span>

#include "engines/warp/TextArtParam.h"
#include "image/Geometry.h"

// How FONT shows the picture: the display image centred on a canvas without scroll bars, at a scale of the
// working image.
struct CTextView {
    CSize sizeDisplay;
    CSize sizeClient;
    float fTextScale = 1.0F;

    // Where the display image begins on the canvas: words are seen where the lines of their shape are.
    CPoint PictureAt() const;
    // The pixel of the working image under a client pixel, fractions cut.
    CPoint ScreenToImage(CPoint pt) const;
    // True if it lies on the display image, more than five pixels from each of its edges.
    bool IsInsideImage(CPoint pt) const;
};

// The shape of the words: four corners to project them onto, and a mesh of 4 x 4 points to bend them by. All
// positions are client pixels of the canvas. After each change the record that the engine gets is told the
// shape in pixels of the working image.
class CTextHandles {
  public:
    static constexpr std::size_t kCorners = 4;
    static constexpr std::size_t kSide = 4;
    static constexpr std::size_t kMeshPoints = kSide * kSide;
    using CQuad = std::array<CPoint, kCorners>;
    using CMesh = std::array<CPoint, kMeshPoints>;

    // Both shapes as they stand when a picture comes: half as wide and a quarter as high as the display
    // image, in its middle.
    void InitTextHandles(const CTextView& view, TextArtParam& param);

    // Clockwise from the top left.
    const CQuad& Quad() const { return m_ptQuad; }
    // Row by row.
    const CMesh& Mesh() const { return m_ptMesh; }
    // The points of the shape that the record's kind is about.
    std::span<const CPoint> Points(const TextArtParam& param) const;
    // The first of these points less than five pixels from pt in either direction; -1 for none.
    int HitTest(const TextArtParam& param, CPoint pt) const;

    // Each is true if the shape has changed.

    // The shape anew: the upright box between two points, the second of which is the one in the hand. A mesh
    // goes down and to the right only.
    bool DrawAnew(const CTextView& view, TextArtParam& param, CPoint ptFrom, CPoint ptTo);
    // One point follows the hand. Those of the mesh's edge stay on it, its corners stay where they are.
    bool DragPoint(const CTextView& view, TextArtParam& param, int nPoint, CPoint pt);
    // The whole shape as at the last release, shifted; not beyond the picture.
    bool MoveAll(const CTextView& view, TextArtParam& param, CPoint ptOffset);
    // What the next drag starts from.
    void Settle();

  private:
    void TellQuad(const CTextView& view, TextArtParam& param) const;
    void TellMesh(const CTextView& view, TextArtParam& param) const;
    void SetMesh(CPoint pt, CSize size);
    bool DragMeshPoint(const CTextView& view, TextArtParam& param, std::size_t nPoint, CPoint pt);

    CQuad m_ptQuad{};
    CQuad m_ptQuadBase{};
    CMesh m_ptMesh{};
    // Decides which points stand on an edge, too.
    CMesh m_ptMeshBase{};
};
