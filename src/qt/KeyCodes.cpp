#include "qt/KeyCodes.h"

#include <Qt>

#include "window/Events.h"

int KeyCodeOf(int nQtKey) {
    if ((nQtKey >= Qt::Key_0 && nQtKey <= Qt::Key_9) || (nQtKey >= Qt::Key_A && nQtKey <= Qt::Key_Z))
        return nQtKey;
    switch (nQtKey) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return kKeyEnter;
        case Qt::Key_Escape:
            return kKeyEscape;
        case Qt::Key_Delete:
            return kKeyDelete;
        case Qt::Key_Space:
            return kKeySpace;
        case Qt::Key_PageUp:
            return kKeyPageUp;
        case Qt::Key_PageDown:
            return kKeyPageDown;
        case Qt::Key_Home:
            return kKeyHome;
        case Qt::Key_End:
            return kKeyEnd;
        case Qt::Key_Left:
            return kKeyLeft;
        case Qt::Key_Right:
            return kKeyRight;
        case Qt::Key_Up:
            return kKeyUp;
        case Qt::Key_Down:
            return kKeyDown;
        default:
            return 0;
    }
}
