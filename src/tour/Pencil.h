#pragma once

#include <QColor>
#include <QPoint>
#include <QSize>
#include <initializer_list>

#include "tour/Person.h"

// The hand on a page that stands whole in the middle of the canvas. Points are the page's pixels. The canvas
// has dealt with each event when the call returns; events that went through the window could still be on
// their way when the next step begins.
class CPencil {
  public:
    CPencil(CPerson& person, QSize sizePage, Qt::KeyboardModifiers keys = Qt::NoModifier)
        : m_person(person), m_sizePage(sizePage), m_keys(keys) {}

    void Press(QPoint pt, Qt::MouseButton button = Qt::LeftButton);
    void Move(QPoint pt);
    void Release(QPoint pt, Qt::MouseButton button = Qt::LeftButton);
    // Down at the first point, along the others in many moves, up at the last.
    void Stroke(std::initializer_list<QPoint> points, Qt::MouseButton button = Qt::LeftButton);
    void Click(QPoint pt) { Stroke({pt}); }
    void DoubleClick(QPoint pt);

    // What the page shows there.
    QColor ColorAt(QPoint pt) const;

  private:
    QWidget* Canvas() const;
    QPoint OnCanvas(QPoint pt) const;

    CPerson& m_person;
    QSize m_sizePage;
    Qt::MouseButtons m_buttons;    // that are down
    Qt::KeyboardModifiers m_keys;  // held all the time
};
