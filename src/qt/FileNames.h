#pragma once

#include <QString>
#include <QStringList>
#include <string>

// The path's own bytes. Qt shows a byte that is no valid text as a replacement sign; such a path is looked
// for among the files that there are, so that it leads back to the file that it was shown for.
std::string ResolvePath(const QString& strPath);

// Name filters as Qt takes them from pairs "label|pattern|label|pattern||". A label that does not name its
// pattern in brackets gets it.
QStringList ParseFilter(const std::string& strFilter);

// The patterns in a name filter: "*.jpg" and "*.jpeg" of "Pictures (*.jpg *.jpeg)".
QStringList PatternsOf(const QString& strNameFilter);
