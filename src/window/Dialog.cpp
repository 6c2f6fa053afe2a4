#include "window/Dialog.h"

CDialog::CDialog(const CDialogTemplate& dialogTemplate)
    : m_template(dialogTemplate),
      m_controls(dialogTemplate.arrControls, dialogTemplate.arrLooks),
      m_client(dialogTemplate.sizeClient) {}

void CDialog::Paint() {
    if (!m_bWantsPaint) return;
    m_bWantsPaint = false;
    OnPaint(m_client);
    Present();
}

void CDialog::Invalidate() {
    if (m_bWantsPaint) return;
    m_bWantsPaint = true;
    if (m_pHost != nullptr) m_pHost->OnPaintWanted();
}

void CDialog::EndDialog(int nCode) {
    if (m_bEnded) return;
    m_bEnded = true;
    m_nEndCode = nCode;
    if (m_pHost != nullptr) m_pHost->OnEnded();
}

void CDialog::Present() {
    if (m_pHost != nullptr) m_pHost->OnDrawn();
}

void CDialog::ShowNow() {
    if (m_pHost != nullptr) m_pHost->OnShowNow();
}
