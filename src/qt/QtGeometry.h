#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "image/Geometry.h"

inline QSize ToQt(CSize size) {
    return {size.cx, size.cy};
}

inline QRect ToQt(const CRect& rc) {
    return {rc.left, rc.top, rc.Width(), rc.Height()};
}

inline CPoint FromQt(QPoint pt) {
    return {pt.x(), pt.y()};
}
