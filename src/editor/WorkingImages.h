#pragma once

#include <memory>

#include "editor/UndoStack.h"
#include "image/Image.h"

// The pictures of one edit and the rule that ties them together. All changes land on the working image at its
// own resolution; the display image is a copy of it at the size at which it is shown, saved and printed. Null
// pointers mean that no picture is there.
class CWorkingImages {
  public:
    // The phone's screen: the size of the display image under the phone size rule.
    static constexpr CSize kPhoneScreen{176, 144};
    // The area that the picture gets in FONT, with the margin that stays free in each direction.
    static constexpr CSize kFitArea{659, 543};
    static constexpr int kFitMargin = 10;

    std::unique_ptr<CxImage> m_pImgOpened;   // as opened, never edited
    std::unique_ptr<CxImage> m_pImgWork;     // the edited picture
    std::unique_ptr<CxImage> m_pImgDisplay;  // as shown

    // The display size. Keeps its values while the phone size rule is on.
    int m_nDispWidth = 0;
    int m_nDispHeight = 0;
    // The size rule; exactly one of both is on.
    bool m_bImageSize = true;
    bool m_bPhoneSize = false;

    bool m_bFrameOn = false;                   // the working image contains a frame that can still be swapped
    std::unique_ptr<CxImage> m_pImgNoFrame;    // the working image as it was before any frame
    std::unique_ptr<CxImage> m_pImgFrameTemp;  // what the frame composition writes

    CUndoStack m_stackUndo;
    CUndoStack m_stackRedo;

    // Starts an edit: three images with the same pixels, a frame no longer on. Stacks, size rule and display
    // size are left to the caller.
    void TakePicture(const CxImage& image);
    // Releases the three edit images.
    void Release();

    void SetSizeRule(bool bPhoneSize);
    CSize DisplaySize() const { return {m_nDispWidth, m_nDispHeight}; }
    void SetDisplaySize(CSize size);
    // The size that the size rule gives: the display size or the phone's screen.
    CSize RuledSize() const { return m_bImageSize ? DisplaySize() : kPhoneScreen; }

    // The display image becomes a copy of the working image at that size, by default the ruled one. False if
    // memory is short; the display image is then the unscaled copy.
    bool RebuildDisplay() { return RebuildDisplay(RuledSize()); }
    bool RebuildDisplay(CSize size);
    // The display image becomes a copy of the working image, scaled down so far as it has to be for kFitArea.
    // Returns the scale, 1 for a picture that fits as it is.
    float FitDisplay();

    // The present state as an entry for a stack.
    CUndoEntry MakeEntry() const;
    // Makes an entry the present state: working image, display size and image, frame flag, size rule.
    void TakeEntry(const CUndoEntry& entry);
};
