#include "qt/QtWaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

void CQtWaitCursor::Begin() {
    if (m_nDepth++ == 0) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void CQtWaitCursor::End() {
    if (m_nDepth > 0 && --m_nDepth == 0) QGuiApplication::restoreOverrideCursor();
}
