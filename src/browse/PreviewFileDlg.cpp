#include "browse/PreviewFileDlg.h"

#include <algorithm>
#include <cstdint>

#include "resources/Grounds.h"
#include "resources/Ids.h"
#include "resources/Templates.h"

namespace {

// Scales the picture to its preview; sizeFull is that of the whole, whatever part of it was decoded. Not
// valid if memory is short.
CxImage Scale(CxImage image, CSize sizeFull) {
    const CSize size = CPreviewFileDlg::PreviewSize(sizeFull);
    return image.Resample(size.cx, size.cy) ? image : CxImage();
}

bool IsTooThin(CSize sizeFull) {
    const CSize size = CPreviewFileDlg::PreviewSize(sizeFull);
    return size.cx == 0 || size.cy == 0;
}

// Decodes no more of a photograph than its preview needs.
CxImage LoadForPreview(const std::string& strPath, ImageType type) {
    if (type == ImageType::kJpeg) {
        const CScaledImage scaled =
            LoadJpegScaled(strPath, CPreviewFileDlg::kWideWidth, CPreviewFileDlg::kTallHeight);
        if (!scaled.image.IsValid()) return {};
        if (!IsTooThin(scaled.sizeFull)) return Scale(scaled.image, scaled.sizeFull);
    }
    CxImage image(strPath, type);
    if (!image.IsValid() || IsTooThin(image.GetSize())) return image;
    return Scale(image, image.GetSize());
}

}  // namespace

CPreviewImgView::CPreviewImgView(CPreviewFileDlg& dialog)
    : CScrollView(dialog.Controls().Find(kPreviewView)->rcPlace.Size()), m_dialog(dialog) {}

void CPreviewImgView::OnDraw(CSurface& surface) {
    surface.FillRect(surface.Bounds(), Grounds::kList);
    const CxImage image = m_dialog.TakeImage();
    const CSize sizeClient = ClientSize();
    surface.DrawPixels(image.Pixels(), std::max(0, (sizeClient.cx - image.GetWidth()) / 2),
                       std::max(0, (sizeClient.cy - image.GetHeight()) / 2));
}

CPreviewFileDlg::CPreviewFileDlg() : CFileDialogPanel(kPreviewPanel), m_view(*this) {}

void CPreviewFileDlg::OnInitDialog() {
    m_strPreviewPath.clear();
    Controls().Show(kPreviewView, false);
    Controls().Check(kPreviewCheck, m_bPreview);
}

CScrollView* CPreviewFileDlg::ViewOf(int nId) {
    return nId == kPreviewView ? &m_view : nullptr;
}

void CPreviewFileDlg::OnPaint(CClientArea& client) {
    const CRect rcFrame = Controls().Find(kPreviewFrame)->rcPlace;
    client.FillRect(rcFrame, Grounds::kLevel);
    client.FillRect({rcFrame.left + 1, rcFrame.top + 1, rcFrame.right - 1, rcFrame.bottom - 1},
                    Grounds::kList);
}

void CPreviewFileDlg::OnFileNameChange(const std::string& strPath) {
    m_strCurrentPath = strPath;
    if (strPath != m_strPreviewPath && m_bPreview) ShowPreview(strPath);
}

void CPreviewFileDlg::OnCommand(int nId) {
    if (nId != kPreviewCheck) return;
    m_bPreview = !m_bPreview;
    Controls().Check(kPreviewCheck, m_bPreview);
    if (m_bPreview)
        ShowPreview(m_strCurrentPath);
    else
        Controls().Show(kPreviewView, false);
}

CSize CPreviewFileDlg::PreviewSize(CSize size) {
    if (size.cx < size.cy)
        return {static_cast<int>(std::int64_t{size.cx} * kTallHeight / size.cy), kTallHeight};
    return {kWideWidth, static_cast<int>(std::int64_t{size.cy} * kWideWidth / size.cx)};
}

void CPreviewFileDlg::ShowPreview(const std::string& strPath) {
    const ImageType type = FindImageTypeOfName(strPath);
    if (type == ImageType::kUnknown) return;
    m_image = LoadForPreview(strPath, type);
    if (!m_image.IsValid()) return;
    m_strPreviewPath = strPath;
    m_view.SetScrollSizes({0, 0});
    m_view.Invalidate();
    Controls().Show(kPreviewView, true);
}
