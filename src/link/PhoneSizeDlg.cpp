#include "link/PhoneSizeDlg.h"

#include "editor/PhoneSizeLine.h"
#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/Templates.h"

namespace {

constexpr int kEndOk = 0;

}  // namespace

CPhoneSizeDlg::CPhoneSizeDlg(std::vector<CSize> arrSizes)
    : CDialog(kPhoneSizeDialog), m_arrSizes(std::move(arrSizes)) {}

void CPhoneSizeDlg::OnInitDialog() {
    std::vector<CListItem> arrLines;
    for (const CSize& size : m_arrSizes) arrLines.push_back({FormatPhoneSize(size)});
    Controls().SetItems(kPhoneSizes, std::move(arrLines));
    if (!m_arrSizes.empty()) Controls().Select(kPhoneSizes, 0);
    Controls().SetFocus(kPhoneSizeOk);
}

void CPhoneSizeDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpPhoneSize, 0, 0);
}

void CPhoneSizeDlg::OnCommand(int nId) {
    if (nId == kPhoneSizeOk) OnOk();
    if (nId == kPhoneSizeCancel) EndDialog(kDialogCancel);
}

void CPhoneSizeDlg::OnOk() {
    const int nLine = Controls().Selection(kPhoneSizes);
    if (nLine < 0) return EndDialog(kDialogCancel);
    m_sizeChosen = m_arrSizes[static_cast<std::size_t>(nLine)];
    EndDialog(kEndOk);
}
