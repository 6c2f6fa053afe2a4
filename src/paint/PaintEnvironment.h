#pragma once

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
    CPaintHost& host;
    CRandomSequence& random;
    CTimers& timers;
    CTimerTarget& canvas;

    // The picture as it stands becomes one undo step. False if memory is short: the tool must leave the
    // picture alone, and the drag, if one is going on, ends.
    bool Snapshot() const {
        if (host.BeginChange() && paper.Separate()) return true;
        hand.m_bButtonDown = false;
        return false;
    }
};
