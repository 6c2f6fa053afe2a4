#include "qt/InputFilter.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "qt/KeyCodes.h"

CInputFilter::CInputFilter(QWidget& root, CInputSink& sink) : m_root(root), m_sink(sink) {
    qApp->installEventFilter(this);
}

CInputFilter::~CInputFilter() {
    qApp->removeEventFilter(this);
}

bool CInputFilter::IsMine(const QWidget& widget) const {
    if (m_root.isWindow()) return widget.window() == &m_root;
    return &widget == &m_root || m_root.isAncestorOf(&widget);
}

void CInputFilter::OnMouseMove(const QWidget& widget, const QMouseEvent& event) {
    // An ignored event climbs to the parents as new ones of the same time and place.
    const QPoint pt = event.globalPosition().toPoint();
    if (event.timestamp() == m_nMoveTime && pt == m_ptMove) return;
    m_nMoveTime = event.timestamp();
    m_ptMove = pt;
    // A button, a slider or a scroll bar that is held keeps the mouse for itself.
    const bool bHolds = qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                        qobject_cast<const QAbstractSlider*>(&widget) != nullptr;
    if (bHolds && widget.isEnabled() && event.buttons() != Qt::NoButton) return;
    m_sink.OnHover(pt, event.buttons().testFlag(Qt::LeftButton));
}

bool CInputFilter::OnKeyPress(QWidget& widget, const QKeyEvent& event) {
    const bool bClimbing = &event == m_pKeyEvent && m_pKeyWidget && m_pKeyWidget->parentWidget() == &widget;
    m_pKeyEvent = &event;
    m_pKeyWidget = &widget;
    if (bClimbing) return false;
    const int nKey = KeyCodeOf(event.key());
    if (nKey == 0) return false;
    const bool bSwallowed = m_sink.OnKey({nKey, event.modifiers().testFlag(Qt::ControlModifier),
                                          event.modifiers().testFlag(Qt::ShiftModifier)});
    if (bSwallowed) m_pKeyEvent = nullptr;
    return bSwallowed;
}

bool CInputFilter::eventFilter(QObject* pWatched, QEvent* pEvent) {
    const QEvent::Type type = pEvent->type();
    if (type != QEvent::MouseMove && type != QEvent::KeyPress && type != QEvent::KeyRelease &&
        type != QEvent::FocusIn)
        return false;
    if (!pWatched->isWidgetType()) return false;
    auto& widget = static_cast<QWidget&>(*pWatched);
    if (!IsMine(widget)) return false;
    if (type == QEvent::MouseMove) OnMouseMove(widget, static_cast<const QMouseEvent&>(*pEvent));
    if (type == QEvent::FocusIn) m_sink.OnFocusIn(widget);
    if (type == QEvent::KeyRelease) m_pKeyEvent = nullptr;
    return type == QEvent::KeyPress && OnKeyPress(widget, static_cast<const QKeyEvent&>(*pEvent));
}
