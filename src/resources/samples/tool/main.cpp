// fotarium-samples: renders the sample photographs that stand beside it.

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "Pictures.h"
#include "image/Image.h"

namespace {

constexpr std::array<CPicture, 6> kPictures{{
    {"湖光", 1280, 960, 56, 20, TakeLake, {.fContrast = 1.06F, .fSaturation = 1.08F, .fGrain = 0.003F}},
    {"静物", 1280, 960, 72, 40, TakeStillLife, {.fExposure = 1.3F, .fGrain = 0.003F}},
    {"肖像", 960, 1280, 72, 36, TakePortrait, {.fExposure = 1.2F, .fGrain = 0.003F}},
    {"夜色", 1280, 960, 66, 96, TakeNight, {.fGrain = 0.003F, .fGlow = 0.1F}},
    {"书页", 900, 1200, 62, 32, TakePage, {.fExposure = 1.15F, .fGrain = 0.003F}},
    {"花砖", 1024, 768, 62, 28, TakeTiles, {.fSaturation = 1.1F, .fGrain = 0.003F}},
}};

// In a draft both sides are halved.
constexpr int kDraftPart = 2;

struct COrders {
    bool bDraft = false;
    bool bWrong = false;
    std::string strOnly;
    std::string strFolder;
};

COrders ReadOrders(int nArgs, char** pArgs) {
    COrders orders;
    for (int i = 1; i < nArgs; ++i) {
        const std::string_view arg = pArgs[i];
        if (arg == "--draft") {
            orders.bDraft = true;
        } else if (arg == "--only" && i + 1 < nArgs) {
            orders.strOnly = pArgs[++i];
        } else if (arg.starts_with("--") || !orders.strFolder.empty()) {
            orders.bWrong = true;
        } else {
            orders.strFolder = arg;
        }
    }
    orders.bWrong = orders.bWrong || orders.strFolder.empty();
    return orders;
}

bool Write(const std::string& strPath, const CPicture& picture, const CFilm& film) {
    CxImage image;
    if (!image.Create(film.nWidth, film.nHeight)) return false;
    const std::vector<std::uint8_t> bytes = Develop(film, picture.look);
    std::ranges::copy(bytes, image.MutableBytes().begin());
    image.SetJpegQuality(picture.nJpegQuality);
    return image.Save(strPath, ImageType::kJpeg);
}

}  // namespace

int main(int nArgs, char** pArgs) {
    const COrders orders = ReadOrders(nArgs, pArgs);
    if (orders.bWrong) {
        std::fputs(
            "fotarium-samples [--draft] [--only NAME] OUTDIR\n"
            "Renders the six sample photographs into OUTDIR, which is made if missing. On one core this\n"
            "takes about ten minutes; --draft makes them half as wide and high, in one.\n",
            stderr);
        return 2;
    }
    std::error_code error;
    std::filesystem::create_directories(orders.strFolder, error);
    for (const CPicture& picture : kPictures) {
        if (!orders.strOnly.empty() && orders.strOnly != picture.pszName) continue;
        const int nPart = orders.bDraft ? kDraftPart : 1;
        const CFilm film =
            picture.pTake(picture.nWidth / nPart, picture.nHeight / nPart, picture.nFineness / nPart);
        const std::string strPath = orders.strFolder + "/" + picture.pszName + ".jpg";
        if (!Write(strPath, picture, film)) {
            std::fprintf(stderr, "cannot write %s\n", strPath.c_str());
            return 1;
        }
        std::printf("%s\n", strPath.c_str());
        std::fflush(stdout);
    }
    return 0;
}
