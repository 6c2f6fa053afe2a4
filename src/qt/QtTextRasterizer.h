#pragma once

#include "image/TextRasterizer.h"

class CQtTextRasterizer : public CTextRasterizer {
  public:
    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override;
};
