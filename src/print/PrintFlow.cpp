#include "print/PrintFlow.h"

void CPrintFlow::OnPrint() {
    CPrintPreviewDlg dialog(m_env.images.m_imgDisplay, m_env.preview);
    m_env.modals.Run(dialog);
}
