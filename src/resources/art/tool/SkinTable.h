#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

// One line of skin.txt: what is drawn, its name, its place in pixels at single density, and what the kind
// adds.
struct CSkinLine {
    QString strKind;
    QString strName;
    QRect rcPlace;
    QStringList arrRest;
};

// The lines of skin.txt in their order. Nothing if the file cannot be read or a line has not the fields of
// its kind; strError then says where.
std::optional<std::vector<CSkinLine>> ReadSkinTable(const QString& strPath, QString& strError);
