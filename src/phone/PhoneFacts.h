#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "image/Geometry.h"

// What a phone in a folder is: the file phone.txt in it, one fact a line, its name and then its values. A
// line that begins with # is a remark. A fact without a line is as here.
struct CPhoneFacts {
    std::uint32_t m_nIdentity = 0;
    int m_nKind = 2;
    int m_nMostFiles = 0;  // in its inner memory; 0 or less: no limit
    int m_nOthers = 0;     // items of the second class, which share the limit
    bool m_bCard = false;  // has a place for a memory card
    bool m_bCardIn = false;
    bool m_bFetchOption = false;
    bool m_bNoRestart = true;
    int m_nRestartPolls = 3;  // how often it does not answer while it restarts
    bool m_bLocked = false;
    std::uint32_t m_nFreeMemory = 16U << 20U;  // bytes
    CSize m_sizeThumbnail{176, 144};
    std::vector<CSize> m_arrSizes{{640, 480}, {320, 240}, {176, 144}};

    bool HasCardIn() const { return m_bCard && m_bCardIn; }
};

using CFactWords = std::vector<std::string>;

// One fact by the name that it has in the file.
struct CFactRow {
    const char* szName;
    const char* szHelp;
    // Takes the values; false if they are no values of this fact.
    bool (*take)(const CFactWords& words, CPhoneFacts& facts);
    std::string (*tell)(const CPhoneFacts& facts);
};

std::span<const CFactRow> AllFacts();
// Null if there is no such fact.
const CFactRow* FindFact(const std::string& strName);
CFactWords FactWords(const std::string& strText);

// True if there is such a file: without one a folder is no phone.
bool HasFacts(const std::string& strFolder);
// Nothing if the file cannot be read or a line of it not be understood; strError then says which.
std::optional<CPhoneFacts> ReadFacts(const std::string& strFolder, std::string& strError);
// The same in its two steps, for whoever looks again and again: most often the text is still the same.
std::optional<std::string> ReadFactsText(const std::string& strFolder);
std::optional<CPhoneFacts> ParseFacts(const std::string& strText, std::string& strError);
// Gives a fact its value in the file and leaves all other lines as they are; makes the file if there is none.
[[nodiscard]] bool WriteFact(const std::string& strFolder, const std::string& strName,
                             const std::string& strValue);
