#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engines/ports/PortInfo.h"
#include "engines/ports/RegistryKey.h"

// Which serial ports a machine has. What the system tells comes in as plain values; whoever asks it stands
// elsewhere.

using CPortInfoArray = std::vector<CPortInfo>;

inline constexpr int kPlatformNt = 2;

struct CSystemVersion {
    int nMajor = 5;
    int nPlatform = kPlatformNt;
    // From 5 on all devices tell what they are; before, only the NT platform has fixed names, and the oldest
    // systems have a tree of devices to walk.
    bool IsNew() const { return nMajor >= 5; }
    bool IsOldest() const { return !IsNew() && nPlatform != kPlatformNt; }
};

// A device of the class of serial ports; nothing for a text that cannot be read.
struct CPortInterface {
    std::optional<std::string> strFriendlyName;
    std::optional<std::string> strDescription;
};

// The call of the system that failed, with the error that it left. All but Version are made on new systems
// only.
enum class EListingCall { Version, ClassDevices, Interfaces, InterfaceDetail };
struct CListingFailure {
    EListingCall call = EListingCall::Version;
    std::uint32_t nError = 0;
};

struct CPortMachine {
    CSystemVersion version;
    std::optional<CListingFailure> failure;
    std::vector<CPortInterface> arrInterfaces;  // of new systems
    CRegistryKey machine;                       // HKEY_LOCAL_MACHINE
    std::vector<std::string> arrClassPorts;     // the values "portname" of the devices of class "Ports"
};

struct CPortListing {
    CPortInfoArray arrPorts;
    std::string strError;  // empty if they could be listed; else there are none
};

// The ports as the system names them.
CPortListing ListPorts(const CPortMachine& machine);

// Takes phones' modems out and gives a record without a friendly name its port name for one. The record
// behind one that is taken out is not compared, so that of two modems in a row the second stays; the search
// knows it again.
void DropModems(CPortInfoArray& arrPorts);

// Both in one.
CPortListing EnumSerialPorts(const CPortMachine& machine);

// The names of real ports on the oldest systems, from the values "portname": those of at most 7 bytes that
// begin with "com" in any case, up to the first with no number of 1 or more behind it.
std::vector<std::string> RealPortNames(std::span<const std::string> names);
