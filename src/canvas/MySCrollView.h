#pragma once

#include "canvas/CanvasGuest.h"
#include "editor/WorkingImages.h"
#include "resources/Grounds.h"
#include "window/ScrollView.h"

// What the canvas tells the window that it stands in.
class CCanvasHost {
  public:
    virtual ~CCanvasHost() = default;
    // A paint has ended: the info lines are to be brought up to date.
    virtual void OnCanvasPainted() = 0;
    // A right press where no guest has the mouse.
    virtual void OnPictureMenu() = 0;
};

// The canvas: shows the picture in every mode but THUM. It scrolls, draws ground and frame, and the picture
// where no guest does; mouse and timers are the guest's.
class CMySCrollView : public CScrollView {
  public:
    static constexpr CColor kGround = Grounds::kList;

    // All of these outlive the canvas.
    struct CEnvironment {
        const CEditState& state;
        const CWorkingImages& images;
        CCanvasHost& host;
    };
    explicit CMySCrollView(const CEnvironment& env) : CScrollView(kCanvasSize), m_env(env) {}

    // Null for none. The guest outlives its stay.
    void SetGuest(CCanvasGuest* pGuest) { m_pGuest = pGuest; }

    // Fits the scroll sizes to the picture and asks for a repaint.
    void OnInitialUpdate();

    void OnMouse(const CMouseEvent& event) override;
    void OnTimer(int nTimer) override;

    // For a guest: draws at once, unless a paint is to come, which draws everything. draw gets the surface of
    // the client area and returns the box that it has drawn on.
    template <class TDraw>
    void DrawNow(TDraw draw) {
        if (WantsPaint()) return;
        const CRect rcDrawn = draw(ClientSurface());
        if (!rcDrawn.IsEmpty()) Drawn(rcDrawn);
    }

  protected:
    void OnDraw(CSurface& surface) override;

  private:
    CSize PictureSize() const;
    CPoint DrawFrame(CSurface& surface) const;

    CEnvironment m_env;
    CCanvasGuest* m_pGuest = nullptr;
};
