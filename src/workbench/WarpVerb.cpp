#include <charconv>
#include <climits>
#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

#include "engines/warp/TextWarp.h"
#include "image/Ppm.h"
#include "workbench/Verbs.h"

namespace {

using CWords = std::vector<std::string>;

// A number in single precision, inf and nan too.
std::optional<float> ParseFloat(const std::string& strWord) {
    float f = 0;
    const char* const pEnd = strWord.data() + strWord.size();
    const auto [pStop, error] = std::from_chars(strWord.data(), pEnd, f);
    if (error != std::errc() || pStop != pEnd) return std::nullopt;
    return f;
}

// All words as numbers, the first into the first place; false if one is none.
bool TakeFloats(const CWords& words, std::span<float> values) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::optional<float> f = ParseFloat(words[i]);
        if (!f) return false;
        values[i] = *f;
    }
    return true;
}

// All words as whole numbers within the limits, likewise.
bool TakeNumbers(const CWords& words, int nMin, int nMax, std::initializer_list<int*> values) {
    auto itWord = words.begin();
    for (int* const pValue : values) {
        const std::optional<long long> n = ParseNumber(*itWord++, nMin, nMax);
        if (!n) return false;
        *pValue = static_cast<int>(*n);
    }
    return true;
}

bool TakeColour(const CWords& words, TextArtParam& param) {
    int r = 0, g = 0, b = 0;
    if (!TakeNumbers(words, 0, 255, {&r, &g, &b})) return false;
    param.byRed = static_cast<std::uint8_t>(r);
    param.byGreen = static_cast<std::uint8_t>(g);
    param.byBlue = static_cast<std::uint8_t>(b);
    return true;
}

bool TakeGrid(const CWords& words, TextArtParam& param) {
    return TakeNumbers(words, 3, kMeshPoints, {&param.nMeshCols, &param.nMeshRows}) &&
           param.nMeshCols * param.nMeshRows <= kMeshPoints;
}

bool TakeRegular(const CWords& words, TextArtParam& param) {
    float arrSize[2] = {};
    if (!TakeFloats(words, arrSize)) return false;
    param.nMeshCols = param.nMeshRows = 4;
    param.fMeshSrcX = param.fMeshDstX = RegularMeshX(arrSize[0]);
    param.fMeshSrcY = param.fMeshDstY = RegularMeshY(arrSize[1]);
    return true;
}

// What a line of a parameter file may set.
struct CSetting {
    const char* szName;
    std::size_t nFewest;  // words behind the name
    std::size_t nMost;
    bool (*take)(const CWords& words, TextArtParam& param);
};

constexpr CSetting kSettings[] = {
    {"kind", 1, 1, [](const CWords& w, TextArtParam& p) { return TakeNumbers(w, 0, 1, {&p.nWarpKind}); }},
    {"effect", 1, 1, [](const CWords& w, TextArtParam& p) { return TakeNumbers(w, 0, 3, {&p.nTextEffect}); }},
    {"colour", 3, 3, TakeColour},
    {"quad", 8, 8, [](const CWords& w, TextArtParam& p) { return TakeFloats(w, p.fQuad); }},
    {"box", 4, 4,
     [](const CWords& w, TextArtParam& p) {
         return TakeNumbers(w, INT_MIN, INT_MAX, {&p.nBoxX, &p.nBoxY, &p.nBoxWidth, &p.nBoxHeight});
     }},
    {"mesh", 4, 4,
     [](const CWords& w, TextArtParam& p) {
         return TakeNumbers(w, INT_MIN, INT_MAX, {&p.nMeshX, &p.nMeshY, &p.nMeshWidth, &p.nMeshHeight});
     }},
    {"grid", 2, 2, TakeGrid},
    {"regular", 2, 2, TakeRegular},
    {"srcx", 1, kMeshPoints, [](const CWords& w, TextArtParam& p) { return TakeFloats(w, p.fMeshSrcX); }},
    {"srcy", 1, kMeshPoints, [](const CWords& w, TextArtParam& p) { return TakeFloats(w, p.fMeshSrcY); }},
    {"dstx", 1, kMeshPoints, [](const CWords& w, TextArtParam& p) { return TakeFloats(w, p.fMeshDstX); }},
    {"dsty", 1, kMeshPoints, [](const CWords& w, TextArtParam& p) { return TakeFloats(w, p.fMeshDstY); }},
};

// What is wrong with a line; empty if it was taken.
std::string TakeLine(const std::string& strLine, TextArtParam& param) {
    std::istringstream line(strLine.substr(0, strLine.find('#')));
    std::string strName;
    if (!(line >> strName)) return {};
    CWords words;
    for (std::string strWord; line >> strWord;) words.push_back(strWord);
    for (const CSetting& setting : kSettings) {
        if (strName != setting.szName) continue;
        if (words.size() < setting.nFewest || words.size() > setting.nMost || !setting.take(words, param))
            return "wrong numbers for " + strName;
        return {};
    }
    return strName + " is no setting";
}

// What is wrong with a file of parameters; empty if it was read.
std::string ReadParam(const std::string& strPath, TextArtParam& param) {
    std::ifstream in(strPath);
    if (!in) return strPath + " cannot be read";
    int nLine = 0;
    for (std::string strLine; std::getline(in, strLine);) {
        const std::string strError = TakeLine(strLine, param);
        ++nLine;
        if (strError.empty()) continue;
        std::ostringstream text;
        text << strPath << " line " << nLine << ": " << strError;
        return text.str();
    }
    return in.bad() ? strPath + " cannot be read" : std::string();
}

}  // namespace

CWorkResult RunWarpVerb(std::span<const std::string> words) {
    if (words.size() != 4) return {kWrongCall, "it is warp PARAMS BASE.ppm MASK.pgm OUT.ppm"};
    TextArtParam param;
    const std::string strError = ReadParam(words[0], param);
    if (!strError.empty()) return {kCannotBeDone, strError};
    CPpmPicture base = ReadPpm(words[1]);
    if (!base.strError.empty()) return {kCannotBeDone, words[1] + " " + base.strError};
    const CPgmPicture mask = ReadPgm(words[2]);
    if (!mask.strError.empty()) return {kCannotBeDone, words[2] + " " + mask.strError};
    CTextWarp warp;
    warp.SetBase(std::move(base.pixels));
    if (!warp.SetMask({mask.bytes.Data(), mask.bytes.Size()}, mask.nWidth, mask.nHeight) ||
        !warp.Render(param))
        return {kCannotBeDone, "there is no memory for " + words[1]};
    if (!WritePpm(words[3], warp.Result())) return {kCannotBeDone, words[3] + " cannot be written"};
    return {};
}
