#include "engines/ports/PortListing.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

#include "engines/ports/PortNames.h"

namespace {

constexpr int kFixedPorts = 16;
constexpr std::size_t kMostRealName = 7;

std::string FailureText(const CListingFailure& failure) {
    static constexpr std::array<const char*, 4> kCalls = {
        "Could not get OS version.", "SetupDiGetClassDevs failed.", "SetupDiEnumDeviceInterfaces failed.",
        "SetupDiGetDeviceInterfaceDetail failed."};
    std::ostringstream text;
    text << kCalls.at(static_cast<std::size_t>(failure.call)) << " (err=" << std::hex << failure.nError
         << ")";
    return text.str();
}

CPortInfoArray PortsOfInterfaces(std::span<const CPortInterface> interfaces) {
    CPortInfoArray arrPorts;
    for (const CPortInterface& one : interfaces)
        if (one.strFriendlyName && one.strDescription) arrPorts.push_back({{}, *one.strFriendlyName});
    return arrPorts;
}

CPortInfoArray FixedPorts() {
    CPortInfoArray arrPorts;
    for (int n = 1; n <= kFixedPorts; ++n) {
        std::string strName(kComWord);
        arrPorts.push_back({strName.append(std::to_string(n)), {}});
    }
    return arrPorts;
}

// The walk through the tree of devices: buses, their devices, and instances of these.
class CDeviceWalk {
  public:
    CPortListing Run(const CRegistryKey& machine) {
        const CRegistryKey* const pEnum = machine.KeyAt("Enum");
        if (!pEnum) return {{}, "Could not read from HKLM\\Enum"};
        for (const CRegistryKey& bus : pEnum->arrKeys) {
            if (!bus.bReadable) return {{}, "Could not read from HKLM\\Enum\\" + bus.strName};
            for (const CRegistryKey& device : bus.arrKeys)
                if (!ReadDevice(bus.strName, device)) return {{}, std::move(m_strError)};
        }
        return {std::move(m_arrPorts), {}};
    }

  private:
    bool ReadDevice(const std::string& strBus, const CRegistryKey& device) {
        const std::string& strDevice = device.strName;
        const bool bUsb = strBus == "USB";
        if (strDevice == "*PNP0500" || strDevice == "*PNP0501" || strBus == "USBPORTS" ||
            strBus == "ORVOATCR" || (bUsb && strDevice == "ORVODIAG"))
            return ReadInstances(device, &CDeviceWalk::AddNamedPort);
        if (bUsb && strDevice.find("VID_0403&PID_60") != std::string::npos)
            return ReadInstances(device, &CDeviceWalk::AddAdapter);
        return true;
    }

    bool ReadInstances(const CRegistryKey& device, void (CDeviceWalk::*add)(const CRegistryKey&)) {
        if (!CanRead(device)) return false;
        for (const CRegistryKey& instance : device.arrKeys) {
            if (!CanRead(instance)) return false;
            (this->*add)(instance);
        }
        return true;
    }

    bool CanRead(const CRegistryKey& key) {
        if (!key.bReadable) m_strError = "Could not read from HKLM\\Enum\\...\\" + key.strName;
        return key.bReadable;
    }

    void AddNamedPort(const CRegistryKey& instance) {
        const std::optional<std::string> strPort = instance.ValueOf("PORTNAME");
        if (!strPort) return;
        std::string strFriendly = instance.ValueOf("FRIENDLYNAME").value_or("");
        if (strFriendly.empty()) strFriendly = instance.ValueOf("DeviceDesc").value_or("");
        CPortInfo port{*strPort, std::move(strFriendly)};
        const auto itSame = std::ranges::find(m_arrPorts, port.m_strPortName, &CPortInfo::m_strPortName);
        if (itSame == m_arrPorts.end()) {
            m_arrPorts.push_back(std::move(port));
        } else {
            *itSame = std::move(port);
        }
    }

    void AddAdapter(const CRegistryKey& instance) {
        const std::optional<std::string> strDescription = instance.ValueOf("DeviceDesc");
        if (strDescription) m_arrPorts.push_back({std::string(kAdapterName), *strDescription + "(COM)"});
    }

    CPortInfoArray m_arrPorts;
    std::string m_strError;
};

}  // namespace

CPortListing ListPorts(const CPortMachine& machine) {
    const auto& failure = machine.failure;
    if (failure && (failure->call == EListingCall::Version || machine.version.IsNew()))
        return {{}, FailureText(*failure)};
    if (machine.version.IsNew()) return {PortsOfInterfaces(machine.arrInterfaces), {}};
    if (!machine.version.IsOldest()) return {FixedPorts(), {}};
    return CDeviceWalk().Run(machine.machine);
}

void DropModems(CPortInfoArray& arrPorts) {
    for (std::size_t i = 0; i < arrPorts.size(); ++i) {
        if (arrPorts[i].m_strFriendlyName.find(kModemWords) != std::string::npos) {
            arrPorts.erase(arrPorts.begin() + static_cast<std::ptrdiff_t>(i));
            if (i == arrPorts.size()) return;
        }
        // The index goes on over the record that moved into the place: the search relies on seeing it.
        CPortInfo& port = arrPorts[i];
        if (port.m_strFriendlyName.empty()) port.m_strFriendlyName = port.m_strPortName;
    }
}

CPortListing EnumSerialPorts(const CPortMachine& machine) {
    CPortListing listing = ListPorts(machine);
    DropModems(listing.arrPorts);
    return listing;
}

std::vector<std::string> RealPortNames(std::span<const std::string> names) {
    std::vector<std::string> arrReal;
    for (const std::string& strName : names) {
        if (strName.size() > kMostRealName || !IsSameName(strName.substr(0, kComWord.size()), kComWord))
            continue;
        if (LeadingNumber(std::string_view(strName).substr(kComWord.size())) < 1) break;
        arrReal.push_back(strName);
    }
    return arrReal;
}
