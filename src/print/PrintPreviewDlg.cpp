#include "print/PrintPreviewDlg.h"

#include <cstdio>

#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/Templates.h"
#include "resources/Texts.h"
#include "window/Clock.h"
#include "window/Printers.h"
#include "window/WaitCursor.h"

CPrintPreviewDlg::CPrintPreviewDlg(CxImage image, const CEnvironment& env)
    : CDialog(kPrintDialog), m_env(env), m_image(std::move(image)), m_view(*this, env.printers, env.text) {}

void CPrintPreviewDlg::OnInitDialog() {
    Controls().SetFocus(kPrintOk);
    CheckDefaultPaper();
}

// Either answer leads on.
void CPrintPreviewDlg::CheckDefaultPaper() {
    const std::optional<CDeviceMode> mode = m_env.printers.DefaultMode();
    if (mode && !IsPaperKnown(mode->nPaper))
        m_env.boxes.Show({kTextPaperUnknown, kTitlePreview, EBoxIcon::None, EBoxButtons::OkCancel});
}

CScrollView* CPrintPreviewDlg::ViewOf(int nId) {
    return nId == kPrintView ? &m_view : nullptr;
}

void CPrintPreviewDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpPrint, 0, 0);
}

void CPrintPreviewDlg::OnCommand(int nId) {
    if (nId == kPrintDate || nId == kPrintDateLabel) ToggleDate();
    if (nId == kPrintCancel) EndDialog(kDialogCancel);
    if (nId == kPrintOk && Print()) EndDialog(kDialogOk);
}

// --- the date ---

void CPrintPreviewDlg::ToggleDate() {
    m_bDateStamp = !m_bDateStamp;
    if (!m_bDateStamp) m_bAskTinyDate = true;
    Controls().Check(kPrintDate, m_bDateStamp);
    m_view.Invalidate();
}

std::string CPrintPreviewDlg::DateText() const {
    const CDate date = m_env.clock.Today();
    char szText[40];
    std::snprintf(szText, sizeof szText, "%04d.%02d.%02d", date.nYear, date.nMonth, date.nDay);
    return szText;
}

void CPrintPreviewDlg::AskAboutTinyDate() {
    if (!m_bDateStamp || !m_bAskTinyDate) return;
    m_bAskTinyDate = false;
    m_view.Invalidate();
    const EBoxAnswer answer =
        m_env.boxes.Show({kTextTinyDate, kTitlePreview, EBoxIcon::Exclamation, EBoxButtons::YesNo});
    if (answer == EBoxAnswer::No) ToggleDate();
}

// --- the print ---

// The user's Cancel counts as a failure too: the dialog stays.
bool CPrintPreviewDlg::Print() {
    const std::unique_ptr<CPrintDevice> pDevice = m_env.printers.RunDialog();
    if (pDevice == nullptr) return false;
    const CWaitScope wait(m_env.wait);
    if (!pDevice->StartDocument(kTextProgram)) return false;
    const PreviewPrintView::EPage page = m_view.OnPrint(*pDevice);
    if (page == PreviewPrintView::EPage::Done) return pDevice->EndDocument();
    pDevice->AbortDocument();
    if (page == PreviewPrintView::EPage::NoMemory) m_env.boxes.Show({kTextNoMemory, kTextProgram});
    return false;
}
