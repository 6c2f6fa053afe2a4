#include "window/IconListHand.h"

#include <utility>

void CIconListHand::OnPress(int nItem) {
    m_press = nItem < 0 ? EPress::Ground : EPress::Item;
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnLeftPress();
}

void CIconListHand::OnRightPress(int nItem) {
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnRightPress(nItem);
}

void CIconListHand::OnMove(bool bFar) {
    if (m_press == EPress::Item && bFar) m_press = EPress::Drag;
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnMouseMove();
}

// A list tracks the click of an item by itself: its logic hears of the click and not of the button's release.
void CIconListHand::OnRelease(int nItem, bool bInside, bool bFar) {
    const EPress press = std::exchange(m_press, EPress::None);
    if (m_icons.Sink() == nullptr) return;
    if (press != EPress::Item && bInside) m_icons.Sink()->OnLeftRelease();
    if (press == EPress::Item || (press == EPress::Ground && !bFar)) m_icons.Sink()->OnItemClick(nItem);
}

void CIconListHand::OnDoubleClick(int nItem) {
    if (m_icons.Sink() != nullptr) m_icons.Sink()->OnItemDoubleClick(nItem);
}

bool CIconListHand::OnKey(const CKeyEvent& event) {
    if (m_icons.Sink() == nullptr || (event.nKey != kKeyEnter && event.nKey != kKeyDelete)) return false;
    if (event.nKey == kKeyEnter)
        m_icons.Sink()->OnEnter();
    else
        m_icons.Sink()->OnKeyDown(event.nKey, event.bShift);
    return true;
}
