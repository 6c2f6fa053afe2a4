#pragma once

#include <string>

// One serial port as the machine lists it.
struct CPortInfo {
    std::string m_strPortName;      // "COM3"; "USB_SERIAL" for an adapter on the oldest systems; may be empty
    std::string m_strFriendlyName;  // as a rule "DESCRIPTION (COM3)"; may be empty
    bool operator==(const CPortInfo&) const = default;
};

// What became of opening a port for reading and writing, for nobody else, and closing it again.
enum class EPortProbe {
    Free,
    Busy,    // it is there, but somebody has it or it may not be opened
    Absent,  // anything else went wrong
};
