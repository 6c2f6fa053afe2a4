#pragma once

#include <string>
#include <utility>

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

    // The picture that waits to be painted, not valid if there is none; afterwards there is none.
    CxImage TakeImage() { return std::exchange(m_image, {}); }

    // The size to which a picture of that size is scaled; fractions are cut. Of a very thin picture a side of
    // 0 is left: it is shown unscaled.
    static CSize PreviewSize(CSize size);

  protected:
    void OnPaint(CClientArea& client) override;

  private:
    void ShowPreview(const std::string& strPath);

    CPreviewImgView m_view;
    CxImage m_image;
    bool m_bPreview = true;
    std::string m_strPreviewPath;  // the last picture shown
    std::string m_strCurrentPath;  // the file under the cursor
};
