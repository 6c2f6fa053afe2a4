#include "qt/MouseEvents.h"

namespace {

EMouseAction ActionOf(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
            return EMouseAction::Press;
        case QEvent::MouseButtonRelease:
            return EMouseAction::Release;
        case QEvent::MouseButtonDblClick:
            return EMouseAction::DoubleClick;
        default:
            return EMouseAction::Move;
    }
}

EMouseButton ButtonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return EMouseButton::Left;
    return button == Qt::RightButton ? EMouseButton::Right : EMouseButton::None;
}

unsigned FlagsOf(const QMouseEvent& event) {
    unsigned nFlags = 0;
    if (event.buttons().testFlag(Qt::LeftButton)) nFlags |= kMouseLeftDown;
    if (event.buttons().testFlag(Qt::RightButton)) nFlags |= kMouseRightDown;
    if (event.modifiers().testFlag(Qt::ShiftModifier)) nFlags |= kMouseShift;
    if (event.modifiers().testFlag(Qt::ControlModifier)) nFlags |= kMouseCtrl;
    return nFlags;
}

}  // namespace

CMouseEvent MakeMouseEvent(const QMouseEvent& event, QPoint pt) {
    return {ActionOf(event.type()), ButtonOf(event.button()), {pt.x(), pt.y()}, FlagsOf(event)};
}
