#include "controls/SkinSlider.h"

#include <algorithm>
#include <cmath>

#include "resources/BitmapIds.h"
#include "resources/Grounds.h"

namespace {

constexpr CSize kChannelSize{22, 134};
constexpr CSize kThumbSize{26, 13};

constexpr int kEndPixels = 13;  // free at each end of the channel
constexpr int kFreePixels = 2 * kEndPixels + 1;
constexpr int kPages = 5;
constexpr int kWheelSteps = 3;

}  // namespace

CSkinSlider::CSkinSlider(CControlSet& controls, int nId)
    : m_controls(controls),
      m_nId(nId),
      m_bVertical(controls.Find(nId)->rcPlace.Height() > controls.Find(nId)->rcPlace.Width()),
      m_client(controls.Find(nId)->rcPlace.Size()) {}

void CSkinSlider::SetUp(CBitmaps* pBitmaps, int nDensity) {
    m_pBitmaps = pBitmaps;
    m_client.SetUp(pBitmaps, nDensity);
}

CRect CSkinSlider::ThumbRect() const {
    const CControl& control = Control();
    const int nRange = control.nMax - control.nMin;
    const double t = nRange == 0 ? 0.0 : static_cast<double>(control.nPos - control.nMin) / nRange;
    const CSize size = m_client.Size();
    if (m_bVertical) {
        const int nTop = static_cast<int>((size.cy - kFreePixels) * t) + kEndPixels - kThumbSize.cy / 2;
        return {0, nTop, kThumbSize.cx, nTop + kThumbSize.cy};
    }
    const int nLeft = static_cast<int>((size.cx - kFreePixels) * t) + kEndPixels - kThumbSize.cx / 2;
    return {nLeft, 0, nLeft + kThumbSize.cx, kThumbSize.cy};
}

void CSkinSlider::Paint() {
    const CSize size = m_client.Size();
    m_client.FillRect(CRect::FromPlace(0, 0, size.cx, size.cy), Grounds::kInfo);
    m_client.DrawBitmap(kBmpSliderChannel, (size.cx - kChannelSize.cx) / 2, (size.cy - kChannelSize.cy) / 2);
    m_rcPainted = ThumbRect();
    m_client.DrawKeyed(kBmpSliderThumb, m_rcPainted.left, m_rcPainted.top);
}

void CSkinSlider::PaintMove() {
    const CRect rcThumb = ThumbRect();
    const CRect rcMoved = m_rcPainted.Union(rcThumb);
    const CClientArea::CClip clip(m_client, rcMoved);
    Paint();
}

bool CSkinSlider::MoveTo(int nPos) {
    const int nBefore = Control().nPos;
    m_controls.SetPosition(m_nId, nPos);
    return Control().nPos != nBefore;
}

int CSkinSlider::PageStep() const {
    return std::max(1, (Control().nMax - Control().nMin) / kPages);
}

// The position whose thumb has its first pixel nearest to where the hand holds it.
int CSkinSlider::PositionAt(CPoint pt) const {
    const CSize size = m_client.Size();
    const int nSlot = (m_bVertical ? size.cy : size.cx) - kFreePixels;
    const int nHalf = (m_bVertical ? kThumbSize.cy : kThumbSize.cx) / 2;
    const int nOffset = Along(pt) - m_nGrip + nHalf - kEndPixels;
    const CControl& control = Control();
    if (nSlot <= 0) return control.nPos;
    const double t = std::clamp(static_cast<double>(nOffset) / nSlot, 0.0, 1.0);
    return control.nMin + static_cast<int>(std::lround(t * (control.nMax - control.nMin)));
}

// -1 before the thumb, 1 behind it, 0 beside it.
int CSkinSlider::WayTo(CPoint pt) const {
    const int nFrom = ThumbStart();
    const int nLength = m_bVertical ? kThumbSize.cy : kThumbSize.cx;
    if (Along(pt) < nFrom) return -1;
    return Along(pt) < nFrom + nLength ? 0 : 1;
}

bool CSkinSlider::OnMouse(const CMouseEvent& event) {
    const bool bLeft = event.button == EMouseButton::Left;
    // A release can be lost on a window that came up meanwhile.
    const bool bUp = event.action == EMouseAction::Move && (event.nFlags & kMouseLeftDown) == 0;
    if (bUp || (bLeft && event.action == EMouseAction::Release)) {
        m_bThumbHeld = false;
        m_nWay = 0;
        return false;
    }
    m_ptHand = event.pt;
    if (event.action == EMouseAction::Move) {
        // Several positions share a pixel: a hand that only trembles keeps the one that it has.
        const bool bStays = Along(event.pt) - m_nGrip == ThumbStart();
        return m_bThumbHeld && !bStays && MoveTo(PositionAt(event.pt));
    }
    if (!bLeft) return false;
    m_nGrip = Along(event.pt) - ThumbStart();
    m_nWay = WayTo(event.pt);
    m_bThumbHeld = m_nWay == 0;
    return OnHeld();
}

bool CSkinSlider::OnHeld() {
    if (m_nWay == 0 || WayTo(m_ptHand) != m_nWay) return false;
    return MoveTo(Control().nPos + m_nWay * PageStep());
}

bool CSkinSlider::OnKey(int nKey) {
    const CControl& control = Control();
    switch (nKey) {
        case kKeyUp:
        case kKeyLeft:
            return MoveTo(control.nPos - 1);
        case kKeyDown:
        case kKeyRight:
            return MoveTo(control.nPos + 1);
        case kKeyPageUp:
            return MoveTo(control.nPos - PageStep());
        case kKeyPageDown:
            return MoveTo(control.nPos + PageStep());
        case kKeyHome:
            return MoveTo(control.nMin);
        case kKeyEnd:
            return MoveTo(control.nMax);
        default:
            return false;
    }
}

bool CSkinSlider::OnWheel(int nSteps) {
    return MoveTo(Control().nPos - nSteps * kWheelSteps);
}
