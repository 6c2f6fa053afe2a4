#include "editor/WorkingImages.h"

#include <algorithm>
#include <utility>

void CEditPictures::SetDisplaySize(CSize size) {
    m_nDispWidth = size.cx;
    m_nDispHeight = size.cy;
}

bool CEditPictures::RebuildDisplay(CSize size) {
    CxImage image = m_imgWork;
    if (size.cx > 0 && size.cy > 0 && !image.Resample(size.cx, size.cy)) return false;
    m_imgDisplay = std::move(image);
    return true;
}

float CEditPictures::FitScale(CSize size) {
    const float rx = static_cast<float>(size.cx + kFitMargin) / static_cast<float>(kCanvasSize.cx);
    const float ry = static_cast<float>(size.cy + kFitMargin) / static_cast<float>(kCanvasSize.cy);
    return std::max(rx, ry) <= 1.0F ? 1.0F : 1.0F / std::max(rx, ry);
}

// Of a very long and thin picture one line is left in FONT.
bool CEditPictures::RebuildDisplay(EMode mode, CSize size) {
    if (mode != EMode::Font) return RebuildDisplay(size);
    const CSize sizeWork = m_imgWork.GetSize();
    const float fScale = FitScale(sizeWork);
    const auto fit = [&](int nSide) {
        return std::max(1, static_cast<int>(static_cast<float>(nSide) * fScale));
    };
    return RebuildDisplay({fit(sizeWork.cx), fit(sizeWork.cy)});
}

CUndoEntry CEditPictures::MakeEntry(const CxImage& imgWork) const {
    const CSize size = RuledSize();
    return {m_bFrameOn,
            IsPhoneSize(),
            static_cast<std::int16_t>(size.cx),
            static_cast<std::int16_t>(size.cy),
            imgWork,
            m_bFrameOn ? m_imgNoFrame : CxImage()};
}

void CEditPictures::TakeEntry(const CUndoEntry& entry) {
    m_imgWork = entry.image;
    SetDisplaySize({entry.nWidth, entry.nHeight});
    m_sizeRule = entry.bPhoneSize ? ESizeRule::PhoneScreen : ESizeRule::Picture;
    m_bFrameOn = entry.bFrameOn;
    if (m_bFrameOn) m_imgNoFrame = entry.imgNoFrame;
}

void CWorkingImages::TakePicture(const CxImage& image) {
    m_imgOpened = image;
    TakeWork(image);
    m_bFrameOn = false;
}

void CWorkingImages::TakeWork(const CxImage& image) {
    m_imgWork = image;
    ShowWork();
}
