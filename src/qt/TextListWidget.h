#pragma once

#include <QListView>
#include <QStandardItemModel>

#include "qt/ControlWidget.h"
#include "window/TextListHand.h"

// A list box whose rows are texts, dark on light, with a scroll bar if they do not all fit.
class CTextListWidget : public QListView, public CControlWidget {
  public:
    explicit CTextListWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

  private:
    void MirrorItems();
    void MirrorSelection();
    int RowAt(const QMouseEvent& event) const;

    CControlContext m_context;
    QStandardItemModel m_model;
    CTextListHand m_hand;
    bool m_bMirroring = false;
};
