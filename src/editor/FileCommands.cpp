#include "editor/FileCommands.h"

#include "resources/Texts.h"

namespace {

// A blank page is drawn at this size and scaled to the one it gets.
constexpr CSize kBlankPage{160, 120};
constexpr CSize kFirstPage{640, 480};

// A size that is none leaves the page as it is drawn.
bool MakeWhitePage(CSize size, CxImage& page) {
    CPixels pixels;
    if (!pixels.CreateFilled(kBlankPage.cx, kBlankPage.cy, {255, 255, 255})) return false;
    if (!page.CreateFromHBITMAP(std::move(pixels))) return false;
    return size.cx <= 0 || size.cy <= 0 || page.Resample(size.cx, size.cy);
}

}  // namespace

std::optional<CFileChoice> CFileCommands::ChooseOpen() {
    const std::unique_ptr<CFileDialogPanel> pPreview = m_env.previews.MakePreview();
    return m_env.files.RunOpen({kFilterOpen, ""}, pPreview.get());
}

std::optional<CFileChoice> CFileCommands::ChooseSave() {
    return m_env.files.RunSave({kFilterSave, m_env.state.m_strFileName});
}

bool CFileCommands::Open(const CFileChoice& choice) {
    m_env.state.m_strFilePath = choice.strPath;
    m_env.state.m_strFileName = choice.strName;
    if (GetFileExtension(choice.strPath).empty()) return false;
    const CxImage image(choice.strPath, FindImageTypeOfName(choice.strPath));
    if (!image.IsValid()) {
        m_env.boxes.Show({kTextOpenFailed, kTitleOpenFailed, EBoxIcon::Stop, EBoxButtons::Ok});
        return false;
    }
    m_env.images.SetDisplaySize(image.GetSize());
    m_env.images.m_sizeRule = ESizeRule::Picture;
    m_env.editor.TakePicture(image);
    m_env.state.m_bImageOpen = true;
    return true;
}

bool CFileCommands::MakePage(EMode mode) {
    CEditPictures& pictures = m_env.images;
    const bool bFirst = !m_env.state.m_bImageOpen;
    const CSize size = bFirst && !pictures.IsPhoneSize() ? kFirstPage : pictures.RuledSize();
    CEditPictures page;
    const bool bMade = Prepare([&] {
        return MakeWhitePage(size, page.m_imgWork) && page.RebuildDisplay(mode, page.m_imgWork.GetSize());
    });
    if (!bMade) return m_env.editor.ReportNoMemory();
    if (bFirst) pictures.SetDisplaySize(kFirstPage);
    m_env.editor.TakePicture(page.m_imgWork);
    pictures.m_imgDisplay = page.m_imgDisplay;
    m_env.state.m_bImageOpen = true;
    return true;
}

void CFileCommands::NamePage() {
    m_env.state.m_strFileName = kNameUntitled;
}

bool CFileCommands::Save(const CFileChoice& choice, const CxImage& image) {
    std::string strPath = choice.strPath;
    if (choice.strName.find('.') == std::string::npos) strPath += ".jpg";
    if (image.Save(strPath, FindImageTypeOfName(strPath))) return true;
    m_env.boxes.Show({kTextSaveFailed, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
    return false;
}
