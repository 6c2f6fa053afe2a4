#pragma once

#include "editor/CanvasPort.h"
#include "editor/EditState.h"
#include "editor/WorkingImages.h"
#include "paint/ToolCanvas.h"
#include "paint/ToolState.h"
#include "window/ScrollView.h"

// What the canvas tells the window that it stands in.
class CCanvasHost {
  public:
    virtual ~CCanvasHost() = default;
    // A paint has ended: the info lines are to be brought up to date.
    virtual void OnCanvasPainted() = 0;
    // A right press outside FONT and DRAW.
    virtual void OnPictureMenu() = 0;
};

// The canvas: shows the picture in every mode but THUM, and is the paper of DRAW. There it holds the picture
// in two stores of the picture's size: the committed one is the picture, the scratch one the picture with
// what the hand is doing at this moment.
class CMySCrollView : public CScrollView, public CCanvasPort, public CToolCanvas {
  public:
    static constexpr CColor kGround{109, 121, 126};

    // All of these outlive the canvas.
    CMySCrollView(const CEditState& state, const CWorkingImages& images, const CToolState& tools,
                  CCanvasHost& host);

    void OnMouse(const CMouseEvent& event) override;

    // Points of an open shape of several clicks; -1 or 0: there is none.
    int VertexCount() const { return m_nVertexCount; }
    // Copy or Cut has run, so that Paste may run.
    bool IsClipReady() const { return m_bClipReady; }
    // Client position of the picture's top left corner in DRAW.
    CPoint Origin() const { return m_ptOrigin; }
    const CSurface& Committed() const { return m_surfCommit; }
    const CSurface& Scratch() const { return m_surfScratch; }

    bool IsShapeOpen() const override { return m_nVertexCount > 0; }
    void AbandonShape() override { m_nVertexCount = -1; }
    void Revert() override {}
    void ForgetSelection() override {}
    bool IsFloating() const override { return m_bFloating; }
    void DropFloat() override {}
    void ForgetFloat() override { m_bFloating = false; }
    void ReInitialise() override { OnInitialUpdate(); }
    void Repaint() override { Invalidate(); }
    const CPixels& CommittedPixels() const override { return m_surfCommit.Pixels(); }
    void LoadPicture(const CxImage& image) override;
    void ApplyZoom() override;

    // The paint clipboard commands.
    void OnCut() {}
    void OnCopy() {}
    void OnPaste() {}
    void OnCrop() {}

    // Fits the scroll sizes to the picture: the working image in DRAW, else the display image.
    void OnInitialUpdate();

  protected:
    void OnDraw(CSurface& surface) override;

  private:
    void PlacePicture();
    void DrawFrame(CSurface& surface, CSize sizePicture, CPoint& ptPicture);

    const CEditState& m_state;
    const CWorkingImages& m_images;
    const CToolState& m_tools;
    CCanvasHost& m_host;

    CSurface m_surfCommit;
    CSurface m_surfScratch;
    int m_nImgWidth = 0;  // size of both stores
    int m_nImgHeight = 0;
    CPoint m_ptOrigin;
    int m_nVertexCount = -1;
    bool m_bFloating = false;
    bool m_bClipReady = false;
};
