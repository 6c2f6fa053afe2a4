#pragma once

#include <QListView>
#include <QStandardItemModel>

#include "qt/ControlWidget.h"

// A list of pictures, one below the other.
class CListWidget : public QListView, public CControlWidget {
  public:
    explicit CListWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
    void Mirror(EControlChange change) override;

  protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

  private:
    void FillModel();
    void MirrorSelection();

    CControlContext m_context;
    QStandardItemModel m_model;
    bool m_bMirroring = false;
};
