#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <optional>

#include "engines/effects/ImageEffect.h"

// A picture as the engine takes it, and back; 24 bits.
CxImage ToEngine(const QImage& image);
QImage FromEngine(const CxImage& image);

// The effects as they come out on the program's own photographs, each at a level that tells what it does.
class CEffectSamples {
  public:
    // The folder with the photographs.
    explicit CEffectSamples(QString strFolder) : m_strFolder(std::move(strFolder)) {}

    // The effect on a part of its photograph that has the shape of that size, scaled smoothly to it. The
    // engine works on a picture of the size of a preview, so that lines and tiles are as strong as they are
    // there. Nothing if the photograph cannot be read.
    std::optional<QImage> Render(int nEffect, QSize size);

    // The level at which the effect is shown; 0 for one that has none.
    static int LevelOf(int nEffect);

  private:
    const QImage* Photograph(const QString& strName);

    QString m_strFolder;
    std::map<QString, QImage> m_mapPhotographs;
};
