#pragma once

#include <memory>
#include <string>

#include "image/Image.h"
#include "window/Dialog.h"
#include "window/ScrollView.h"

class CPreviewFileDlg;

// The picture area of the open dialog. A picture is painted once: when the view has to paint again, for
// instance because another window has covered it, it stays empty until another file is selected or the check
// box is switched off and on.
class CPreviewImgView : public CScrollView {
  public:
    explicit CPreviewImgView(CPreviewFileDlg& dialog);

  protected:
    void OnDraw(CSurface& surface) override;

  private:
    CPreviewFileDlg& m_dialog;
};

// The open dialog's panel: a check box, and the file under the cursor scaled to fit. It only previews.
class CPreviewFileDlg : public CFileDialogPanel {
  public:
    // What a tall picture is high, and what a wide or square one is wide, in the preview.
    static constexpr int kTallHeight = 136;
    static constexpr int kWideWidth = 117;

    CPreviewFileDlg();

    void OnInitDialog() override;
    void OnCommand(int nId) override;
    void OnFileNameChange(const std::string& strPath) override;
    CScrollView* ViewOf(int nId) override;

    // The picture that waits to be painted; afterwards there is none.
    std::unique_ptr<CxImage> TakeImage() { return std::move(m_pImage); }

    // The size at which a picture of that size is shown; fractions are cut.
    static CSize PreviewSize(CSize size);

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void ShowPreview(const std::string& strPath);

    CPreviewImgView m_view;
    std::unique_ptr<CxImage> m_pImage;
    bool m_bPreview = true;
    std::string m_strPreviewPath;  // the last picture shown
    std::string m_strCurrentPath;  // the file under the cursor
};
