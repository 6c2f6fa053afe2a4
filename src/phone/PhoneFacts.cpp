#include "phone/PhoneFacts.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "image/AtomicFile.h"

namespace {

constexpr char kFactsFile[] = "phone.txt";
constexpr char kNone[] = "none";

std::string FactsPath(const std::string& strFolder) {
    return (std::filesystem::path(strFolder) / kFactsFile).string();
}

// A whole number in decimal digits.
template <typename T>
bool TakeNumber(std::string_view strText, T& n) {
    T nRead = 0;
    const char* const pEnd = strText.data() + strText.size();
    const auto [pStop, error] = std::from_chars(strText.data(), pEnd, nRead);
    if (error != std::errc() || pStop != pEnd) return false;
    n = nRead;
    return true;
}

bool TakeSize(const std::string& strWord, CSize& size) {
    const std::size_t nCross = strWord.find('x');
    if (nCross == std::string::npos) return false;
    const std::string_view strAll = strWord;
    return TakeNumber(strAll.substr(0, nCross), size.cx) && TakeNumber(strAll.substr(nCross + 1), size.cy);
}

std::string TellSize(CSize size) {
    std::ostringstream text;
    text << size.cx << "x" << size.cy;
    return text.str();
}

bool TakeSizes(const CFactWords& words, CPhoneFacts& facts) {
    std::vector<CSize> arrSizes;
    if (words.empty()) return false;
    if (words != CFactWords{kNone}) {
        for (const std::string& strWord : words)
            if (!TakeSize(strWord, arrSizes.emplace_back())) return false;
    }
    facts.m_arrSizes = std::move(arrSizes);
    return true;
}

std::string TellSizes(const CPhoneFacts& facts) {
    std::string strText;
    for (const CSize size : facts.m_arrSizes)
        strText.append(strText.empty() ? "" : " ").append(TellSize(size));
    return strText.empty() ? kNone : strText;
}

template <auto kMember>
bool TakeValue(const CFactWords& words, CPhoneFacts& facts) {
    return words.size() == 1 && TakeNumber(words[0], facts.*kMember);
}

template <auto kMember>
bool TakeSwitch(const CFactWords& words, CPhoneFacts& facts) {
    int n = 0;
    if (words.size() != 1 || !TakeNumber(words[0], n) || n < 0 || n > 1) return false;
    facts.*kMember = n == 1;
    return true;
}

template <auto kMember>
std::string TellValue(const CPhoneFacts& facts) {
    return std::to_string(facts.*kMember);
}

template <auto kMember>
constexpr CFactRow ValueRow(const char* szName, const char* szHelp) {
    return {szName, szHelp, TakeValue<kMember>, TellValue<kMember>};
}

template <auto kMember>
constexpr CFactRow SwitchRow(const char* szName, const char* szHelp) {
    return {szName, szHelp, TakeSwitch<kMember>, TellValue<kMember>};
}

constexpr CFactRow kFacts[] = {
    ValueRow<&CPhoneFacts::m_nIdentity>("identity", "the number by which a program knows it again"),
    ValueRow<&CPhoneFacts::m_nKind>("kind",
                                    "not 0 and even: takes pictures; 6: only they count for the limit"),
    ValueRow<&CPhoneFacts::m_nMostFiles>("mostfiles", "most files in its inner memory; 0 for no limit"),
    ValueRow<&CPhoneFacts::m_nOthers>("others", "items that are no pictures and share the limit"),
    SwitchRow<&CPhoneFacts::m_bCard>("card", "1: has a place for a memory card"),
    SwitchRow<&CPhoneFacts::m_bCardIn>("cardin", "1: the card is in"),
    SwitchRow<&CPhoneFacts::m_bFetchOption>("fetchoption", "a byte that every take of a file hands back"),
    SwitchRow<&CPhoneFacts::m_bNoRestart>("norestart", "0: restarts after an exchange"),
    ValueRow<&CPhoneFacts::m_nRestartPolls>("restartpolls", "how often it does not answer while it restarts"),
    SwitchRow<&CPhoneFacts::m_bLocked>("locked", "1: has to be unlocked before an exchange"),
    ValueRow<&CPhoneFacts::m_nFreeMemory>("memory", "free inner memory in bytes; shrinks by what is sent"),
    {"thumbnail", "the size of its thumbnails, as 176x144",
     [](const CFactWords& w, CPhoneFacts& f) { return w.size() == 1 && TakeSize(w[0], f.m_sizeThumbnail); },
     [](const CPhoneFacts& f) { return TellSize(f.m_sizeThumbnail); }},
    {"sizes", "its picture sizes in their order, as 640x480 176x144, or none", TakeSizes, TellSizes},
};

// What is wrong with a line; empty if it was taken.
std::string TakeLine(const std::string& strLine, CPhoneFacts& facts) {
    CFactWords words = FactWords(strLine);
    if (words.empty() || words[0].starts_with('#')) return {};
    const CFactRow* const pFact = FindFact(words[0]);
    if (pFact == nullptr) return words[0] + " is no fact";
    words.erase(words.begin());
    return pFact->take(words, facts) ? std::string() : std::string("wrong value for ") + pFact->szName;
}

}  // namespace

std::span<const CFactRow> AllFacts() {
    return kFacts;
}

const CFactRow* FindFact(const std::string& strName) {
    const auto* const itFact = std::ranges::find(kFacts, strName, &CFactRow::szName);
    return itFact == std::end(kFacts) ? nullptr : itFact;
}

CFactWords FactWords(const std::string& strText) {
    std::istringstream text(strText);
    CFactWords words;
    for (std::string strWord; text >> strWord;) words.push_back(strWord);
    return words;
}

bool HasFacts(const std::string& strFolder) {
    std::error_code error;
    return std::filesystem::is_regular_file(FactsPath(strFolder), error);
}

std::optional<CPhoneFacts> ReadFacts(const std::string& strFolder, std::string& strError) {
    strError = FactsPath(strFolder) + " cannot be read";
    const std::optional<std::string> strText = ReadFactsText(strFolder);
    return strText ? ParseFacts(*strText, strError) : std::nullopt;
}

std::optional<std::string> ReadFactsText(const std::string& strFolder) {
    if (!HasFacts(strFolder)) return std::nullopt;
    std::ifstream file(FactsPath(strFolder), std::ios::binary);
    if (!file) return std::nullopt;
    return std::string{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::optional<CPhoneFacts> ParseFacts(const std::string& strText, std::string& strError) {
    std::istringstream text(strText);
    CPhoneFacts facts;
    int nLine = 0;
    for (std::string strLine; std::getline(text, strLine);) {
        ++nLine;
        const std::string strFault = TakeLine(strLine, facts);
        if (strFault.empty()) continue;
        strError = std::string(kFactsFile) + " line " + std::to_string(nLine) + ": " + strFault;
        return std::nullopt;
    }
    return facts;
}

bool WriteFact(const std::string& strFolder, const std::string& strName, const std::string& strValue) {
    const std::string strPath = FactsPath(strFolder);
    const std::string strNewLine = strName + ' ' + strValue;
    std::string strText;
    bool bWritten = false;
    std::ifstream file(strPath);
    for (std::string strLine; std::getline(file, strLine);) {
        const CFactWords words = FactWords(strLine);
        const bool bThisFact = !words.empty() && words[0] == strName;
        if (!bThisFact || !bWritten) strText.append(bThisFact ? strNewLine : strLine).append("\n");
        bWritten = bWritten || bThisFact;
    }
    if (file.bad()) return false;
    if (!bWritten) strText.append(strNewLine).append("\n");
    const std::span<const char> text(strText);
    CAtomicFile out;
    return out.Open(strPath) &&
           out.Write({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}) && out.Commit();
}
