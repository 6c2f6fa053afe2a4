#include "link/PhoneFileDlg.h"

#include "engines/linkset/FileOrder.h"
#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "resources/Templates.h"
#include "resources/Texts.h"

namespace {

constexpr int kTimerCard = 1;
constexpr int kCardPeriod = 5000;  // milliseconds

CCheckTableModel::CRow RowOf(const CFileItem& item, int nRecord) {
    const std::string strSize =
        item.m_bFileClosed == 1 ? std::string(kTextClosedFile) : std::to_string(item.m_nFileSize);
    return {{std::to_string(item.m_nFileNo + 1), item.m_strFileName, strSize,
             item.m_nFileMemory != 0 ? kTextOnCard : kTextInPhone},
            nRecord};
}

}  // namespace

CPhoneFileDlg::CPhoneFileDlg(CPhoneSession& session) : CDialog(kPhoneFileDialog), m_session(session) {}

CPhoneFileDlg::~CPhoneFileDlg() {
    m_session.Env().timers.KillTimer(*this, kTimerCard);
}

CCheckTableModel* CPhoneFileDlg::TableOf(int nId) {
    return nId == kPhoneFiles ? &m_table : nullptr;
}

void CPhoneFileDlg::OnInitDialog() {
    if (m_session.State().m_bHasCard != 0) m_session.Env().timers.SetTimer(*this, kTimerCard, kCardPeriod);
    fileSet.m_strFileName = m_session.DataFile("FILE.Dat");
    // What cannot be read has no rows.
    static_cast<void>(fileSet.Open());
    fileSet.Sort();
    std::vector<CCheckTableModel::CRow> arrRows;
    for (const CFileItem& item : fileSet.m_nDataArray)
        arrRows.push_back(RowOf(item, static_cast<int>(arrRows.size())));
    m_table.SetRows(std::move(arrRows));
    Controls().SetFocus(kPhoneFiles);
}

void CPhoneFileDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kBmpPhoneFiles, 0, 0);
}

// --- ticks ---

// Ticking one of the two boxes clears the other; clearing one does nothing to the rows.
void CPhoneFileDlg::OnAll(bool bTick) {
    if (!Controls().IsChecked(bTick ? kPhoneFilesAll : kPhoneFilesNone)) return;
    m_table.TickAll(bTick);
    Controls().Check(bTick ? kPhoneFilesNone : kPhoneFilesAll, false);
}

void CPhoneFileDlg::OnCommand(int nId) {
    switch (nId) {
        case kPhoneFilesAllLabel:
            Controls().Check(kPhoneFilesAll, true);
            return OnAll(true);
        case kPhoneFilesAll:
            return OnAll(true);
        case kPhoneFilesNoneLabel:
            Controls().Check(kPhoneFilesNone, true);
            return OnAll(false);
        case kPhoneFilesNone:
            return OnAll(false);
        case kPhoneFilesOk:
            return OnOk();
        case kPhoneFilesCancel:
            return EndDialog(kDialogCancel);
        default:
            return;
    }
}

// A closed file is left out without a word.
void CPhoneFileDlg::OnOk() {
    m_arrPicked.clear();
    for (int nRow = 0; nRow < m_table.Count(); ++nRow) {
        const CFileItem& item = fileSet.m_nDataArray[static_cast<std::size_t>(m_table.Row(nRow).nData)];
        if (m_table.Row(nRow).bTicked && item.m_bFileClosed == 0) m_arrPicked.push_back(item.m_nFileNo);
    }
    if (m_arrPicked.empty()) {
        m_session.Show(kTextNothingTicked, kTextProgram);
        return;
    }
    EndDialog(kDialogOk);
}

// --- order ---

void CPhoneFileDlg::OnNotify(int nId, ENotice notice) {
    if (nId == kPhoneFiles && notice == ENotice::RightClicked) OnMenu();
}

void CPhoneFileDlg::OnMenu() {
    std::vector<CMenuItem> arrItems;
    for (const CMenuItemTemplate& item : kPhoneFileMenu) {
        const bool bMarked = static_cast<int>(arrItems.size()) == m_nSortKey / 2;
        arrItems.push_back({item.nId, item.szText, true, bMarked});
    }
    const int nId = m_session.Env().menus.Track(arrItems);
    for (std::size_t i = 0; i < arrItems.size(); ++i)
        if (arrItems[i].nId == nId) SortBy(static_cast<int>(i));
}

// The same column again turns the order round.
void CPhoneFileDlg::SortBy(int nColumn) {
    m_nSortKey = m_nSortKey / 2 == nColumn ? m_nSortKey ^ 1 : nColumn * 2 + 1;
    const auto nRows = static_cast<std::size_t>(m_table.Count());
    std::vector<CCheckTableModel::CRow> arrByRecord(nRows);
    std::vector<std::size_t> arrOrder;
    for (int nRow = 0; nRow < m_table.Count(); ++nRow) {
        arrOrder.push_back(static_cast<std::size_t>(m_table.Row(nRow).nData));
        arrByRecord[arrOrder.back()] = m_table.Row(nRow);
    }
    SortFiles(fileSet.m_nDataArray, static_cast<EFileColumn>(nColumn), m_nSortKey % 2 != 0, arrOrder);
    std::vector<CCheckTableModel::CRow> arrRows;
    arrRows.reserve(nRows);
    for (const std::size_t nRecord : arrOrder) arrRows.push_back(std::move(arrByRecord[nRecord]));
    m_table.SetRows(std::move(arrRows));
}

// --- the card ---

void CPhoneFileDlg::OnTimer(int nTimer) {
    if (nTimer == kTimerCard) WatchCard();
}

// One look, one box: the watch stands still while the box is up.
void CPhoneFileDlg::WatchCard() {
    const int nCode = m_session.Calls().GetCardStatus();
    if (nCode == LINK_OK) return;
    m_session.Env().timers.KillTimer(*this, kTimerCard);
    if (nCode == LINK_CARD_GONE)
        m_session.Show(kTextCardChanged, kTitleCardChanged);
    else
        m_session.ReportLinkError(nCode);
    EndDialog(CPhoneSession::kEndNothing);
}
