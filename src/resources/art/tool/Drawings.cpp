#include "Drawings.h"

void CDrawings::Draw(CSheet& sheet, const QString& strName, const QRectF& rcPlace) {
    std::unique_ptr<QSvgRenderer>& pDrawing = m_mapRead[strName];
    if (!pDrawing) {
        pDrawing = std::make_unique<QSvgRenderer>(m_strFolder + '/' + strName + ".svg");
        if (!pDrawing->isValid()) m_arrMissing << strName;
    }
    CSheetPainter painter(sheet);
    pDrawing->render(&painter, rcPlace);
}
