#include "qt/DialogView.h"

#include <QCloseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "qt/ControlFactory.h"
#include "qt/KeyCodes.h"
#include "qt/Pictures.h"
#include "qt/QtGeometry.h"
#include "qt/ScrollViewWidget.h"
#include "qt/Text.h"
#include "window/DialogKeys.h"

namespace {

// From this ratio of screen pixels to client pixels on the denser pictures look better.
constexpr double kDenseRatio = 1.5;

Qt::WindowFlags FlagsOf(EDialogFrame frame) {
    switch (frame) {
        case EDialogFrame::Caption:
            return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
        case EDialogFrame::Plain:
            return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
        case EDialogFrame::None:
            return Qt::Dialog | Qt::FramelessWindowHint;
        case EDialogFrame::Child:
            break;
    }
    return Qt::Widget;
}

bool IsSeenThrough(const CControl& control) {
    return control.kind == EControlKind::Static;
}

}  // namespace

CDialogView::CDialogView(CDialog& dialog, CPictures& pictures, QWidget* pParent)
    : QWidget(pParent, FlagsOf(dialog.Template().frame)),
      m_dialog(dialog),
      m_pictures(pictures),
      m_filter(*this, *this) {
    const CDialogTemplate& dialogTemplate = dialog.Template();
    setWindowTitle(ToQt(dialogTemplate.szTitle));
    setFixedSize(ToQt(dialogTemplate.sizeClient));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (dialogTemplate.frame != EDialogFrame::Child) setWindowModality(Qt::ApplicationModal);
    m_nDensity = devicePixelRatioF() >= kDenseRatio ? 2 : 1;
    m_dialog.Client().SetUp(&m_pictures.Bitmaps(), m_nDensity);
    ClearGround();
    BuildControls();
    m_dialog.Controls().Attach(this);
    m_dialog.Attach(this);
}

CDialogView::~CDialogView() {
    m_dialog.Attach(nullptr);
    m_dialog.Controls().Attach(nullptr);
}

void CDialogView::BuildControls() {
    for (const CControl& control : m_dialog.Controls().All()) {
        auto pControl = CreateControlWidget({m_dialog, control, m_pictures, m_nDensity, this}, *this);
        if (!pControl) continue;
        QWidget& widget = pControl->Widget();
        widget.setGeometry(ToQt(control.rcPlace));
        widget.setMouseTracking(true);
        if (*control.look.szSpoken != '\0') widget.setAccessibleName(ToQt(control.look.szSpoken));
        widget.setEnabled(control.bEnabled);
        widget.setVisible(control.bShown);
        m_mapIds.emplace(&widget, control.nId);
        m_mapWidgets.emplace(control.nId, std::move(pControl));
    }
}

// Until the dialog draws on it, its ground looks like that of every other dialog.
void CDialogView::ClearGround() {
    const QColor color = palette().color(QPalette::Window);
    m_dialog.Client().FillRect(
        CRect::FromPlace(0, 0, width(), height()),
        {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
         static_cast<std::uint8_t>(color.blue())});
}

void CDialogView::UpdateDensity() {
    const int nDensity = devicePixelRatioF() >= kDenseRatio ? 2 : 1;
    if (nDensity == m_nDensity) return;
    m_nDensity = nDensity;
    m_dialog.Client().SetUp(&m_pictures.Bitmaps(), nDensity);
    ClearGround();
    for (const auto& [nId, pControl] : m_mapWidgets) pControl->SetDensity(nDensity);
    m_dialog.Invalidate();
}

void CDialogView::Prepare() {
    if (m_dialog.WantsPaint()) m_dialog.Paint();
    const EDialogFrame frame = m_dialog.Template().frame;
    if (frame == EDialogFrame::Child) return;
    const QRect rcScreen = screen()->availableGeometry();
    if (frame == EDialogFrame::Caption) {
        move(rcScreen.topLeft());
    } else {
        const QWidget* pAbove = parentWidget();
        const QRect rcAround = pAbove != nullptr ? pAbove->window()->geometry() : rcScreen;
        move(rcAround.center() - rect().center());
    }
    // In the main window no control has the focus until one is given it.
    if (frame == EDialogFrame::Caption && m_dialog.Controls().Focus() == 0) setFocus();
}

QWidget* CDialogView::WidgetOf(int nId) const {
    const auto it = m_mapWidgets.find(nId);
    return it == m_mapWidgets.end() ? nullptr : &it->second->Widget();
}

const CControl* CDialogView::ControlOf(const QWidget* pWidget) const {
    for (; pWidget != nullptr && pWidget != this; pWidget = pWidget->parentWidget()) {
        const auto it = m_mapIds.find(pWidget);
        if (it != m_mapIds.end()) return m_dialog.Controls().Find(it->second);
    }
    return nullptr;
}

const CControl* CDialogView::ControlAt(QPoint ptGlobal) const {
    return ControlOf(childAt(mapFromGlobal(ptGlobal)));
}

bool CDialogView::event(QEvent* pEvent) {
    if (pEvent->type() == QEvent::ScreenChangeInternal) UpdateDensity();
    return QWidget::event(pEvent);
}

void CDialogView::paintEvent(QPaintEvent* pEvent) {
    const QRect rc = pEvent->rect();
    const QRect rcSource(rc.topLeft() * m_nDensity, rc.size() * m_nDensity);
    QPainter painter(this);
    painter.drawImage(rc, ViewPixels(m_dialog.Client().Surface().Pixels(), m_nDensity), rcSource);
}

void CDialogView::OnPaintWanted() {
    QMetaObject::invokeMethod(
        this, [this] { m_dialog.Paint(); }, Qt::QueuedConnection);
}

void CDialogView::OnDrawn() {
    update(ToQt(m_dialog.Client().TakeDamage()));
}

void CDialogView::OnShowNow() {
    if (m_dialog.WantsPaint()) m_dialog.Paint();
    OnDrawn();
    repaint();
    for (const auto& [nId, pControl] : m_mapWidgets)
        if (pControl->Widget().isVisible()) pControl->Widget().repaint();
}

void CDialogView::OnEnded() {
    if (m_fnEnded) m_fnEnded();
}

void CDialogView::OnControlChanged(const CControl& control, EControlChange change) {
    const auto it = m_mapWidgets.find(control.nId);
    if (it == m_mapWidgets.end()) return;
    QWidget& widget = it->second->Widget();
    const bool bGoes = (change == EControlChange::Shown && !control.bShown) ||
                       (change == EControlChange::Enabled && !control.bEnabled);
    QWidget* pFocus = window()->focusWidget();
    // Without this Qt would hand the focus on to the next control.
    if (bGoes && pFocus != nullptr && (pFocus == &widget || widget.isAncestorOf(pFocus))) setFocus();
    if (change == EControlChange::Shown) widget.setVisible(control.bShown);
    if (change == EControlChange::Enabled) widget.setEnabled(control.bEnabled);
    if (change == EControlChange::Place) widget.setGeometry(ToQt(control.rcPlace));
    if (change == EControlChange::Focus) MirrorFocus(control);
    it->second->Mirror(change);
}

void CDialogView::MirrorFocus(const CControl& control) {
    QWidget* pNow = WidgetOf(control.nId);
    // Handlers give the focus again and again to the control that has it.
    if (m_nFocusShown == control.nId && pNow != nullptr && pNow->hasFocus()) return;
    QWidget* pBefore = WidgetOf(m_nFocusShown);
    if (pBefore != nullptr) pBefore->update();
    m_nFocusShown = control.nId;
    if (pNow != nullptr && !pNow->hasFocus()) pNow->setFocus();
}

void CDialogView::OnFocusIn(QWidget& widget) {
    const CControl* pControl = ControlOf(&widget);
    if (pControl != nullptr && m_dialog.Controls().Focus() != pControl->nId)
        m_dialog.Controls().SetFocus(pControl->nId);
}

void CDialogView::OnHover(QPoint ptGlobal, bool bLeftDown) {
    if (!rect().contains(mapFromGlobal(ptGlobal))) return;
    const CControl* pControl = ControlAt(ptGlobal);
    m_dialog.OnHover(pControl == nullptr ? 0 : pControl->nId, bLeftDown);
}

bool CDialogView::OnKey(const CKeyEvent& event) {
    return m_dialog.OnKey(event);
}

void CDialogView::keyPressEvent(QKeyEvent* pEvent) {
    if (!DoDialogKey(m_dialog, {KeyCodeOf(pEvent->key())})) QWidget::keyPressEvent(pEvent);
}

void CDialogView::closeEvent(QCloseEvent* pEvent) {
    pEvent->ignore();  // whoever runs the dialog takes the window away once it has ended
    if (!m_dialog.HasEnded()) m_dialog.OnClose();
}

void CDialogView::Route(const QMouseEvent& event) {
    const bool bMove = event.type() == QEvent::MouseMove;
    if (!bMove && event.button() != Qt::LeftButton && event.button() != Qt::RightButton) return;
    const QPoint ptGlobal = event.globalPosition().toPoint();
    const QPoint pt = mapFromGlobal(ptGlobal);
    if (!rect().contains(pt)) return;
    const CControl* pControl = ControlAt(ptGlobal);
    if (pControl == nullptr || IsSeenThrough(*pControl)) return m_dialog.OnMouse(MakeMouseEvent(event, pt));
    if (pControl->kind == EControlKind::View && pControl->bEnabled)
        static_cast<CScrollViewWidget*>(WidgetOf(pControl->nId))->HandleMouse(event);
}

void CDialogView::mousePressEvent(QMouseEvent* pEvent) {
    Route(*pEvent);
}
void CDialogView::mouseReleaseEvent(QMouseEvent* pEvent) {
    Route(*pEvent);
}
void CDialogView::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    Route(*pEvent);
}
void CDialogView::mouseMoveEvent(QMouseEvent* pEvent) {
    Route(*pEvent);
}
