#pragma once

#include <QImage>
#include <QString>

// A cell of the frame list: a photograph with the frame round it, or for item 0, which stands for no frame,
// the photograph alone with a small sign on it.
class CFrameCells {
  public:
    static constexpr int kCount = 13;
    static constexpr QSize kCell{91, 69};

    // The folder with the photographs, and the folder with the rendered frames as 1.png to 12.png.
    CFrameCells(const QString& strSamples, QString strFrames);

    // Empty if the frame or the photograph is missing.
    QImage Render(int nItem, int nDensity) const;

  private:
    QImage m_photograph;  // 640 by 480
    QString m_strFrames;
};
