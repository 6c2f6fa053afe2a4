#pragma once

#include <QString>
#include <QSvgRenderer>
#include <map>
#include <memory>

#include "Sheet.h"

// The vector drawings of the art folder by their path without the extension, read once each.
class CDrawings {
  public:
    explicit CDrawings(QString strFolder) : m_strFolder(std::move(strFolder)) {}

    // Draws the whole drawing into the place. A drawing that cannot be read is noted in Missing.
    void Draw(CSheet& sheet, const QString& strName, const QRectF& rcPlace);

    // Draws an animated drawing as it looks nMilliseconds after its start, with the group strAct shown. One
    // that has no such look is noted in Missing.
    void DrawStill(CSheet& sheet, const QString& strName, const QString& strAct, int nMilliseconds,
                   const QRectF& rcPlace);

    // The drawings that were asked for and could not be read.
    const QStringList& Missing() const { return m_arrMissing; }

  private:
    QString m_strFolder;
    std::map<QString, std::unique_ptr<QSvgRenderer>> m_mapRead;
    QStringList m_arrMissing;
};
