#include "editor/SizeChangeDlg.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <utility>

#include "editor/PhoneSizeLine.h"
#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/Templates.h"
#include "resources/Texts.h"

namespace {

constexpr int kOwnPage = 0;
constexpr int kPhonePage = 1;
constexpr std::array kPageGrounds = {kBmpSizeOwn, kBmpSizePhone};
constexpr std::array kOwnPageControls = {kSizeWidthLabel, kSizeWidth,          kSizeHeightLabel, kSizeHeight,
                                         kSizeKeepRatio,  kSizeKeepRatioLabel, kSizeToPhone};
constexpr std::array kPhonePageControls = {kSizePhoneList, kSizeToOwn};

// How far the typed side may give way to the ratio.
constexpr int kMostDrift = 16;

int LimitToInt(std::int64_t n) {
    return static_cast<int>(
        std::clamp<std::int64_t>(n, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// The whole number at the head of a text, 0 if there is none.
int ParseSide(const std::string& strText) {
    const std::size_t nBegin = strText.find_first_not_of(" \t+");
    if (nBegin == std::string::npos) return 0;
    int nValue = 0;
    const auto result = std::from_chars(strText.data() + nBegin, strText.data() + strText.size(), nValue);
    if (result.ec == std::errc::result_out_of_range)
        return strText[nBegin] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return nValue;
}

}  // namespace

CSizeChangeDlg::CSizeChangeDlg(CSize size, std::vector<CSize> arrPhoneSizes, CMessageBoxes& boxes)
    : CDialog(kSizeDialog),
      m_sizeFirst(size),
      m_size(size),
      m_arrPhoneSizes(std::move(arrPhoneSizes)),
      m_boxes(boxes) {}

void CSizeChangeDlg::OnInitDialog() {
    Controls().SetText(kSizeWidth, std::to_string(m_sizeFirst.cx));
    Controls().SetText(kSizeHeight, std::to_string(m_sizeFirst.cy));
    Controls().Check(kSizeKeepRatio, true);
    std::vector<CListItem> arrLines;
    for (const CSize& size : m_arrPhoneSizes) arrLines.push_back({FormatPhoneSize(size), -1});
    Controls().SetItems(kSizePhoneList, std::move(arrLines));
    if (!m_arrPhoneSizes.empty()) Controls().Select(kSizePhoneList, 0);
    ShowPage(kOwnPage);
    Controls().SetFocus(kSizeOk);
}

void CSizeChangeDlg::ShowPage(int nPage) {
    m_nPage = nPage;
    Controls().Show(kOwnPageControls, nPage == kOwnPage);
    Controls().Show(kPhonePageControls, nPage == kPhonePage);
    Invalidate();
}

void CSizeChangeDlg::OnPaint(CClientArea& client) {
    client.DrawBitmap(kPageGrounds[static_cast<std::size_t>(m_nPage)], 0, 0);
}

int CSizeChangeDlg::Side(int nId) const {
    return ParseSide(Controls().Text(nId));
}

// What the other side has to be for the ratio of the first size.
int CSizeChangeDlg::Partner(int nTyped, int nValue) const {
    const bool bWidth = nTyped == kSizeWidth;
    const int nFrom = bWidth ? m_sizeFirst.cx : m_sizeFirst.cy;
    const int nTo = bWidth ? m_sizeFirst.cy : m_sizeFirst.cx;
    return nFrom == 0 ? nValue : LimitToInt(std::int64_t{nValue} * nTo / nFrom);
}

// The edit that is not typed into follows at once.
void CSizeChangeDlg::Follow(int nTyped) {
    if (!Controls().IsChecked(kSizeKeepRatio)) return;
    const int nOther = nTyped == kSizeWidth ? kSizeHeight : kSizeWidth;
    Controls().SetText(nOther, std::to_string(Partner(nTyped, Side(nTyped))));
    m_nUnsettled = nTyped;
}

// Both sides take each other's word until they stand still; a ratio that does not divide evenly can so take a
// few units from the typed side too. A ratio of large numbers without a common divisor would take all of it:
// there the first word stands. This waits until the typing is over, or no number of several digits could be
// typed.
void CSizeChangeDlg::Settle(int nTyped) {
    if (std::exchange(m_nUnsettled, 0) == 0 || !Controls().IsChecked(kSizeKeepRatio)) return;
    const int nOther = nTyped == kSizeWidth ? kSizeHeight : kSizeWidth;
    const int nFirst = Side(nTyped);
    int nValue = nFirst;
    int nPartner = Partner(nTyped, nValue);
    for (int nBack = Partner(nOther, nPartner); nBack != nValue; nBack = Partner(nOther, nPartner)) {
        nValue = std::abs(nFirst - nBack) > kMostDrift ? nFirst : nBack;
        nPartner = Partner(nTyped, nValue);
        if (nValue == nFirst) break;
    }
    Controls().SetText(nTyped, std::to_string(nValue));
    Controls().SetText(nOther, std::to_string(nPartner));
}

void CSizeChangeDlg::OnNotify(int nId, ENotice notice) {
    if (nId != kSizeWidth && nId != kSizeHeight) return;
    if (notice == ENotice::TextChanged) Follow(nId);
    if (notice == ENotice::TextDone && m_nUnsettled == nId) Settle(nId);
}

void CSizeChangeDlg::OnCommand(int nId) {
    switch (nId) {
        case kSizeToOwn:
            return ShowPage(kOwnPage);
        case kSizeToPhone:
            if (!m_arrPhoneSizes.empty()) return ShowPage(kPhonePage);
            m_boxes.Show({kTextNoPhoneSizes, kTitleNotice, EBoxIcon::None, EBoxButtons::Ok});
            return;
        case kSizeKeepRatioLabel:
            return Controls().Check(kSizeKeepRatio, !Controls().IsChecked(kSizeKeepRatio));
        case kSizeOk:
            return OnOk();
        case kSizeCancel:
            return EndDialog(kDialogCancel);
        default:
            return;
    }
}

void CSizeChangeDlg::OnOk() {
    const int nLine = Controls().Selection(kSizePhoneList);
    if (m_nPage == kPhonePage && nLine >= 0) {
        m_size = m_arrPhoneSizes[static_cast<std::size_t>(nLine)];
    } else {
        if (m_nUnsettled != 0) Settle(m_nUnsettled);
        m_size = {Side(kSizeWidth), Side(kSizeHeight)};
    }
    EndDialog(kDialogOk);
}
