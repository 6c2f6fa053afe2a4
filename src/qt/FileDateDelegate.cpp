#include "qt/FileDateDelegate.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFileSystemModel>

void CFileDateDelegate::initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(pOption, index);
    const QFileInfo info(index.data(QFileSystemModel::FilePathRole).toString());
    pOption->text = info.lastModified().toString("yyyy-MM-dd HH:mm");
}
