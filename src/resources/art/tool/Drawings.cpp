#include "Drawings.h"

#include <QFile>

#include "Animation.h"

void CDrawings::Draw(CSheet& sheet, const QString& strName, const QRectF& rcPlace) {
    std::unique_ptr<QSvgRenderer>& pDrawing = m_mapRead[strName];
    if (!pDrawing) {
        pDrawing = std::make_unique<QSvgRenderer>(m_strFolder + '/' + strName + ".svg");
        if (!pDrawing->isValid()) m_arrMissing << strName;
    }
    CSheetPainter painter(sheet);
    pDrawing->render(&painter, rcPlace);
}

void CDrawings::DrawStill(CSheet& sheet, const QString& strName, const QString& strAct, int nMilliseconds,
                          const QRectF& rcPlace) {
    QFile file(m_strFolder + '/' + strName + ".svg");
    const QByteArray arrDrawing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const std::optional<QByteArray> still = StillOf(arrDrawing, strAct, nMilliseconds);
    QSvgRenderer drawing(still.value_or(QByteArray()));
    if (!drawing.isValid()) {
        m_arrMissing << strName + ' ' + strAct;
        return;
    }
    CSheetPainter painter(sheet);
    drawing.render(&painter, rcPlace);
}
