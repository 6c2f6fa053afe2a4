#pragma once

#include "editor/Editor.h"
#include "image/RandomSequence.h"
#include "paint/Hand.h"
#include "paint/PaintHost.h"
#include "paint/Paper.h"
#include "paint/Selection.h"
#include "paint/ToolState.h"
#include "window/Timers.h"

// All that a tool knows of the program.
struct CPaintEnvironment {
    // The one timer of the canvas, the airbrush's.
    static constexpr int kSprayTimer = 1;

    CPaper& paper;
    CHand& hand;
    const CToolState& options;
    CSelection& selection;
    CEditor& editor;
    CEditEvents& events;
    CPaintHost& host;
    CRandomSequence& random;
    CTimers& timers;
    CTimerTarget& canvas;

    // The picture as it stands becomes one undo step, once draw has done to it what it does. False if memory
    // is short, for draw too: then there is no step, the picture is as it was, the user has been told, and
    // the drag, if one is going on, ends.
    template <class TDraw>
    [[nodiscard]] bool Snapshot(TDraw draw) const {
        CxImage imgBase;
        const bool bDone = Prepare([&] {
            return imgBase.CreateFromHBITMAP(paper.Committed().Pixels()) && paper.Separate() && draw();
        });
        if (bDone) {
            editor.PushStep(imgBase);
            return true;
        }
        return EndDrag();
    }
    // The tool draws behind it, and cannot fail to.
    [[nodiscard]] bool Snapshot() const {
        return Snapshot([] { return true; });
    }
    // The scratch store can be drawn on. False if memory is short; then the same holds as for a step.
    [[nodiscard]] bool PrepareScratch() const {
        return Prepare([this] { return paper.Scratch().Separate(); }) || EndDrag();
    }

  private:
    bool EndDrag() const {
        hand.m_bButtonDown = false;
        return editor.ReportNoMemory();
    }
};
