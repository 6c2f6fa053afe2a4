#include <climits>
#include <cstdint>
#include <iomanip>
#include <sstream>

#include "engines/effects/ImageEffect.h"
#include "image/Ppm.h"
#include "workbench/Verbs.h"

namespace {

struct CEffectJob {
    int nEffect = 0;
    int nLevel = 0;
    std::string strIn;
    std::string strOut;
    int nFullWidth = 0;  // 0 for the picture's own
    std::optional<std::uint32_t> nSeed;
};

CWorkResult WrongCall(const std::string& strError) {
    return {kWrongCall, strError};
}

// Takes the words from `words` that begin with --, with the number behind each; the others go to arrPlain.
CWorkResult TakeOptions(std::span<const std::string> words, CEffectJob& job, CWorkWords& arrPlain) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& strWord = words[i];
        if (!strWord.starts_with("--")) {
            arrPlain.push_back(strWord);
            continue;
        }
        const bool bWidth = strWord == "--full-width";
        if (!bWidth && strWord != "--seed") return WrongCall(strWord + " is no option of effect");
        if (++i == words.size()) return WrongCall(strWord + " needs a number");
        const std::optional<long long> n =
            bWidth ? ParseNumber(words[i], 1, INT_MAX) : ParseNumber(words[i], 0, UINT32_MAX);
        if (!n) return WrongCall(words[i] + " is no number for " + strWord);
        if (bWidth) {
            job.nFullWidth = static_cast<int>(*n);
        } else {
            job.nSeed = static_cast<std::uint32_t>(*n);
        }
    }
    return {};
}

CWorkResult ReadJob(std::span<const std::string> words, CEffectJob& job) {
    CWorkWords arrPlain;
    CWorkResult options = TakeOptions(words, job, arrPlain);
    if (options.nStatus != kDone) return options;
    if (arrPlain.size() != 4) return WrongCall("it is effect ID LEVEL IN.ppm OUT.ppm");
    const std::optional<long long> nEffect = ParseNumber(arrPlain[0], 0, kEffectCount - 1);
    if (!nEffect) return WrongCall(arrPlain[0] + " is no effect; workbench --help lists them");
    const std::optional<long long> nLevel = ParseNumber(arrPlain[1], INT_MIN, INT_MAX);
    if (!nLevel) return WrongCall(arrPlain[1] + " is no level");
    job.nEffect = static_cast<int>(*nEffect);
    job.nLevel = static_cast<int>(*nLevel);
    job.strIn = arrPlain[2];
    job.strOut = arrPlain[3];
    return {};
}

CWorkResult CannotBeDone(const std::string& strError) {
    return {kCannotBeDone, strError};
}

}  // namespace

CWorkResult RunEffectVerb(std::span<const std::string> words) {
    CEffectJob job;
    CWorkResult call = ReadJob(words, job);
    if (call.nStatus != kDone) return call;
    CPpmPicture picture = ReadPpm(job.strIn);
    if (!picture.strError.empty()) return CannotBeDone(job.strIn + " " + picture.strError);
    CxImage image(std::move(picture.pixels));
    CRandomSequence random;
    if (job.nSeed) random.Seed(*job.nSeed);
    const int nFullWidth = job.nFullWidth > 0 ? job.nFullWidth : image.GetWidth();
    if (!ApplyEffect(image, EffectOf(job.nEffect), job.nLevel, nFullWidth, random))
        return CannotBeDone("there is no memory for " + job.strIn);
    if (!WritePpm(job.strOut, image.Pixels())) return CannotBeDone(job.strOut + " cannot be written");
    return {};
}

std::string EffectList() {
    std::ostringstream text;
    for (std::size_t i = 0; i < kEffects.size(); ++i) {
        const CEffectRow& row = kEffects[i];
        text << std::setw(4) << i << "  " << row.szLabel;
        if (row.bHasLevel) text << ", level " << row.nMin << ".." << row.nMax;
        text << "\n";
    }
    return text.str();
}
