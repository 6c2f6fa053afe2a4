#include <climits>
#include <cstdint>
#include <fstream>
#include <vector>

#include "engines/linkset/FileSet.h"
#include "engines/linkset/UserSet.h"
#include "workbench/Verbs.h"

namespace {

using CFields = std::vector<std::string>;

// The parts between tabs; the last of nMost parts keeps the tabs that it has.
CFields SplitAtTabs(const std::string& strLine, std::size_t nMost) {
    CFields fields;
    std::size_t nStart = 0;
    while (fields.size() + 1 < nMost) {
        const std::size_t nTab = strLine.find('\t', nStart);
        if (nTab == std::string::npos) break;
        fields.push_back(strLine.substr(nStart, nTab - nStart));
        nStart = nTab + 1;
    }
    fields.push_back(strLine.substr(nStart));
    return fields;
}

bool Take(const std::string& strField, std::uint32_t& n) {
    const std::optional<long long> nRead = ParseNumber(strField, 0, UINT32_MAX);
    n = static_cast<std::uint32_t>(nRead.value_or(0));
    return nRead.has_value();
}

bool Take(const std::string& strField, int& n) {
    const std::optional<long long> nRead = ParseNumber(strField, INT_MIN, INT_MAX);
    n = static_cast<int>(nRead.value_or(0));
    return nRead.has_value();
}

bool TakeRecord(const std::string& strLine, CFileItem& item) {
    constexpr std::size_t kFields = 5;
    const CFields fields = SplitAtTabs(strLine, kFields);
    if (fields.size() != kFields) return false;
    item.m_strFileName = fields[4];
    return Take(fields[0], item.m_nFileId) && Take(fields[1], item.m_nFileSize) &&
           Take(fields[2], item.m_nFileMemory) && Take(fields[3], item.m_bFileClosed);
}

bool TakeRecord(const std::string& strLine, CUserItem& item) {
    constexpr std::size_t kFields = 7;
    const CFields fields = SplitAtTabs(strLine, std::string::npos);
    if (fields.size() < kFields) return false;
    for (std::size_t i = kFields; i < fields.size(); ++i) {
        const std::size_t nCross = fields[i].find('x');
        CSize& size = item.m_arrUserSizes.emplace_back();
        if (nCross == std::string::npos || !Take(fields[i].substr(0, nCross), size.cx) ||
            !Take(fields[i].substr(nCross + 1), size.cy))
            return false;
    }
    return Take(fields[0], item.m_nUserId) && Take(fields[1], item.m_nUserMaxFiles) &&
           Take(fields[2], item.m_nUserThumbWidth) && Take(fields[3], item.m_nUserThumbHeight) &&
           Take(fields[4], item.m_nUserHasCard) && Take(fields[5], item.m_nUserFetchOption) &&
           Take(fields[6], item.m_nUserNoRestart);
}

// Makes a data file of a text file with one record a line.
template <typename TSet>
CWorkResult MakeDataFile(std::span<const std::string> words, const std::string& strCall) {
    if (words.size() != 2) return {kWrongCall, "it is " + strCall};
    std::ifstream in(words[0]);
    TSet set;
    for (std::string strLine; std::getline(in, strLine);) {
        if (strLine.ends_with('\r')) strLine.pop_back();
        if (TakeRecord(strLine, set.m_nDataArray.emplace_back())) continue;
        const std::string strNumber = std::to_string(set.m_nDataArray.size());
        return {kCannotBeDone, words[0] + " line " + strNumber + ": no record"};
    }
    if (!in.is_open() || in.bad()) return {kCannotBeDone, words[0] + " cannot be read"};
    set.m_strFileName = words[1];
    if (!set.Write()) return {kCannotBeDone, words[1] + " cannot be written"};
    return {};
}

}  // namespace

CWorkResult RunFileDatVerb(std::span<const std::string> words) {
    return MakeDataFile<CFILESet>(words, "filedat RECORDS OUT");
}

CWorkResult RunUserDatVerb(std::span<const std::string> words) {
    return MakeDataFile<CUserSet>(words, "userdat RECORDS OUT");
}
