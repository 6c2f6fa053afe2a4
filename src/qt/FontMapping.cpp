#include "qt/FontMapping.h"

#include <QFontDatabase>

#include "qt/Text.h"

namespace {

// In the order of wish; those that the machine lacks are left out.
constexpr const char* kChineseFaces[] = {"WenQuanYi Zen Hei", "Noto Sans CJK SC", "SimHei",
                                         "Microsoft YaHei"};
constexpr const char* kKoreanFaces[] = {"Noto Sans CJK KR", "Malgun Gothic", "Gulim"};

void AddInstalled(QStringList& arrFaces, const QString& strFace) {
    if (!strFace.isEmpty() && QFontDatabase::hasFamily(strFace) && !arrFaces.contains(strFace))
        arrFaces.append(strFace);
}

}  // namespace

QStringList MapFace(const std::string& strFace) {
    QStringList arrFaces;
    AddInstalled(arrFaces, ToQt(strFace));
    for (const char* szFace : kChineseFaces) AddInstalled(arrFaces, szFace);
    for (const char* szFace : kKoreanFaces) AddInstalled(arrFaces, szFace);
    return arrFaces;
}

QFont MapFont(const std::string& strFace, int nPixels) {
    QFont font;
    const QStringList arrFaces = MapFace(strFace);
    if (!arrFaces.isEmpty()) font.setFamilies(arrFaces);
    font.setPixelSize(nPixels);
    return font;
}
