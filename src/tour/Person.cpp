#include "tour/Person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include "qt/DialogView.h"
#include "resources/Ids.h"

CDialogView* CPerson::FindWindow(int nDialog) const {
    for (QWidget* pWindow : QApplication::topLevelWidgets()) {
        auto* pView = dynamic_cast<CDialogView*>(pWindow);
        if (pView != nullptr && pView->isVisible() && pView->Dialog().Template().nId == nDialog) return pView;
    }
    return nullptr;
}

CDialogView* CPerson::MainWindow() const {
    return FindWindow(kDlgMain);
}

QFileDialog* CPerson::FileDialog() const {
    return qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
}

QWidget* CPerson::Asking() const {
    if (QWidget* pPopup = QApplication::activePopupWidget()) return pPopup;
    QWidget* pModal = QApplication::activeModalWidget();
    return dynamic_cast<CDialogView*>(pModal) != nullptr ? nullptr : pModal;
}

CDialogView* CPerson::TopDialog() const {
    auto* pTop = dynamic_cast<CDialogView*>(QApplication::activeModalWidget());
    return pTop != nullptr ? pTop : MainWindow();
}

QWidget* CPerson::Widget(int nId) const {
    const CDialogView* pWindow = TopDialog();
    return pWindow == nullptr ? nullptr : pWindow->WidgetOf(nId);
}

void CPerson::Click(int nId) {
    QWidget* pWidget = Widget(nId);
    if (pWidget == nullptr || !pWidget->isVisible() || !pWidget->isEnabled()) {
        m_strFault = QStringLiteral("control %1 cannot be clicked").arg(nId);
        return;
    }
    // A window system does that by itself with a click; the offscreen one does not, and without it no control
    // gets the focus behind a dialog of the toolkit's own.
    if (!pWidget->isActiveWindow()) pWidget->activateWindow();
    Hover(nId);
    QTest::mouseClick(pWidget, Qt::LeftButton);
}

void CPerson::ClickPoint(QPoint pt) {
    QTest::mouseClick(MainWindow(), Qt::LeftButton, Qt::NoModifier, pt);
}

// Two moves: the pointer does not jump into the middle of a key in one step.
void CPerson::Hover(int nId) {
    QWidget* pWidget = Widget(nId);
    if (pWidget == nullptr) return;
    QTest::mouseMove(pWidget, pWidget->rect().center() - QPoint(1, 1));
    QTest::mouseMove(pWidget, pWidget->rect().center());
}

void CPerson::RightClickCanvas(QPoint pt) {
    QTest::mousePress(Widget(kCanvas), Qt::RightButton, Qt::NoModifier, pt);
    // The menu has been up and is gone.
    QTest::mouseRelease(Widget(kCanvas), Qt::RightButton, Qt::NoModifier, pt);
}

void CPerson::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* pTarget = Asking() != nullptr ? Asking() : static_cast<QWidget*>(MainWindow());
    if (pTarget->focusWidget() != nullptr) pTarget = pTarget->focusWidget();
    QTest::keyClick(pTarget, key, modifiers);
}

void CPerson::Answer(const QString& strCaption) {
    const QWidget* pAsking = Asking();
    if (pAsking != nullptr) {
        for (auto* pButton : pAsking->findChildren<QAbstractButton*>()) {
            QString strText = pButton->text();
            if (!pButton->isVisible() || !strText.remove('&').startsWith(strCaption)) continue;
            QTest::mouseClick(pButton, Qt::LeftButton);
            return;
        }
    }
    m_strFault = QStringLiteral("nothing asks with a button %1").arg(strCaption);
}

QModelIndex CPerson::FileRow(const QString& strName, QTreeView*& pList) const {
    const QFileDialog* pDialog = FileDialog();
    pList = pDialog == nullptr ? nullptr : pDialog->findChild<QTreeView*>(QStringLiteral("treeView"));
    if (pList == nullptr) return {};
    const QModelIndexList arrRows = pList->model()->match(pList->model()->index(0, 0, pList->rootIndex()),
                                                          Qt::DisplayRole, strName, 1, Qt::MatchExactly);
    return arrRows.isEmpty() ? QModelIndex() : arrRows.front();
}

bool CPerson::SeesFile(const QString& strName) const {
    QTreeView* pList = nullptr;
    return FileRow(strName, pList).isValid();
}

void CPerson::ClickFile(const QString& strName) {
    QTreeView* pList = nullptr;
    const QModelIndex row = FileRow(strName, pList);
    if (!row.isValid()) {
        m_strFault = QStringLiteral("the file dialog does not list %1").arg(strName);
        return;
    }
    pList->scrollTo(row);
    QTest::mouseClick(pList->viewport(), Qt::LeftButton, Qt::NoModifier, pList->visualRect(row).center());
}

void CPerson::TypeFileName(const QString& strName) {
    const QFileDialog* pDialog = FileDialog();
    auto* pName =
        pDialog == nullptr ? nullptr : pDialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (pName == nullptr) {
        m_strFault = QStringLiteral("no file dialog to type a name into");
        return;
    }
    // As an input method gives what it has made of the keys.
    pName->selectAll();
    QInputMethodEvent event;
    event.setCommitString(strName);
    QApplication::sendEvent(pName, &event);
}

void CPerson::TakeFile() {
    const QFileDialog* pDialog = FileDialog();
    const auto* pBox = pDialog == nullptr ? nullptr : pDialog->findChild<QDialogButtonBox*>();
    if (pBox == nullptr || pBox->buttons().isEmpty()) {
        m_strFault = QStringLiteral("no file dialog to take a file from");
        return;
    }
    for (QAbstractButton* pButton : pBox->buttons())
        if (pBox->buttonRole(pButton) == QDialogButtonBox::AcceptRole)
            return QTest::mouseClick(pButton, Qt::LeftButton);
}

bool CPerson::IsOn(int nId) const {
    const QWidget* pWidget = Widget(nId);
    return pWidget != nullptr && pWidget->isVisible() && pWidget->isEnabled();
}

bool CPerson::IsSeen(int nId) const {
    const QWidget* pWidget = Widget(nId);
    return pWidget != nullptr && pWidget->isVisible();
}

QString CPerson::TextOf(int nId) const {
    const CDialogView* pWindow = MainWindow();
    return pWindow == nullptr
               ? QString()
               : QString::fromStdString(const_cast<CDialogView*>(pWindow)->Dialog().Controls().Text(nId))
                     .trimmed();
}

QImage CPerson::LookAt(int nId) const {
    QWidget* pWidget = Widget(nId);
    return pWidget == nullptr ? QImage() : pWidget->grab().toImage();
}

QImage CPerson::LookAtWindow() const {
    CDialogView* pWindow = MainWindow();
    return pWindow == nullptr ? QImage() : pWindow->grab().toImage();
}
