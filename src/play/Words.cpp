#include "play/Words.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr std::array kNamedKeys = std::to_array<std::pair<std::string_view, int>>({
    {"enter", kKeyEnter},
    {"esc", kKeyEscape},
    {"delete", kKeyDelete},
    {"space", kKeySpace},
    {"pageup", kKeyPageUp},
    {"pagedown", kKeyPageDown},
    {"end", kKeyEnd},
    {"home", kKeyHome},
    {"left", kKeyLeft},
    {"up", kKeyUp},
    {"right", kKeyRight},
    {"down", kKeyDown},
});

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

std::string ToLower(std::string_view strWord) {
    std::string strLower(strWord);
    std::transform(strLower.begin(), strLower.end(), strLower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return strLower;
}

// Reads the quoted word that begins at i and moves i behind it.
bool TakeQuoted(std::string_view strLine, std::size_t& i, std::string& strWord) {
    for (++i; i < strLine.size(); ++i) {
        if (strLine[i] == '"') {
            ++i;
            return i == strLine.size() || IsBlank(strLine[i]);
        }
        const bool bEscape =
            strLine[i] == '\\' && i + 1 < strLine.size() && (strLine[i + 1] == '"' || strLine[i + 1] == '\\');
        if (bEscape) ++i;
        strWord += strLine[i];
    }
    return false;
}

}  // namespace

bool SplitWords(std::string_view strLine, CWords& arrWords) {
    CWords arrFound;
    for (std::size_t i = 0; i < strLine.size();) {
        if (IsBlank(strLine[i])) {
            ++i;
            continue;
        }
        if (strLine[i] == '#') break;
        std::string strWord;
        if (strLine[i] == '"') {
            if (!TakeQuoted(strLine, i, strWord)) return false;
        } else {
            while (i < strLine.size() && !IsBlank(strLine[i])) strWord += strLine[i++];
        }
        arrFound.push_back(std::move(strWord));
    }
    arrWords = std::move(arrFound);
    return true;
}

std::string Quote(std::string_view strText) {
    std::string strQuoted = "\"";
    for (const char c : strText) {
        if (c == '\n') {
            strQuoted += "\\n";
            continue;
        }
        if (c == '"' || c == '\\') strQuoted += '\\';
        strQuoted += c;
    }
    return strQuoted + '"';
}

std::optional<int> ParseNumber(std::string_view strWord) {
    int n = 0;
    const char* pEnd = strWord.data() + strWord.size();
    const auto result = std::from_chars(strWord.data(), pEnd, n);
    if (result.ec != std::errc{} || result.ptr != pEnd) return std::nullopt;
    return n;
}

std::optional<char> ParseLetter(std::string_view strWord) {
    if (strWord.size() != 1) return std::nullopt;
    const char c =
        strWord[0] >= 'a' && strWord[0] <= 'z' ? static_cast<char>(strWord[0] - 'a' + 'A') : strWord[0];
    return c >= 'A' && c <= 'Z' ? std::optional(c) : std::nullopt;
}

std::optional<CColor> ParseColor(std::string_view strWord) {
    if (strWord.size() != 6) return std::nullopt;
    unsigned n = 0;
    const char* pEnd = strWord.data() + strWord.size();
    const auto result = std::from_chars(strWord.data(), pEnd, n, 16);
    if (result.ec != std::errc{} || result.ptr != pEnd) return std::nullopt;
    return CColor{static_cast<std::uint8_t>(n >> 16), static_cast<std::uint8_t>(n >> 8),
                  static_cast<std::uint8_t>(n)};
}

std::optional<CKeyEvent> ParseChord(std::string_view strWord) {
    std::string strRest = ToLower(strWord);
    CKeyEvent event;
    for (bool bMore = true; bMore;) {
        bMore = false;
        if (!event.bCtrl && strRest.starts_with("ctrl+")) {
            event.bCtrl = bMore = true;
            strRest.erase(0, 5);
        }
        if (!event.bShift && strRest.starts_with("shift+")) {
            event.bShift = bMore = true;
            strRest.erase(0, 6);
        }
    }
    for (const auto& [strName, nKey] : kNamedKeys)
        if (strRest == strName) event.nKey = nKey;
    if (strRest.size() == 1) {
        const auto c = static_cast<unsigned char>(strRest[0]);
        if (c >= 'a' && c <= 'z') event.nKey = c - 'a' + 'A';
        if (c >= '0' && c <= '9') event.nKey = c;
    }
    return event.nKey == 0 ? std::nullopt : std::optional(event);
}
