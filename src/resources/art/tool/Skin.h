#pragma once

#include <QImage>
#include <map>
#include <vector>

#include "Drawings.h"
#include "Sheet.h"
#include "SkinTable.h"

// Renders the pictures of the skin at one density out of the table and the drawings.
class CSkin {
  public:
    CSkin(const std::vector<CSkinLine>& arrLines, const QString& strArtFolder, int nDensity);

    // All pictures by name, opaque but for the icons.
    std::map<QString, QImage> Render();

    // The drawings that could not be read.
    const QStringList& Missing() const { return m_drawings.Missing(); }

  private:
    const CSheet& Ground(const QString& strSource, const QString& strTab);
    CSheet MakeWindow(const QString& strPanel, const QString& strTab);
    CSheet MakeDialog(const CSkinLine& line);
    void DrawTabPlates(CSheet& sheet, const QString& strSelected) const;
    void DrawTabFaces(CSheet& sheet, const QString& strSelected);
    void DrawTitles(CSheet& sheet, const QString& strGround);

    QImage RenderLine(const CSkinLine& line);
    void RenderKey(const CSkinLine& line, std::map<QString, QImage>& mapPictures);
    CSheet RenderTab(const CSkinLine& line);
    void RenderFrames(const CSkinLine& line, std::map<QString, QImage>& mapPictures);
    CSheet RenderLabel(const CSkinLine& line);
    CSheet RenderStrip(const CSkinLine& line);
    CSheet RenderHint(const CSkinLine& line) const;
    CSheet RenderPicture(const CSkinLine& line);
    CSheet RenderMasked(const CSkinLine& line);
    CSheet RenderSpray(const CSkinLine& line) const;

    const std::vector<CSkinLine>& m_arrLines;
    CDrawings m_drawings;
    int m_nDensity;
    std::map<std::pair<QString, QString>, CSheet> m_mapGrounds;
};
