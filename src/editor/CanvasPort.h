#pragma once

#include "image/Image.h"

// What the commands of an edit ask of the canvas, the view that shows the picture and is the paper of DRAW.
class CCanvasPort {
  public:
    virtual ~CCanvasPort() = default;
    // Gives up a shape of several clicks that is still open.
    virtual void AbandonShape() = 0;
    virtual bool IsFloating() const = 0;
    // Merges a floating selection into the picture of DRAW.
    virtual void DropFloat() = 0;
    // Forgets a floating selection without merging it.
    virtual void ForgetFloat() = 0;
    // Fits the canvas's sizes to the picture; in DRAW the pixel stores are made anew, with no defined
    // content.
    virtual void ReInitialise() = 0;
    // Asks for a repaint.
    virtual void Repaint() = 0;
    // The picture of DRAW as it stands without the stroke in progress.
    virtual const CPixels& CommittedPixels() const = 0;
    // Makes this the picture of DRAW, sizes and stores included, and repaints.
    virtual void LoadPicture(const CxImage& image) = 0;
};

// What they ask of the paint tools.
class CToolPort {
  public:
    virtual ~CToolPort() = default;
    virtual int CurrentTool() const = 0;
    // Makes the tool current without its button's work.
    virtual void SetCurrentTool(int nTool) = 0;
    // Applies the current tool and its option.
    virtual void EnterTool() = 0;
    // Zoom and the magnifier's option back to 1x.
    virtual void ResetZoom() = 0;
    // Gives the keyboard focus to the current tool's button.
    virtual void FocusCurrentTool() = 0;
};

// The magnifier: the tool that is current on every entry to DRAW.
inline constexpr int kToolMagnifier = 10;
