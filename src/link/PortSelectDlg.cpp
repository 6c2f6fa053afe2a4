#include "link/PortSelectDlg.h"

#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "resources/Templates.h"

CPortSelectDlg::CPortSelectDlg(std::vector<std::string> arrLines, CMessageBoxes& boxes)
    : CDialog(kPortSelectDialog), m_arrLines(std::move(arrLines)), m_boxes(boxes) {}

void CPortSelectDlg::OnInitDialog() {
    std::vector<CListItem> arrItems;
    for (int i = 1; i <= kMostPorts; ++i) arrItems.push_back({std::string("COM").append(std::to_string(i))});
    Controls().SetItems(kPortList, std::move(arrItems));
    Controls().Select(kPortList, 0);
    Controls().SetFocus(kPortList);
    if (m_arrLines.empty())
        m_boxes.Show({kTextNoPortGiven, kTitlePortChoice, EBoxIcon::Exclamation, EBoxButtons::Ok});
}

void CPortSelectDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpPortSelect, 0, 0);
}

void CPortSelectDlg::OnNotify(int nId, ENotice notice) {
    if (nId == kPortList && notice == ENotice::DoubleClicked) OnOk();
}

void CPortSelectDlg::OnCommand(int nId) {
    if (nId == kPortOk) OnOk();
    if (nId == kPortCancel) EndDialog(kDialogCancel);
}

void CPortSelectDlg::OnOk() {
    const CControl* const pList = Controls().Find(kPortList);
    if (m_arrLines.empty() || pList->nSel < 0) return;
    m_strChosen = pList->arrItems[static_cast<std::size_t>(pList->nSel)].strText;
    EndDialog(kDialogOk);
}
