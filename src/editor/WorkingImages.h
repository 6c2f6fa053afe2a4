#pragma once

#include <cstdint>

#include "editor/EditState.h"
#include "editor/UndoStack.h"
#include "image/Image.h"
#include "resources/MainDialog.h"

// At which size the picture is shown and saved: its own display size, or the phone's screen.
enum class ESizeRule { Picture, PhoneScreen };

// One state of an edit. The display image is not kept: it is rebuilt from the working image.
struct CUndoEntry {
    bool bFrameOn = false;
    bool bPhoneSize = false;  // pushed while the phone's screen size ruled
    std::int16_t nWidth = 0;  // display size: what the size rule gave when pushed
    std::int16_t nHeight = 0;
    CxImage image;  // the working image; shares its pixels until one of both changes
    // With a frame on also the picture without it, so that the next frame is not laid over this one.
    CxImage imgNoFrame;
};

// The pictures that an edit changes, and the rule that ties them together. All changes land on the working
// image at its own resolution; the display image is a copy of it at the size at which it is shown, saved and
// printed. Pictures that are not there are not valid. A value: copies cost nothing, so whoever changes an
// edit works on a copy and lets it take the place of the old one when all has worked.
struct CEditPictures {
    // The phone's screen: the size of the display image under its rule.
    static constexpr CSize kPhoneScreen{176, 144};
    // What stays free of the canvas around the picture in FONT, in each direction.
    static constexpr int kFitMargin = 10;

    CxImage m_imgWork;     // the edited picture
    CxImage m_imgDisplay;  // as shown

    // The display size. Keeps its values while the phone's size rules.
    int m_nDispWidth = 0;
    int m_nDispHeight = 0;
    ESizeRule m_sizeRule = ESizeRule::Picture;

    bool m_bFrameOn = false;  // the working image contains a frame that can still be swapped
    CxImage m_imgNoFrame;     // the working image as it was before any frame

    bool IsPhoneSize() const { return m_sizeRule == ESizeRule::PhoneScreen; }
    CSize DisplaySize() const { return {m_nDispWidth, m_nDispHeight}; }
    void SetDisplaySize(CSize size);
    // The size that the size rule gives.
    CSize RuledSize() const { return IsPhoneSize() ? kPhoneScreen : DisplaySize(); }

    // The display image becomes a copy of the working image, as it is or at a size; a side of 0 leaves it as
    // it is. False, and nothing changes, if memory is short.
    void ShowWork() { m_imgDisplay = m_imgWork; }
    [[nodiscard]] bool RebuildDisplay(CSize size);
    // The same as the mode shows it: at that size, in FONT scaled down so far as it has to be for the canvas.
    [[nodiscard]] bool RebuildDisplay(EMode mode, CSize size);
    // The scale at which FONT shows a picture of that size, 1 for one that fits as it is.
    static float FitScale(CSize size);

    // These pictures as an entry for a stack, with that one as the working image.
    CUndoEntry MakeEntry(const CxImage& imgWork) const;
    // Makes an entry the present state: working image, display size, frame, size rule. The display image is
    // left to the caller.
    void TakeEntry(const CUndoEntry& entry);
};

// The pictures of one edit with its history.
struct CWorkingImages : CEditPictures {
    CxImage m_imgOpened;  // as opened, never edited

    CUndoStack<CUndoEntry> m_stackUndo;
    CUndoStack<CUndoEntry> m_stackRedo;

    // Starts an edit: three images with the same pixels, a frame no longer on. Stacks, size rule and display
    // size are left to the caller.
    void TakePicture(const CxImage& image);
    // The working image, and the display image at full size, become that picture.
    void TakeWork(const CxImage& image);
    // Releases all pictures, those of the history too.
    void Release() { *this = CWorkingImages(); }
};
