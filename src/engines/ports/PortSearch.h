#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engines/ports/PortListing.h"

// Which serial port is the phone's. A USB port of the phone that opens is taken unasked and ends the search,
// so that ports behind it are never opened; else the user chooses.

// Opens the port of that name, such as "COM3" or "\\.\COM12", for reading and writing and for nobody else,
// and closes it.
using CPortProbe = std::function<EPortProbe(const std::string& strName)>;

// What stands behind a port's name in its line.
struct CPortWords {
    std::string strUsable;
    std::string strBusy;
};

struct CPortSearch {
    std::optional<std::string> strUsbLine;  // of the port that was taken unasked
    // One line for each record, such as "COM3 : usable" or "USB[COM7] : busy"; empty for one that was passed
    // over or not looked at.
    std::vector<std::string> arrLines;
    // The last record that was looked at is a USB port, whatever became of it: the phone's modem is asked
    // for.
    bool bUsbLast = false;
    bool HasLines() const;
};

// Goes through records as DropModems leaves them. On the oldest systems realNames are RealPortNames: the port
// of an adapter gets the last of them that no record bears. On all others there are none.
CPortSearch SearchPhonePort(CPortInfoArray arrPorts, const CPortProbe& probe, const CPortWords& words,
                            const std::optional<std::vector<std::string>>& realNames = {});

inline constexpr int kNoPort = -1;
inline constexpr int kPortChoiceCancelled = -2;

struct CPhonePort {
    int nPort = kNoPort;     // kNoPort: there is none to choose; 0 for a choice without a number
    bool bUsb = false;       // taken unasked
    bool bAskModem = false;  // the modem's number is to be looked up
};

// What a search comes to. Without a USB port the user chooses, if there is anything to choose: choose gets
// the lines and gives the chosen text, or nothing if it was cancelled. Then, as with kNoPort, no modem is
// asked for.
using CPortChoice = std::function<std::optional<std::string>(std::span<const std::string> lines)>;
CPhonePort ConcludePortSearch(const CPortSearch& search, const CPortChoice& choose);

// The number in a line of the search or in a bare name: 12 for "USB[COM12] : usable", 3 for "COM3". 0 if
// there is none.
int ParsePortNumber(const std::string& strText);

// The number of the port in what the system notes for the phone's modem, such as "COM5". -1 for nothing, for
// 256 bytes or more, and for anything else.
int ModemPortOf(const std::optional<std::string>& strEntry);
// The same from the registry: the first value of the table of serial devices that belongs to the phone's
// modem, or on the oldest systems what that modem is attached to.
int FindModemPort(const CRegistryKey& machine, bool bOldSystem);
