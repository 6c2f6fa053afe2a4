#include "qt/SliderWidget.h"

#include <QSignalBlocker>
#include <algorithm>

#include "window/Dialog.h"

CSliderWidget::CSliderWidget(const CControlContext& context) : QSlider(context.pParent), m_context(context) {
    const bool bUpright = context.control.rcPlace.Height() > context.control.rcPlace.Width();
    setOrientation(bUpright ? Qt::Vertical : Qt::Horizontal);
    setInvertedAppearance(bUpright);
    setInvertedControls(bUpright);
    Mirror(EControlChange::Range);
    connect(this, &QSlider::valueChanged, this, [this](int nPos) {
        m_context.dialog.Controls().SetPosition(m_context.control.nId, nPos);
        m_context.dialog.OnNotify(m_context.control.nId, ENotice::Scrolled);
    });
}

void CSliderWidget::Mirror(EControlChange change) {
    if (change != EControlChange::Range && change != EControlChange::Position) return;
    // What the logic sets is no move of the user's.
    const QSignalBlocker blocker(this);
    setRange(m_context.control.nMin, m_context.control.nMax);
    setPageStep(std::max(1, (m_context.control.nMax - m_context.control.nMin) / 5));
    setValue(m_context.control.nPos);
}
