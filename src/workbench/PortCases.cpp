#include "workbench/PortCases.h"

#include <algorithm>
#include <array>
#include <climits>
#include <sstream>
#include <utility>

#include "engines/ports/DeviceNumbers.h"
#include "resources/PhoneTexts.h"
#include "workbench/Verbs.h"

namespace {

constexpr std::array<const char*, 3> kProbeWords = {"free", "busy", "absent"};
constexpr std::array<const char*, 4> kCallWords = {"version", "classdevs", "interfaces", "detail"};

// The place of the word in a table; nothing if it is not there.
template <std::size_t nSize>
std::optional<std::size_t> PlaceOf(const std::array<const char*, nSize>& arrWords,
                                   const CPortCaseWord& word) {
    const auto itWord = std::ranges::find(arrWords, word.strText);
    if (itWord == arrWords.end()) return std::nullopt;
    return static_cast<std::size_t>(itWord - arrWords.begin());
}

// A dash without quotes is what cannot be read.
std::optional<std::string> TextOrNothing(const CPortCaseWord& word) {
    if (!word.bQuoted && word.strText == "-") return std::nullopt;
    return word.strText;
}

std::string Quoted(const std::string& strText) {
    std::string strQuoted = "\"";
    for (const char ch : strText) strQuoted.append(ch == '"' ? 2 : 1, ch);
    return strQuoted.append("\"");
}

bool IsSpace(char ch) {
    return ch == ' ' || ch == '\t' || ch == '\r';
}

// Takes a word that begins with a quote off a line, from behind it; false without the second quote.
bool TakeQuoted(const std::string& strLine, std::size_t& nAt, std::string& strText) {
    for (; nAt < strLine.size(); ++nAt) {
        if (strLine[nAt] == '"') {
            ++nAt;
            if (nAt == strLine.size() || strLine[nAt] != '"') return true;
        }
        strText += strLine[nAt];
    }
    return false;
}

// Nothing if a quote is not closed.
std::optional<CPortCaseWords> Split(const std::string& strLine) {
    CPortCaseWords words;
    for (std::size_t nAt = 0; nAt < strLine.size();) {
        if (IsSpace(strLine[nAt])) {
            ++nAt;
            continue;
        }
        CPortCaseWord word;
        word.bQuoted = strLine[nAt] == '"';
        if (word.bQuoted) {
            if (!TakeQuoted(strLine, ++nAt, word.strText)) return std::nullopt;
        } else {
            while (nAt < strLine.size() && !IsSpace(strLine[nAt])) word.strText += strLine[nAt++];
        }
        words.push_back(std::move(word));
    }
    return words;
}

}  // namespace

struct CPortCases::CCommand {
    const char* szName = "";
    std::size_t nFewest = 0;  // words behind the name
    std::size_t nMost = 0;
    bool (CPortCases::*run)(const CPortCaseWords& words) = nullptr;
    bool bAsks = false;  // it is written to the answers, with what comes of it behind
};

const CPortCases::CCommand CPortCases::kCommands[] = {
    {"case", 1, 1, &CPortCases::TakeCase, true},
    {"system", 2, 2, &CPortCases::TakeSystem},
    {"fails", 2, 2, &CPortCases::TakeFailure},
    {"interface", 2, 2, &CPortCases::TakeInterface},
    {"key", 1, 2, &CPortCases::TakeKey},
    {"value", 3, 3, &CPortCases::TakeValue},
    {"portname", 1, 1, &CPortCases::TakePortName},
    {"record", 2, 2, &CPortCases::TakeRecord},
    {"probe", 2, 2, &CPortCases::TakeProbe},
    {"choose", 1, 1, &CPortCases::TakeChoice},
    {"step1", 0, 0, &CPortCases::RunStepOne, true},
    {"step2", 0, 0, &CPortCases::RunStepTwo, true},
    {"realnames", 0, 0, &CPortCases::RunRealNames, true},
    {"search", 0, 0, &CPortCases::RunSearch, true},
    {"find", 0, 0, &CPortCases::RunFind, true},
    {"parse", 1, 1, &CPortCases::RunParse, true},
    {"modem", 1, 1, &CPortCases::RunModem, true},
    {"device", 1, 1, &CPortCases::RunDevice, true},
};

std::string CPortCases::Take(const std::string& strLine) {
    const std::optional<CPortCaseWords> words = Split(strLine);
    if (words && (words->empty() || (!words->front().bQuoted && words->front().strText.starts_with('#'))))
        return {};
    if (!words) return "a quote is not closed";
    const std::string& strName = words->front().strText;
    for (const CCommand& command : kCommands) {
        if (strName != command.szName) continue;
        const CPortCaseWords rest(words->begin() + 1, words->end());
        if (rest.size() < command.nFewest || rest.size() > command.nMost) return "wrong words for " + strName;
        if (command.bAsks) {
            m_out << strName;
            for (const CPortCaseWord& word : rest)
                m_out << ' ' << (word.bQuoted ? Quoted(word.strText) : word.strText);
            m_out << '\n';
        }
        return (this->*command.run)(rest) ? std::string() : "wrong words for " + strName;
    }
    return strName + " is no command";
}

bool CPortCases::TakeCase(const CPortCaseWords& /*words*/) {
    m_state = {};
    return true;
}

bool CPortCases::TakeSystem(const CPortCaseWords& words) {
    const std::optional<long long> nMajor = ParseNumber(words[0].strText, 0, INT_MAX);
    const std::optional<long long> nPlatform = ParseNumber(words[1].strText, 0, INT_MAX);
    if (!nMajor || !nPlatform) return false;
    m_state.machine.version = {static_cast<int>(*nMajor), static_cast<int>(*nPlatform)};
    return true;
}

bool CPortCases::TakeFailure(const CPortCaseWords& words) {
    const std::optional<std::size_t> nCall = PlaceOf(kCallWords, words[0]);
    const std::optional<long long> nError = ParseNumber(words[1].strText, 0, UINT32_MAX);
    if (!nCall || !nError) return false;
    m_state.machine.failure = {static_cast<EListingCall>(*nCall), static_cast<std::uint32_t>(*nError)};
    return true;
}

bool CPortCases::TakeInterface(const CPortCaseWords& words) {
    m_state.machine.arrInterfaces.push_back({TextOrNothing(words[0]), TextOrNothing(words[1])});
    return true;
}

bool CPortCases::TakeKey(const CPortCaseWords& words) {
    const bool bClosed = words.size() == 2;
    if (bClosed && words[1].strText != "closed") return false;
    m_state.machine.machine.Make(words[0].strText).bReadable = !bClosed;
    return true;
}

bool CPortCases::TakeValue(const CPortCaseWords& words) {
    CRegistryKey& key = m_state.machine.machine.Make(words[0].strText);
    key.arrValues.push_back({words[1].strText, TextOrNothing(words[2])});
    return true;
}

bool CPortCases::TakePortName(const CPortCaseWords& words) {
    m_state.machine.arrClassPorts.push_back(words[0].strText);
    return true;
}

bool CPortCases::TakeRecord(const CPortCaseWords& words) {
    m_state.arrRecords.push_back({words[0].strText, words[1].strText});
    return true;
}

bool CPortCases::TakeProbe(const CPortCaseWords& words) {
    const std::optional<std::size_t> nProbe = PlaceOf(kProbeWords, words[1]);
    if (nProbe) m_state.mapProbes[words[0].strText] = static_cast<EPortProbe>(*nProbe);
    return nProbe.has_value();
}

bool CPortCases::TakeChoice(const CPortCaseWords& words) {
    m_state.strChoice = TextOrNothing(words[0]);
    return true;
}

bool CPortCases::RunStepOne(const CPortCaseWords& /*words*/) {
    PrintListing(ListPorts(m_state.machine));
    return true;
}

bool CPortCases::RunStepTwo(const CPortCaseWords& /*words*/) {
    DropModems(m_state.arrRecords);
    PrintRecords();
    return true;
}

bool CPortCases::RunRealNames(const CPortCaseWords& /*words*/) {
    for (const std::string& strName : RealPortNames(m_state.machine.arrClassPorts))
        m_out << "  name " << Quoted(strName) << '\n';
    return true;
}

bool CPortCases::RunSearch(const CPortCaseWords& /*words*/) {
    const CPortSearch search = SearchRecords();
    m_out << "  askmodem " << search.bUsbLast << '\n';
    return true;
}

bool CPortCases::RunFind(const CPortCaseWords& /*words*/) {
    PrintListing(EnumSerialPorts(m_state.machine));
    const CPhonePort port = ConcludePortSearch(
        SearchRecords(), [this](std::span<const std::string> /*lines*/) { return m_state.strChoice; });
    m_out << "  port " << port.nPort << "\n  usbport ";
    // Who cancels changes nothing.
    m_out << (port.nPort == kPortChoiceCancelled ? "-" : port.bUsb ? "1" : "0") << "\n  modemport ";
    if (port.bAskModem) {
        m_out << FindModemPort(m_state.machine.machine, m_state.machine.version.IsOldest()) << '\n';
    } else {
        m_out << "-\n";
    }
    return true;
}

bool CPortCases::RunParse(const CPortCaseWords& words) {
    m_out << "  number " << ParsePortNumber(words[0].strText) << '\n';
    return true;
}

bool CPortCases::RunModem(const CPortCaseWords& words) {
    const bool bOld = words[0].strText == "old";
    if (!bOld && words[0].strText != "new") return false;
    m_out << "  number " << FindModemPort(m_state.machine.machine, bOld) << '\n';
    return true;
}

bool CPortCases::RunDevice(const CPortCaseWords& words) {
    if (const std::optional<long long> nPort = ParseNumber(words[0].strText, INT_MIN, INT_MAX)) {
        m_out << "  device " << Quoted(DeviceOfPort(static_cast<int>(*nPort))) << '\n';
    } else {
        m_out << "  number " << PortNumberOf(words[0].strText).value_or(0) << '\n';
    }
    return true;
}

void CPortCases::PrintListing(const CPortListing& listing) {
    m_state.arrRecords = listing.arrPorts;
    if (!listing.strError.empty()) m_out << "  error " << Quoted(listing.strError) << '\n';
    PrintRecords();
}

void CPortCases::PrintRecords() {
    for (const CPortInfo& port : m_state.arrRecords)
        m_out << "  record " << Quoted(port.m_strPortName) << ' ' << Quoted(port.m_strFriendlyName) << '\n';
}

CPortSearch CPortCases::SearchRecords() {
    std::optional<std::vector<std::string>> realNames;
    if (m_state.machine.version.IsOldest()) realNames = RealPortNames(m_state.machine.arrClassPorts);
    const CPortProbe probe = [this](const std::string& strName) {
        const auto itProbe = m_state.mapProbes.find(strName);
        const EPortProbe result = itProbe == m_state.mapProbes.end() ? EPortProbe::Absent : itProbe->second;
        m_out << "  probe " << Quoted(strName) << ' ' << kProbeWords.at(static_cast<std::size_t>(result))
              << '\n';
        return result;
    };
    CPortSearch search =
        SearchPhonePort(m_state.arrRecords, probe, {kTextPortUsable, kTextPortBusy}, realNames);
    for (std::size_t i = 0; i < search.arrLines.size(); ++i)
        if (!search.arrLines[i].empty()) m_out << "  line " << i << ' ' << Quoted(search.arrLines[i]) << '\n';
    if (search.strUsbLine) m_out << "  usb " << Quoted(*search.strUsbLine) << '\n';
    return search;
}
