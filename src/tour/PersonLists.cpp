// How the person deals with the folder tree, the list of photographs and lines of text.

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTreeView>
#include <algorithm>

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "tour/Person.h"
#include "window/CheckTableHand.h"

namespace {

// A row below the index, at any depth, that shows the name.
QModelIndex FindBelow(const QAbstractItemModel& model, const QModelIndex& parent, const QString& strName) {
    for (int nRow = 0; nRow < model.rowCount(parent); ++nRow) {
        const QModelIndex row = model.index(nRow, 0, parent);
        if (row.data().toString() == strName) return row;
        const QModelIndex found = FindBelow(model, row, strName);
        if (found.isValid()) return found;
    }
    return {};
}

}  // namespace

QString CPerson::AskedText() const {
    const auto* pBox = qobject_cast<QMessageBox*>(Asking());
    return pBox == nullptr ? QString() : pBox->text();
}

QTreeView* CPerson::Tree() const {
    return qobject_cast<QTreeView*>(Widget(kFolderTree));
}

QListView* CPerson::List() const {
    return qobject_cast<QListView*>(Widget(kFileList));
}

QModelIndex CPerson::TreeItem(const QString& strName) const {
    const QTreeView* pTree = Tree();
    return pTree == nullptr ? QModelIndex() : FindBelow(*pTree->model(), {}, strName);
}

QModelIndex CPerson::ListItem(const QString& strName) const {
    const QListView* pList = List();
    return pList == nullptr ? QModelIndex() : FindBelow(*pList->model(), {}, strName);
}

QPoint CPerson::Aim(QAbstractItemView* pView, const QModelIndex& index, const QString& strName) {
    if (pView == nullptr || !pView->isVisible() || !index.isValid()) {
        m_strFault = QStringLiteral("there is no %1 to click").arg(strName);
        return {};
    }
    pView->scrollTo(index);
    return pView->visualRect(index).center();
}

void CPerson::ClickTree(const QString& strName) {
    const QPoint pt = Aim(Tree(), TreeItem(strName), strName);
    if (m_strFault.isEmpty()) QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, Qt::NoModifier, pt);
}

// On the arrow before the item.
void CPerson::OpenTree(const QString& strName) {
    Aim(Tree(), TreeItem(strName), strName);
    if (!m_strFault.isEmpty()) return;
    const QRect rc = Tree()->visualRect(TreeItem(strName));
    const QPoint ptArrow(rc.left() - Tree()->indentation() / 2, rc.center().y());
    QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, Qt::NoModifier, ptArrow);
}

bool CPerson::SeesTreeItem(const QString& strName) const {
    const QTreeView* pTree = Tree();
    return pTree != nullptr && pTree->isVisible() && pTree->visualRect(TreeItem(strName)).isValid();
}

QString CPerson::TreeSelection() const {
    const QTreeView* pTree = Tree();
    const QModelIndexList arrRows =
        pTree == nullptr ? QModelIndexList() : pTree->selectionModel()->selectedRows();
    return arrRows.isEmpty() ? QString() : arrRows.front().data().toString();
}

void CPerson::ClickItem(const QString& strName, Qt::KeyboardModifiers modifiers) {
    const QPoint pt = Aim(List(), ListItem(strName), strName);
    if (m_strFault.isEmpty()) QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers, pt);
}

void CPerson::DoubleClickItem(const QString& strName) {
    const QPoint pt = Aim(List(), ListItem(strName), strName);
    if (m_strFault.isEmpty()) QTest::mouseDClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, pt);
}

void CPerson::KeyInList(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    if (List() != nullptr) QTest::keyClick(List(), key, modifiers);
}

QStringList CPerson::ListedNames() const {
    QStringList arrNames;
    const QListView* pList = List();
    if (pList == nullptr || !pList->isVisible()) return arrNames;
    for (int nRow = 0; nRow < pList->model()->rowCount(); ++nRow)
        arrNames.append(pList->model()->index(nRow, 0).data().toString());
    return arrNames;
}

QStringList CPerson::SelectedNames() const {
    QStringList arrNames;
    QModelIndexList arrRows =
        List() == nullptr ? QModelIndexList() : List()->selectionModel()->selectedIndexes();
    std::sort(arrRows.begin(), arrRows.end());
    for (const QModelIndex& row : arrRows) arrNames.append(row.data().toString());
    return arrNames;
}

QImage CPerson::LookAtItem(const QString& strName) const {
    QListView* pList = List();
    if (pList == nullptr) return {};
    const QRect rc = pList->visualRect(ListItem(strName));
    return pList->viewport()->grab(rc).toImage();
}

void CPerson::ClickPicture(int nId, int nItem) {
    auto* pList = qobject_cast<QListView*>(Widget(nId));
    const QModelIndex index = pList == nullptr ? QModelIndex() : pList->model()->index(nItem, 0);
    const QPoint pt = Aim(pList, index, QStringLiteral("picture %1 of list %2").arg(nItem).arg(nId));
    if (m_strFault.isEmpty()) QTest::mouseClick(pList->viewport(), Qt::LeftButton, Qt::NoModifier, pt);
}

void CPerson::ClickRowAt(int nId, int nRow, std::optional<int> x, Qt::MouseButton button) {
    auto* pView = qobject_cast<QAbstractItemView*>(Widget(nId));
    const QModelIndex index = pView == nullptr ? QModelIndex() : pView->model()->index(nRow, 0);
    QPoint pt = Aim(pView, index, QStringLiteral("row %1 of list %2").arg(nRow).arg(nId));
    if (!m_strFault.isEmpty()) return;
    if (x) pt.setX(*x);
    // A menu comes up where the pointer is.
    QTest::mouseMove(pView->viewport(), pt);
    QTest::mouseClick(pView->viewport(), button, Qt::NoModifier, pt);
}

void CPerson::ClickRow(int nId, int nRow, Qt::MouseButton button) {
    ClickRowAt(nId, nRow, std::nullopt, button);
}

void CPerson::TickRow(int nId, int nRow) {
    ClickRowAt(nId, nRow, CCheckTableHand::kBoxLeft + CCheckTableHand::kBoxPixels / 2, Qt::LeftButton);
}

QStringList CPerson::RowTexts(int nId, int nColumn) const {
    QStringList arrTexts;
    const auto* pView = qobject_cast<QAbstractItemView*>(Widget(nId));
    for (int nRow = 0; pView != nullptr && nRow < pView->model()->rowCount(); ++nRow)
        arrTexts.append(pView->model()->index(nRow, nColumn).data().toString());
    return arrTexts;
}

std::vector<int> CPerson::TickedRows(int nId) const {
    std::vector<int> arrRows;
    const auto* pView = qobject_cast<QAbstractItemView*>(Widget(nId));
    for (int nRow = 0; pView != nullptr && nRow < pView->model()->rowCount(); ++nRow)
        if (pView->model()->index(nRow, 0).data(Qt::CheckStateRole) == Qt::Checked) arrRows.push_back(nRow);
    return arrRows;
}

int CPerson::Selected(int nId) const {
    return TopDialog() == nullptr ? -1 : TopDialog()->Dialog().Controls().Selection(nId);
}

void CPerson::KeyInDialog(Qt::Key key) {
    QWidget* pFocus = TopDialog() == nullptr ? nullptr : TopDialog()->focusWidget();
    if (pFocus != nullptr) QTest::keyClick(pFocus, key);
}

void CPerson::ChooseInMenu(const QString& strText) {
    auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const QList<QAction*> arrActions = pMenu == nullptr ? QList<QAction*>() : pMenu->actions();
    for (QAction* pAction : arrActions)
        if (pAction->text() == strText)
            return QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier,
                                     pMenu->actionGeometry(pAction).center());
    m_strFault = QStringLiteral("no menu with %1 is up").arg(strText);
}

void CPerson::TypeOver(int nId, const QString& strText) {
    auto* pEdit = qobject_cast<QLineEdit*>(Widget(nId));
    if (pEdit == nullptr || !pEdit->isVisible()) {
        m_strFault = QStringLiteral("control %1 takes no text").arg(nId);
        return;
    }
    pEdit->setFocus(Qt::MouseFocusReason);
    pEdit->selectAll();
    // What has no key of its own comes from an input method.
    QInputMethodEvent event;
    event.setCommitString(strText);
    QCoreApplication::sendEvent(pEdit, &event);
}

QString CPerson::TypedIn(int nId) const {
    const auto* pEdit = qobject_cast<QLineEdit*>(Widget(nId));
    return pEdit == nullptr ? QString() : pEdit->text();
}
