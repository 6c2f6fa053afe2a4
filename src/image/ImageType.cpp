#include "image/ImageType.h"

#include <algorithm>
#include <array>

namespace {

struct CRow {
    std::string_view strExtension;
    ImageType type;
};

constexpr std::array<CRow, 22> kTypes = {{
    {"bmp", ImageType::kBmp},   {"gif", ImageType::kGif},   {"jpg", ImageType::kJpeg},
    {"jpeg", ImageType::kJpeg}, {"png", ImageType::kPng},   {"ico", ImageType::kIco},
    {"tiff", ImageType::kTiff}, {"tif", ImageType::kTiff},  {"tga", ImageType::kTga},
    {"pcx", ImageType::kPcx},   {"wbmp", ImageType::kWbmp}, {"wmf", ImageType::kWmf},
    {"emf", ImageType::kWmf},   {"jp2", ImageType::kJp2},   {"j2k", ImageType::kJp2},
    {"jpc", ImageType::kJpc},   {"j2c", ImageType::kJpc},   {"pgx", ImageType::kPgx},
    {"pnm", ImageType::kPnm},   {"pgm", ImageType::kPnm},   {"ppm", ImageType::kPnm},
    {"ras", ImageType::kRas},
}};

}  // namespace

std::string GetFileExtension(std::string_view strName) {
    const std::size_t nPoint = strName.rfind('.');
    return nPoint == std::string_view::npos ? std::string() : std::string(strName.substr(nPoint + 1));
}

std::string ToLowerExtension(std::string_view strExtension) {
    std::string strLower(strExtension);
    std::transform(strLower.begin(), strLower.end(), strLower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return strLower;
}

ImageType FindImageType(std::string_view strExtension) {
    const auto* const pRow = std::find_if(kTypes.begin(), kTypes.end(),
                                          [&](const CRow& row) { return row.strExtension == strExtension; });
    return pRow == kTypes.end() ? ImageType::kUnknown : pRow->type;
}

ImageType FindImageTypeOfName(std::string_view strName) {
    return FindImageType(ToLowerExtension(GetFileExtension(strName)));
}
