#include "editor/FileCommands.h"

#include "resources/Ids.h"
#include "resources/Texts.h"

namespace {

// A blank page is drawn at this size and scaled to the one it gets.
constexpr CSize kBlankPage{160, 120};
constexpr CSize kFirstPage{640, 480};

// Not valid if there is no memory for it. A size that is none leaves the page as it is drawn.
CxImage MakeWhitePage(CSize size) {
    CPixels pixels;
    CxImage page;
    const bool bMade = pixels.CreateFilled(kBlankPage.cx, kBlankPage.cy, {255, 255, 255}) &&
                       page.CreateFromHBITMAP(std::move(pixels));
    const bool bScaled = size.cx <= 0 || size.cy <= 0 || page.Resample(size.cx, size.cy);
    return bMade && bScaled ? page : CxImage();
}

}  // namespace

// Both names are the new file's from here on, whatever becomes of it. False if the name has no extension.
bool CFileCommands::TakeNames(const std::string& strPath, const std::string& strName) {
    m_env.state.m_strFilePath = strPath;
    m_env.state.m_strFileName = strName;
    return !GetFileExtension(strPath).empty();
}

// The trial: reports a file that cannot be opened.
bool CFileCommands::Load(CxImage& image) {
    image = CxImage(m_env.state.m_strFilePath, FindImageTypeOfName(m_env.state.m_strFilePath));
    if (image.IsValid()) return true;
    m_env.boxes.Show({kTextOpenFailed, kTitleOpenFailed, EBoxIcon::Stop, EBoxButtons::Ok});
    return false;
}

// The trial's pixels become the picture, so that a file which vanishes meanwhile costs nothing.
void CFileCommands::StartEdit(const CxImage& image) {
    m_env.images.Release();
    m_env.images.SetDisplaySize(image.GetSize());
    m_env.images.TakePicture(image);
    m_env.images.SetSizeRule(false);
    m_env.state.m_bImageOpen = true;
    m_env.editor.ClearUndo();
    m_env.editor.ClearRedo();
    // The show step of EFFECT fetches from the canvas when it comes from DRAW: it must find the new picture
    // there.
    if (m_env.state.m_nLastMode == kModeDraw) m_env.editor.TransferCanvas(false);
    EnterEdit();
}

// The common end of all ways into an edit: EFFECT with no preview.
void CFileCommands::EnterEdit() {
    m_env.state.m_bEditSource = true;
    m_env.host.InitTextArt();
    m_env.state.m_bEffectMode = false;
    m_env.state.m_bStickMode = false;
    m_env.state.m_bNoEffectLevel = true;
    m_env.controls.Show(kFileList, false);
    m_env.controls.Show(kProgress, false);
    m_env.controls.Show(kCanvas, true);
    m_env.controls.Check(kRadioImageSize, m_env.images.m_bImageSize);
    m_env.controls.Check(kRadioPhoneSize, m_env.images.m_bPhoneSize);
    m_env.controls.SetText(kEffectLevel, kBlankLevel);
    m_env.host.HideEffectPanel();
    m_env.host.GoToMode(kModeEffect);
    if (!m_env.host.IsConnected()) return;
    m_env.controls.Enable(kCmdSend, true);
    m_env.controls.Enable(kCmdTake, true);
}

void CFileCommands::OnOpen() {
    m_env.canvas.AbandonShape();
    const std::unique_ptr<CFileDialogPanel> pPreview = m_env.previews.MakePreview();
    const auto choice = m_env.files.RunOpen({kFilterOpen, ""}, pPreview.get());
    if (!choice) return;

    m_env.state.m_bEditInfo = true;
    const CWaitScope wait(m_env.wait);
    if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
    CxImage image;
    if (TakeNames(choice->strPath, choice->strName) && Load(image)) StartEdit(image);
}

void CFileCommands::OpenFileByName(const std::string& strFolder, const std::string& strName) {
    const CWaitScope wait(m_env.wait);
    m_env.state.m_bEditInfo = true;
    std::string strPath = strFolder;
    if (strPath.empty() || strPath.back() != m_env.folders.Separator()) strPath += m_env.folders.Separator();
    CxImage image;
    if (TakeNames(strPath + strName, strName) && Load(image)) StartEdit(image);
}

void CFileCommands::OnNew() {
    const CWaitScope wait(m_env.wait);
    CEditState& state = m_env.state;
    state.m_bEditInfo = true;
    if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
    m_env.canvas.AbandonShape();
    const bool bWasOpen = state.m_bImageOpen;
    const CSize sizeBefore = m_env.images.DisplaySize();
    if (!bWasOpen) m_env.images.SetDisplaySize(kFirstPage);
    const CxImage page = MakeWhitePage(m_env.images.RuledSize());
    if (!page.IsValid()) {
        m_env.images.SetDisplaySize(sizeBefore);
        m_env.boxes.Show({kTextNoMemory, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
        return;
    }
    m_env.images.TakePicture(page);
    m_env.editor.ClearUndo();
    m_env.editor.ClearRedo();
    for (const int nId : {kCmdCut, kCmdCopy, kCmdCrop}) m_env.controls.Enable(nId, false);

    if (!bWasOpen || state.m_bThumbMode) {
        state.m_bImageOpen = true;
        // The page has never been in the canvas: there is no paint to fetch from it.
        state.m_nLastMode = kModeThum;
        EnterEdit();
    }
    if (state.m_bFontMode) {
        m_env.host.InitTextArt();
        m_env.host.ShowFontPanel();
    }
    if (state.m_bDrawMode) {
        m_env.editor.TransferCanvas(false);
    } else {
        m_env.canvas.ReInitialise();
        m_env.canvas.Repaint();
    }
    state.m_strFileName = kNameUntitled;
}

void CFileCommands::OnSave() {
    if (!m_env.state.m_bImageOpen) return;
    m_env.canvas.AbandonShape();
    const auto choice = m_env.files.RunSave({kFilterSave, m_env.state.m_strFileName});
    if (choice) SaveTo(*choice);
}

void CFileCommands::SaveTo(CFileChoice choice) {
    const CWaitScope wait(m_env.wait);
    if (m_env.state.m_bDrawMode) {
        if (m_env.canvas.IsFloating()) m_env.canvas.DropFloat();
        m_env.canvas.AbandonShape();
        m_env.editor.TransferCanvas(true);
    }
    if (choice.strName.find('.') == std::string::npos) choice.strPath += ".jpg";
    if (!m_env.images.m_pImgDisplay->Save(choice.strPath, FindImageTypeOfName(choice.strPath))) {
        m_env.boxes.Show({kTextSaveFailed, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
        return;
    }
    if (m_env.state.m_bDrawMode) m_env.editor.TransferCanvas(false);
    m_env.host.FollowFolder(m_env.folders.CurrentFolder());
    m_env.editor.FocusEffectList();
}
