#pragma once

#include <QComboBox>
#include <QString>
#include <QStringList>

// The files of a folder whose name, or whose folder's name, is no valid text: Qt's list of files leaves them
// out.
class CUnlistedFiles : public QComboBox {
  public:
    explicit CUnlistedFiles(QWidget* pParent) : QComboBox(pParent) { setObjectName("unlistedFiles"); }

    // Shows those that match one of the patterns ("*.jpg"), whatever their case. False if there are none.
    bool Fill(const QString& strFolder, const QStringList& arrPatterns);
};
