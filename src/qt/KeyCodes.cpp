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
        default:
            return 0;
    }
}
