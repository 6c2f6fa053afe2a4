#pragma once

#include <algorithm>
#include <vector>

#include "support/Pictures.h"

// What an edit holds, in the plainest form: values, copied whole.
struct CWalkModel {
    struct CStep {
        CPixels work;
        CSize sizeDisplay;
        bool bPhone = false;
    };
    bool bOpen = false;
    CStep now;
    CPixels opened;
    std::vector<CStep> arrUndo, arrRedo;

    CSize Ruled() const { return now.bPhone ? CSize{176, 144} : now.sizeDisplay; }
    void Push(std::vector<CStep>& arrSteps) const {
        arrSteps.push_back({now.work, Ruled(), now.bPhone});
        if (arrSteps.size() > 10) arrSteps.erase(arrSteps.begin());
    }
    void Begin() {
        Push(arrUndo);
        arrRedo.clear();
    }
    void Step(std::vector<CStep>& arrFrom, std::vector<CStep>& arrTo) {
        if (!bOpen || arrFrom.empty()) return;
        Push(arrTo);
        now = arrFrom.back();
        arrFrom.pop_back();
    }
    void Undo() { Step(arrUndo, arrRedo); }
    void Redo() { Step(arrRedo, arrUndo); }
    void Reset() {
        if (!bOpen) return;
        Begin();
        now.work = opened;
        now.sizeDisplay = {opened.Width(), opened.Height()};
    }
    void SetRule(bool bPhone) {
        if (bOpen) Begin();
        now.bPhone = bPhone;
    }
    void Start(const CPixels& pixels) {
        bOpen = true;
        opened = now.work = pixels;
        arrUndo.clear();
        arrRedo.clear();
    }
    void Open(const CPixels& pixels) {
        Start(pixels);
        now.sizeDisplay = {pixels.Width(), pixels.Height()};
        now.bPhone = false;
    }
    // False if the rule refuses it.
    bool Turn(bool bClockwise) {
        if (now.bPhone) return false;
        Begin();
        now.work = NaiveTurn(now.work, bClockwise);
        now.sizeDisplay = {now.sizeDisplay.cy, now.sizeDisplay.cx};
        return true;
    }
    void Flip(bool bVertical) {
        Begin();
        now.work = NaiveFlip(now.work, bVertical);
    }
    bool Size(CSize size) {
        const int nMost = std::max(size.cx, size.cy);
        if (now.bPhone || nMost > 3200 || std::min(size.cx, size.cy) < 20) return false;
        Begin();
        now.sizeDisplay = size;
        return true;
    }
    // False, but with its step, beyond the limits.
    bool Zoom(bool bLarge) {
        if (now.bPhone) return false;
        Begin();
        const auto step = [&](int nSide) { return bLarge ? nSide * 5 / 4 : nSide * 3 / 4; };
        const CSize size{step(now.sizeDisplay.cx), step(now.sizeDisplay.cy)};
        const bool bFits = bLarge ? std::max(size.cx, size.cy) <= 3200 : std::min(size.cx, size.cy) > 20;
        if (bFits) now.sizeDisplay = size;
        return bFits;
    }
    bool Actual() {
        if (now.bPhone) return false;
        Begin();
        const bool bUpright = now.sizeDisplay.cx <= now.sizeDisplay.cy;
        const int nShort = std::min(opened.Width(), opened.Height());
        const int nLong = std::max(opened.Width(), opened.Height());
        now.sizeDisplay = bUpright ? CSize{nShort, nLong} : CSize{nLong, nShort};
        now.work = NaiveResample(now.work, now.sizeDisplay.cx, now.sizeDisplay.cy);
        return true;
    }
    void New() {
        if (!bOpen) now.sizeDisplay = {640, 480};
        Start(CPixels::MakeFilled(Ruled().cx, Ruled().cy, {255, 255, 255}));
    }
};
