#pragma once

#include <QTreeView>

#include "qt/ControlWidget.h"

// The tree of folders, on white.
class CTreeWidget : public QTreeView, public CControlWidget {
  public:
    explicit CTreeWidget(const CControlContext& context);

    QWidget& Widget() override { return *this; }
};
