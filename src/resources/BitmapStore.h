#pragma once

#include <map>
#include <string>
#include <utility>

#include "image/Image.h"
#include "window/Bitmaps.h"

// The rendered pictures of the skin in a folder, one PNG a name under 1x/ and 2x/. Each is read at its first
// use and kept.
class CBitmapStore : public CBitmaps {
  public:
    explicit CBitmapStore(std::string strFolder) : m_strFolder(std::move(strFolder)) {}
    const CxImage* Find(const std::string& strName, int nDensity) override;

  private:
    std::string m_strFolder;
    std::map<std::pair<int, std::string>, CxImage> m_mapLoaded;
};
