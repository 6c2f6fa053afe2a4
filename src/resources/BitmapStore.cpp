#include "resources/BitmapStore.h"

const CxImage* CBitmapStore::Find(const std::string& strName, int nDensity) {
    const auto key = std::make_pair(nDensity, strName);
    auto it = m_mapLoaded.find(key);
    if (it == m_mapLoaded.end()) {
        const std::string strPath = m_strFolder + (nDensity == 2 ? "/2x/" : "/1x/") + strName + ".png";
        it = m_mapLoaded.emplace(key, CxImage(strPath, ImageType::kPng)).first;
    }
    return it->second.IsValid() ? &it->second : nullptr;
}
