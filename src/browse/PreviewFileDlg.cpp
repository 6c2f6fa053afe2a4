#include "browse/PreviewFileDlg.h"

#include <algorithm>
#include <cstdint>

#include "resources/Ids.h"
#include "resources/Templates.h"

namespace {

constexpr CColor kGround{109, 121, 126};
constexpr CColor kEdge{75, 94, 103};

// Decodes no more of a photograph than its preview needs.
CxImage LoadForPreview(const std::string& strPath, ImageType type, CSize& sizeFull) {
    if (type == ImageType::kJpeg) {
        CScaledImage scaled =
            LoadJpegScaled(strPath, CPreviewFileDlg::kWideWidth, CPreviewFileDlg::kTallHeight);
        sizeFull = scaled.sizeFull;
        return std::move(scaled.image);
    }
    CxImage image(strPath, type);
    sizeFull = image.GetSize();
    return image;
}

}  // namespace

CPreviewImgView::CPreviewImgView(CPreviewFileDlg& dialog) : CScrollView({125, 142}), m_dialog(dialog) {}

void CPreviewImgView::OnDraw(CSurface& surface) {
    surface.FillRect(surface.Bounds(), kGround);
    const std::unique_ptr<CxImage> pImage = m_dialog.TakeImage();
    if (!pImage) return;
    const CSize sizeClient = ClientSize();
    surface.DrawPixels(pImage->Pixels(), std::max(0, (sizeClient.cx - pImage->GetWidth()) / 2),
                       std::max(0, (sizeClient.cy - pImage->GetHeight()) / 2));
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
    client.FillRect(rcFrame, kEdge);
    client.FillRect({rcFrame.left + 1, rcFrame.top + 1, rcFrame.right - 1, rcFrame.bottom - 1}, kGround);
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
    if (!m_strPreviewPath.empty()) m_pImage.reset();
    CSize sizeFull;
    auto pImage = std::make_unique<CxImage>(LoadForPreview(strPath, type, sizeFull));
    m_pImage.reset();
    if (!pImage->IsValid()) return;
    const CSize size = PreviewSize(sizeFull);
    // Of a very thin picture nothing is left at this size.
    if (size.cx > 0 && size.cy > 0 && pImage->Resample(size.cx, size.cy)) m_pImage = std::move(pImage);
    m_strPreviewPath = strPath;
    m_view.SetScrollSizes({0, 0});
    m_view.Invalidate();
    Controls().Show(kPreviewView, true);
}
