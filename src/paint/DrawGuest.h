#pragma once

#include "canvas/MySCrollView.h"
#include "editor/Editor.h"
#include "paint/ToolBox.h"
#include "paint/ToolCanvas.h"

// DRAW's guest on the canvas: holds the paper that the tools work on, what the hand is doing there and what
// is selected, and brings it to the screen at the tools' zoom.
class CDrawGuest : public CCanvasGuest, public CToolCanvas {
  public:
    // All of these outlive the guest.
    struct CEnvironment {
        CWorkingImages& images;
        CToolState& tools;
        CMySCrollView& canvas;
        CEditor& editor;
        CEditEvents& events;
        CPaintHost& host;
        CTimers& timers;
        CRandomSequence& random;
    };
    explicit CDrawGuest(const CEnvironment& env);

    // --- between the paper and the edit ---

    // The paper takes the working image, with sizes and place as they are for it.
    void LoadCanvas();
    // The working image becomes the picture of the paper, and the display image a copy of it, without a step.
    void FetchCanvas() { m_env.images.TakeWork(Committed()); }
    // The picture of the paper without the stroke in progress; the working image if nothing was ever loaded.
    CxImage Committed() const;
    // The same with the floating selection merged. False if memory is short for that.
    [[nodiscard]] bool MakeSettled(CxImage& image) const;
    // DRAW is left: the airbrush ends, wherever its button is.
    void Leave();

    // --- for the commands ---

    // Gives up a shape of several clicks that is open.
    void AbandonShape() override { m_hand.EndShape(); }
    bool IsFloating() const override { return m_selection.IsFloating(); }
    [[nodiscard]] bool PrepareDrop() override;
    void DropFloat() override;
    // The float is over without being merged; the paper is left to whoever loads it.
    void ForgetFloat();
    // The picture pixel in the client area's top left corner.
    CPoint VisibleCorner() const;
    // Brings what has changed of the paper to the screen.
    void ShowPaper();

    const CPaper& Paper() const { return m_paper; }
    CPaper& Paper() { return m_paper; }
    const CHand& Hand() const { return m_hand; }
    const CSelection& Selection() const { return m_selection; }
    CSelection& Selection() { return m_selection; }
    // Client position of the picture's top left corner.
    CPoint Origin() const { return m_ptOrigin; }

    // --- CToolCanvas ---
    bool IsShapeOpen() const override { return m_hand.IsShapeOpen(); }
    void Revert() override;
    void ForgetSelection() override { m_selection.Unmark(); }
    void ApplyZoom() override;

    // --- CCanvasGuest ---
    CSize PictureSize() const override { return m_env.images.m_imgWork.GetSize(); }
    void OnDraw(CSurface& surface, CPoint ptPicture) override;
    void OnMouse(const CMouseEvent& event) override;
    void OnTimer(int nTimer) override;

  private:
    CPoint ToPicture(CPoint ptClient) const;
    void PlacePicture();
    void EndFloat();
    CRect DrawStore(CSurface& surface, const CSurface& store, const CRect& rc) const;

    CEnvironment m_env;
    CPaper m_paper;
    CHand m_hand;
    CSelection m_selection;
    CToolBox m_toolBox;
    CPoint m_ptOrigin;
};
