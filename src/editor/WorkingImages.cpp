#include "editor/WorkingImages.h"

#include <algorithm>
#include <cstdint>

void CWorkingImages::TakePicture(const CxImage& image) {
    m_pImgOpened = std::make_unique<CxImage>(image);
    m_pImgDisplay = std::make_unique<CxImage>(image);
    m_pImgWork = std::make_unique<CxImage>(image);
    m_bFrameOn = false;
}

void CWorkingImages::Release() {
    m_pImgOpened.reset();
    m_pImgDisplay.reset();
    m_pImgWork.reset();
}

void CWorkingImages::SetSizeRule(bool bPhoneSize) {
    m_bPhoneSize = bPhoneSize;
    m_bImageSize = !bPhoneSize;
}

void CWorkingImages::SetDisplaySize(CSize size) {
    m_nDispWidth = size.cx;
    m_nDispHeight = size.cy;
}

bool CWorkingImages::RebuildDisplay(CSize size) {
    m_pImgDisplay = std::make_unique<CxImage>(*m_pImgWork);
    return m_pImgDisplay->Resample(size.cx, size.cy);
}

float CWorkingImages::FitDisplay() {
    const int nWidth = m_pImgWork->GetWidth();
    const int nHeight = m_pImgWork->GetHeight();
    const float rx = static_cast<float>(nWidth + kFitMargin) / static_cast<float>(kFitArea.cx);
    const float ry = static_cast<float>(nHeight + kFitMargin) / static_cast<float>(kFitArea.cy);
    m_pImgDisplay = std::make_unique<CxImage>(*m_pImgWork);
    if (rx <= 1.0F && ry <= 1.0F) return 1.0F;
    const float fScale = rx > ry ? 1.0F / rx : 1.0F / ry;
    // A very long and thin picture keeps one line.
    const CSize size{std::max(1, static_cast<int>(static_cast<float>(nWidth) * fScale)),
                     std::max(1, static_cast<int>(static_cast<float>(nHeight) * fScale))};
    // Without memory for it the picture is displayed as large as it is.
    return m_pImgDisplay->Resample(size.cx, size.cy) ? fScale : 1.0F;
}

CUndoEntry CWorkingImages::MakeEntry() const {
    const CSize size = RuledSize();
    return {m_bFrameOn, !m_bImageSize, static_cast<std::int16_t>(size.cx), static_cast<std::int16_t>(size.cy),
            std::make_unique<CxImage>(*m_pImgWork)};
}

void CWorkingImages::TakeEntry(const CUndoEntry& entry) {
    m_pImgWork = std::make_unique<CxImage>(*entry.pImage);
    SetDisplaySize({entry.nWidth, entry.nHeight});
    RebuildDisplay(DisplaySize());
    m_bFrameOn = entry.bFrameOn;
    SetSizeRule(entry.bPhoneSize);
    if (m_bFrameOn) m_pImgNoFrame = std::make_unique<CxImage>(*m_pImgWork);
}
