#pragma once

#include <QListView>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include "qt/ControlWidget.h"

// Draws a row of a list of pictures: the picture as it is, in the row's top left corner, and the rim of the
// focus. A row whose picture does not exist shows nothing.
class CPictureDelegate : public QStyledItemDelegate {
  public:
    // Of a row: the name of its picture.
    static constexpr int kPictureRole = Qt::UserRole;

    CPictureDelegate(CPictures& pictures, int nDensity) : m_pictures(pictures), m_nDensity(nDensity) {}
    void SetDensity(int nDensity) { m_nDensity = nDensity; }

    void paint(QPainter* pPainter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    CPictures& m_pictures;
    int m_nDensity;
};

// What every view of pictures has in common: border, ground and scroll bar as the control says, its model and
// delegate, and no editing.
void SetUpPictures(QListView& view, const CControl& control, QStandardItemModel& model,
                   CPictureDelegate& delegate);

// A list box whose rows are pictures, one below the other, with a scroll bar if they do not all fit. It
// scrolls by whole rows. A selected row looks as its picture does: whoever owns the list changes that.
class CPictureListWidget : public QListView, public CControlWidget {
  public:
    explicit CPictureListWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;
    void SetDensity(int nDensity) override;

  protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* pEvent) const override;
    void wheelEvent(QWheelEvent* pEvent) override;

  private:
    void MirrorRows();
    void MirrorSelection();

    CControlContext m_context;
    QStandardItemModel m_model;
    CPictureDelegate m_delegate;
    bool m_bMirroring = false;
    int m_nWheel = 0;  // turned by less than a notch so far
};
