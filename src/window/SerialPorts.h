#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engines/ports/PortInfo.h"

// The serial ports of the machine.
class CSerialPorts {
  public:
    virtual ~CSerialPorts() = default;
    // All that there are at this moment, in a steady order. Nothing if they cannot be listed.
    virtual std::optional<std::vector<CPortInfo>> List() = 0;
    // Opens and closes the port of that name, such as "COM3" or "\\.\COM12".
    virtual EPortProbe Probe(const std::string& strName) = 0;
    // What the system notes under the modem of a phone, such as "COM5"; nothing if there is no such entry.
    virtual std::optional<std::string> ModemEntry() = 0;
};
