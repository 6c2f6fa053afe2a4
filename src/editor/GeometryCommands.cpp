#include "editor/GeometryCommands.h"

#include <algorithm>
#include <utility>

#include "editor/SizeChangeDlg.h"

namespace {

constexpr double kZoomStep = 0.25;

// A picture and the same without its frame, if it has one that can still be swapped.
template <class TOperation>
bool ForBoth(CEditPictures& pictures, TOperation operation) {
    if (!operation(pictures.m_imgWork)) return false;
    return !pictures.m_bFrameOn || !pictures.m_imgNoFrame.IsValid() || operation(pictures.m_imgNoFrame);
}

}  // namespace

// Under the phone size rule the display has one size only. True for a command that must stop, after a
// message.
bool CGeometryCommands::IsRefused(const char* szText) {
    if (!m_env.images.IsPhoneSize()) return false;
    m_env.boxes.Show({szText, kTitleNotice, EBoxIcon::Exclamation, EBoxButtons::Ok});
    return true;
}

// In DRAW the display keeps its own size also under the phone size rule.
bool CGeometryCommands::Flip(const CxImage& imgBase, EFlip flip) {
    const bool bDraw = m_env.state.IsUp(EMode::Draw);
    return m_env.editor.Change(imgBase, [&](CEditPictures& next) {
        const bool bFlipped = ForBoth(
            next, [flip](CxImage& image) { return flip == EFlip::Vertical ? image.Flip() : image.Mirror(); });
        return bFlipped && next.RebuildDisplay(bDraw ? next.DisplaySize() : next.RuledSize());
    });
}

bool CGeometryCommands::Turn(const CxImage& imgBase, ETurn turn) {
    if (IsRefused(turn == ETurn::Left ? kTextNoTurnLeft : kTextNoTurnRight)) return false;
    return m_env.editor.Change(imgBase, [turn](CEditPictures& next) {
        next.SetDisplaySize({next.m_nDispHeight, next.m_nDispWidth});
        return ForBoth(next, [turn](CxImage& image) { return image.Rotate(static_cast<int>(turn)); }) &&
               next.RebuildDisplay(next.DisplaySize());
    });
}

void CGeometryCommands::ShowSizeError(const char* szText) {
    m_env.boxes.Show({szText, kTitleSizeChange, EBoxIcon::Stop, EBoxButtons::Ok});
}

std::optional<CSize> CGeometryCommands::ChooseSize(std::vector<CSize> arrPhoneSizes) {
    CSizeChangeDlg dialog(m_env.images.DisplaySize(), std::move(arrPhoneSizes), m_env.boxes);
    if (m_env.modals.Run(dialog) != CDialog::kDialogOk) return std::nullopt;
    return dialog.Size();
}

bool CGeometryCommands::ChangeSize(const CxImage& imgBase, CSize size) {
    const bool bTooLarge = std::max(size.cx, size.cy) > kLargestSide;
    if (!bTooLarge && std::min(size.cx, size.cy) >= kSmallestSide) return SetSize(imgBase, size);
    ShowSizeError(bTooLarge ? kTextTooLarge : kTextTooSmall);
    return false;
}

bool CGeometryCommands::SetSize(const CxImage& imgBase, CSize size) {
    return m_env.editor.Change(imgBase, [size](CEditPictures& next) {
        next.SetDisplaySize(size);
        return next.RebuildDisplay(size);
    });
}

bool CGeometryCommands::ZoomIn(const CxImage& imgBase) {
    return Zoom(imgBase, kZoomStep);
}

bool CGeometryCommands::ZoomOut(const CxImage& imgBase) {
    return Zoom(imgBase, -kZoomStep);
}

// A refusal comes behind the undo step, which stays.
bool CGeometryCommands::Zoom(const CxImage& imgBase, double fStep) {
    if (IsRefused(kTextPhoneSizeRules)) return false;
    const auto fnStep = [fStep](int nSide) { return static_cast<int>(nSide + nSide * fStep); };
    const CSize size{fnStep(m_env.images.m_nDispWidth), fnStep(m_env.images.m_nDispHeight)};
    const bool bTooLarge = fStep > 0 && std::max(size.cx, size.cy) > kLargestSide;
    const bool bTooSmall = fStep < 0 && std::min(size.cx, size.cy) < kSmallestZoomedSide;
    if (!SetSize(imgBase, bTooLarge || bTooSmall ? m_env.images.DisplaySize() : size)) return false;
    if (bTooLarge) ShowSizeError(kTextTooLarge);
    if (bTooSmall) ShowSizeError(kTextTooSmall);
    return true;
}

bool CGeometryCommands::ZoomToActual(const CxImage& imgBase) {
    if (IsRefused(kTextPhoneSizeRules)) return false;
    const CSize sizeOpened = m_env.images.m_imgOpened.GetSize();
    return m_env.editor.Change(imgBase, [sizeOpened](CEditPictures& next) {
        const auto [nSmall, nBig] = std::minmax({sizeOpened.cx, sizeOpened.cy});
        const bool bUpright = next.m_nDispWidth <= next.m_nDispHeight;
        next.SetDisplaySize(bUpright ? CSize{nSmall, nBig} : CSize{nBig, nSmall});
        if (!next.m_imgWork.Resample(next.m_nDispWidth, next.m_nDispHeight)) return false;
        next.ShowWork();
        return true;
    });
}
