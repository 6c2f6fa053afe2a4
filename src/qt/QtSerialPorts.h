#pragma once

#include "window/SerialPorts.h"

// A serial device as the system has it.
struct CSerialDevice {
    std::string strName;         // without its folder, such as "ttyUSB0"
    std::string strDescription;  // what it says of itself, in UTF-8; often nothing
};

// The records of these devices, in the order of their port numbers, and behind them the phone in a folder if
// there is one. A device that has no port number has no record. Each has a friendly name of the form
// "DESCRIPTION (COMn)" and no port name.
//
// An adapter for USB calls itself what its maker likes; unless its description says what it is it is called
// "USB Serial Port, DESCRIPTION (COMn)", so that nobody takes it for the phone.
std::vector<CPortInfo> NamePorts(const std::vector<CSerialDevice>& arrDevices);

// Opens the device with that path for reading and writing, for nobody else, and closes it again.
EPortProbe ProbeDevice(const std::string& strPath);

// The serial ports through Qt. A port that the system lists may still have nothing behind it: then its probe
// says that it is absent.
class CQtSerialPorts : public CSerialPorts {
  public:
    CQtSerialPorts();
    std::optional<std::vector<CPortInfo>> List() override;
    EPortProbe Probe(const std::string& strName) override;
    // The system keeps no such entries.
    std::optional<std::string> ModemEntry() override { return std::nullopt; }
};
