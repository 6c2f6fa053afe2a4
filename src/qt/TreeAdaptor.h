#pragma once

#include <QAbstractItemModel>

#include "qt/TreeIcons.h"
#include "window/TreeModel.h"

// Gives Qt's views a tree to read. Keeps nothing of it: an index carries the number of its item. Whoever
// observes the tree tells here what comes and goes.
class CTreeAdaptor : public QAbstractItemModel {
  public:
    // The tree outlives the adaptor.
    explicit CTreeAdaptor(const CTreeModel& tree) : m_tree(tree) {}

    CTreeItem ItemOf(const QModelIndex& index) const;
    QModelIndex IndexOf(CTreeItem item) const;

    void Inserted(CTreeItem item);
    // Before and after an item goes.
    void Deleting(CTreeItem item);
    void Deleted();
    void Marked(CTreeItem item);

    QModelIndex index(int nRow, int nColumn, const QModelIndex& parentIndex) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parentIndex) const override;
    int columnCount(const QModelIndex& /*parentIndex*/) const override { return 1; }
    bool hasChildren(const QModelIndex& parentIndex) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;

  private:
    const CTreeModel& m_tree;
    CTreeIcons m_icons;
};
