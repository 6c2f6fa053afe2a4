#include "workbench/Verbs.h"

#include <charconv>

namespace {

constexpr CVerb kVerbs[] = {
    {"effect", "ID LEVEL IN.ppm OUT.ppm [--full-width N] [--seed N]",
     "    Applies the effect ID at LEVEL to a binary PPM. An effect without a level takes any number for "
     "it.\n"
     "    --full-width N   the picture is a preview of one N pixels wide; else it is the full picture\n"
     "    --seed N         where the random numbers start; 1 as in the program without it\n",
     RunEffectVerb},
};

}  // namespace

std::span<const CVerb> AllVerbs() {
    return kVerbs;
}

std::optional<long long> ParseNumber(const std::string& strWord, long long nMin, long long nMax) {
    long long n = 0;
    const char* const pEnd = strWord.data() + strWord.size();
    const auto [pStop, error] = std::from_chars(strWord.data(), pEnd, n);
    if (error != std::errc() || pStop != pEnd || n < nMin || n > nMax) return std::nullopt;
    return n;
}
