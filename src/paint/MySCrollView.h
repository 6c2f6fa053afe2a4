#pragma once

#include "editor/CanvasPort.h"
#include "editor/EditState.h"
#include "editor/WorkingImages.h"
#include "paint/ToolBox.h"
#include "paint/ToolCanvas.h"
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

// The canvas: shows the picture in every mode but THUM, and in DRAW holds the paper that the tools work on.
class CMySCrollView : public CScrollView, public CCanvasPort, public CToolCanvas {
  public:
    static constexpr CColor kGround{109, 121, 126};

    // All of these outlive the canvas.
    struct CEnvironment {
        CEditState& state;
        const CWorkingImages& images;
        CToolState& tools;
        CCanvasHost& host;
        CPaintHost& paint;
        CTimers& timers;
        CRandomSequence& random;
    };
    explicit CMySCrollView(const CEnvironment& env);

    void OnMouse(const CMouseEvent& event) override;
    // The airbrush's ticks.
    void OnTimer(int nTimer) override;

    // Points of an open shape of several clicks; -1 or 0: there is none.
    int VertexCount() const { return m_hand.m_nVertexCount; }
    // Copy or Cut has run, so that Paste may run.
    bool IsClipReady() const { return m_selection.m_bClipReady; }
    // Client position of the picture's top left corner in DRAW.
    CPoint Origin() const { return m_ptOrigin; }
    // The picture pixel in the client area's top left corner.
    CPoint VisibleCorner() const;

    const CPaper& Paper() const { return m_paper; }
    const CHand& Hand() const { return m_hand; }
    const CSelection& Selection() const { return m_selection; }
    // For the commands on a selection. Whoever has changed the paper calls ShowPaper.
    CPaper& Paper() { return m_paper; }
    CSelection& Selection() { return m_selection; }
    // Brings what has changed of the paper to the screen.
    void ShowPaper();

    bool IsShapeOpen() const override { return m_hand.IsShapeOpen(); }
    void AbandonShape() override { m_hand.m_nVertexCount = -1; }
    void Revert() override;
    void ForgetSelection() override { m_selection.m_bSelection = false; }
    bool IsFloating() const override { return m_selection.m_bFloating; }
    void DropFloat() override;
    void ForgetFloat() override { m_selection.m_bFloating = false; }
    void ReInitialise() override { OnInitialUpdate(); }
    void Repaint() override { Invalidate(); }
    const CPixels& CommittedPixels() const override { return m_paper.Committed().Pixels(); }
    void LoadPicture(const CxImage& image) override;
    void ApplyZoom() override;

    // Fits the scroll sizes to the picture: the working image in DRAW, else the display image.
    void OnInitialUpdate();

  protected:
    void OnDraw(CSurface& surface) override;

  private:
    void OnDrawMouse(const CMouseEvent& event);
    CPoint ToPicture(CPoint ptClient) const;
    void PlacePicture();
    void DrawFrame(CSurface& surface, CSize sizePicture, CPoint& ptPicture);
    CRect DrawStore(CSurface& surface, const CSurface& store, const CRect& rc) const;

    CEnvironment m_env;
    CPaper m_paper;
    CHand m_hand;
    CSelection m_selection;
    CToolBox m_toolBox;
    CPoint m_ptOrigin;
};
