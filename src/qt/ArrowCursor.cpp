#include "qt/ArrowCursor.h"

#include <QCursor>
#include <QGuiApplication>

CArrowCursor::CArrowCursor() : m_bShown(QGuiApplication::overrideCursor() != nullptr) {
    if (m_bShown) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
}

CArrowCursor::~CArrowCursor() {
    if (m_bShown) QGuiApplication::restoreOverrideCursor();
}
