#pragma once

#include <QAbstractListModel>

#include "window/IconListModel.h"

// Gives Qt's views a list of icons to read. Keeps nothing of it; pictures are read from the list where they
// are painted.
class CIconAdaptor : public QAbstractListModel {
  public:
    // The list outlives the adaptor.
    explicit CIconAdaptor(const CIconListModel& icons) : m_icons(icons) {}

    void Reset();
    void Changed(int nItem);

    int rowCount(const QModelIndex& parentIndex) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;

  private:
    const CIconListModel& m_icons;
};
