#pragma once

#include <QImage>
#include <QModelIndex>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

class CDialogView;
class QAbstractItemView;
class QFileDialog;
class QListView;
class QTreeView;
class QWidget;

// The hands and eyes of the tour: acts on the windows that are up by events as mouse and keyboard send them,
// and looks at what they show. Controls are named by their numbers.
class CPerson {
  public:
    // The window of the dialog with that number that is up; null if there is none.
    CDialogView* FindWindow(int nDialog) const;
    CDialogView* MainWindow() const;
    // The dialog that is on top: the main window as long as no other is up.
    CDialogView* TopDialog() const;
    QFileDialog* FileDialog() const;
    // A message box, or any other window of the toolkit's own that waits for an answer; null if there is
    // none.
    QWidget* Asking() const;

    // Mouse to the middle of the control, press and release. A control that is hidden or disabled is a fault.
    void Click(int nId);
    void ClickPoint(QPoint pt);
    void Hover(int nId);
    void RightClickCanvas(QPoint pt);
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Presses the button with that caption in the window that asks.
    void Answer(const QString& strCaption);

    // What the window that asks says.
    QString AskedText() const;

    // In the folder tree, by names that are seen in it.
    void ClickTree(const QString& strName);
    void OpenTree(const QString& strName);
    bool SeesTreeItem(const QString& strName) const;
    QString TreeSelection() const;

    // In the list of photographs.
    void ClickItem(const QString& strName, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void DoubleClickItem(const QString& strName);
    void KeyInList(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QStringList ListedNames() const;
    QStringList SelectedNames() const;
    QImage LookAtItem(const QString& strName) const;

    // In a list of pictures, which is scrolled to the item.
    void ClickPicture(int nId, int nItem);

    // In a list or a table of the dialog on top, by rows as they stand now.
    void ClickRow(int nId, int nRow, Qt::MouseButton button = Qt::LeftButton);
    void TickRow(int nId, int nRow);  // the box before it
    QStringList RowTexts(int nId, int nColumn) const;
    std::vector<int> TickedRows(int nId) const;
    int Selected(int nId) const;  // the row that is chosen; -1 if none is
    // A key where the focus of the dialog on top stands.
    void KeyInDialog(Qt::Key key);
    // The item of the menu that is up.
    void ChooseInMenu(const QString& strText);

    // In a line of text of the dialog on top: what stands there is replaced.
    void TypeOver(int nId, const QString& strText);
    QString TypedIn(int nId) const;

    // In the file dialog: whether the list shows the file, a click on it, a name typed in the name line, and
    // the button that takes it.
    bool SeesFile(const QString& strName) const;
    void ClickFile(const QString& strName);
    void TypeFileName(const QString& strName);
    void TakeFile();

    bool IsOn(int nId) const;  // seen and not disabled
    bool IsSeen(int nId) const;
    QString TextOf(int nId) const;
    QImage LookAt(int nId) const;  // what the control shows
    QImage LookAtWindow() const;   // the main window

    // The last fault; empty if there was none.
    const QString& Fault() const { return m_strFault; }
    void ForgetFault() { m_strFault.clear(); }

  private:
    QModelIndex FileRow(const QString& strName, QTreeView*& pList) const;
    QWidget* Widget(int nId) const;
    QModelIndex TreeItem(const QString& strName) const;
    QModelIndex ListItem(const QString& strName) const;
    // The middle of a row of one of them, brought into view; a fault if there is none.
    QPoint Aim(QAbstractItemView* pView, const QModelIndex& index, const QString& strName);
    void ClickRowAt(int nId, int nRow, std::optional<int> x, Qt::MouseButton button);
    QListView* List() const;
    QTreeView* Tree() const;

    QString m_strFault;
};
