#include "engines/ports/PortSearch.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "engines/ports/PortNames.h"

namespace {

constexpr std::size_t kMostModemEntry = 255;  // bytes
// A port with more than one digit, or with any other name, opens only under its device's full name.
constexpr std::string_view kDevicePrefix = "\\\\.\\";

bool Contains(std::string_view strText, std::string_view strWord) {
    return strText.find(strWord) != std::string_view::npos;
}

// The port's name inside a friendly name; empty if it has none.
std::string_view NameInside(std::string_view strFriendly) {
    const std::size_t nCom = strFriendly.find(kComWord);
    const std::size_t nEnd = strFriendly.rfind(kComEnd);
    if (nCom == std::string_view::npos || nEnd == std::string_view::npos || nEnd <= nCom) return {};
    return strFriendly.substr(nCom, nEnd - nCom);
}

std::string_view NameOf(const CPortInfo& port) {
    return port.m_strPortName.empty() ? NameInside(port.m_strFriendlyName) : port.m_strPortName;
}

std::string NameToOpen(std::string_view strName) {
    const bool bShort =
        strName.size() == 4 && strName.starts_with(kComWord) && strName[3] >= '1' && strName[3] <= '9';
    return std::string(bShort ? "" : kDevicePrefix).append(strName);
}

// On the oldest systems an adapter has no name of its own. It gets one that a real port has and no record;
// gives the adapter's record.
std::optional<std::size_t> NameAdapter(CPortInfoArray& arrPorts, std::vector<std::string> arrReal) {
    std::optional<std::size_t> nAdapter;
    for (std::size_t k = 0; k < arrPorts.size(); ++k) {
        const std::string_view strName = NameOf(arrPorts[k]);
        std::erase(arrReal, strName);
        if (strName == kAdapterName) nAdapter = k;
    }
    if (nAdapter && !arrReal.empty()) arrPorts[*nAdapter].m_strPortName = arrReal.back();
    return nAdapter;
}

struct CPortKind {
    bool bModem = false;
    bool bUsb = false;
};

// An adapter is no USB port, though it says so: behind it may be anything.
CPortKind KindOf(const CPortInfo& port, bool bAdapterRecord) {
    const std::string& strFriendly = port.m_strFriendlyName;
    CPortKind kind;
    kind.bModem = Contains(strFriendly, kModemWords) && !Contains(strFriendly, kDiagnosticWord);
    const bool bSaysAdapter =
        bAdapterRecord || std::ranges::any_of(kAdapterWords, [&](std::string_view strWords) {
            return Contains(strFriendly, strWords);
        });
    const bool bAdapter =
        Contains(port.m_strPortName, kAdapterName) || (bSaysAdapter && !Contains(strFriendly, kPhoneWord));
    kind.bUsb = Contains(strFriendly, kUsbWord) && !bAdapter;
    return kind;
}

std::string LineOf(std::string_view strName, bool bUsb, const std::string& strWord) {
    std::string strLine(bUsb ? "USB[" : "");
    strLine.append(strName).append(bUsb ? "] : " : " : ").append(strWord);
    return strLine;
}

}  // namespace

bool CPortSearch::HasLines() const {
    return std::ranges::any_of(arrLines, [](const std::string& strLine) { return !strLine.empty(); });
}

CPortSearch SearchPhonePort(CPortInfoArray arrPorts, const CPortProbe& probe, const CPortWords& words,
                            const std::optional<std::vector<std::string>>& realNames) {
    std::optional<std::size_t> nAdapter;
    if (realNames) nAdapter = NameAdapter(arrPorts, *realNames);
    CPortSearch search;
    search.arrLines.resize(arrPorts.size());
    for (std::size_t i = 0; i < arrPorts.size(); ++i) {
        const CPortInfo& port = arrPorts[i];
        const CPortKind kind = KindOf(port, nAdapter == i);
        search.bUsbLast = kind.bUsb;
        // A friendly name without a port's name inside is no serial port, whatever the port name says.
        if (kind.bModem || NameInside(port.m_strFriendlyName).empty()) continue;
        const std::string_view strName = NameOf(port);
        const EPortProbe result = probe(NameToOpen(strName));
        if (result == EPortProbe::Absent) continue;
        const bool bFree = result == EPortProbe::Free;
        std::string strLine = LineOf(strName, kind.bUsb, bFree ? words.strUsable : words.strBusy);
        if (bFree && kind.bUsb) {
            search.strUsbLine = std::move(strLine);
            break;
        }
        search.arrLines[i] = std::move(strLine);
    }
    return search;
}

CPhonePort ConcludePortSearch(const CPortSearch& search, const CPortChoice& choose) {
    if (search.strUsbLine) return {ParsePortNumber(*search.strUsbLine), true, search.bUsbLast};
    if (!search.HasLines()) return {};
    const std::optional<std::string> strChosen = choose(search.arrLines);
    if (!strChosen) return {kPortChoiceCancelled};
    return {ParsePortNumber(*strChosen), false, search.bUsbLast};
}

int ParsePortNumber(const std::string& strText) {
    const std::size_t nCom = strText.find(kComWord);
    if (nCom == std::string::npos) return 0;
    std::size_t nEnd = strText.rfind(Contains(strText, kUsbWord) ? ']' : ':');
    if (nEnd == std::string::npos) {
        if (Contains(strText, kUsbWord)) return 0;
        nEnd = strText.size();
    }
    const std::size_t nDigits = nCom + kComWord.size();
    return nDigits < nEnd ? LeadingNumber(std::string_view(strText).substr(nDigits, nEnd - nDigits)) : 0;
}

int ModemPortOf(const std::optional<std::string>& strEntry) {
    if (!strEntry || strEntry->size() > kMostModemEntry || !strEntry->starts_with(kComWord)) return kNoPort;
    return LeadingNumber(std::string_view(*strEntry).substr(kComWord.size()));
}

int FindModemPort(const CRegistryKey& machine, bool bOldSystem) {
    const CRegistryKey* const pKey =
        machine.KeyAt(bOldSystem ? "Enum\\USB\\ORVOMODEM\\WDMMDM0" : "Hardware\\Devicemap\\serialcomm");
    if (!pKey) return kNoPort;
    if (bOldSystem) return ModemPortOf(pKey->ValueOf("AttachedTo"));
    const auto itValue = std::ranges::find_if(pKey->arrValues, [](const CRegistryValue& value) {
        return Contains(value.strName, "\\Device\\ORVOSIMDM");
    });
    return itValue == pKey->arrValues.end() ? kNoPort : ModemPortOf(itValue->strData);
}
