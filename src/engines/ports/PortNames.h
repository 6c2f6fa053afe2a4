#pragma once

#include <string_view>

// The words that decide what a serial port is. They count in just these letters, and wherever they stand in a
// name.

inline constexpr std::string_view kComWord = "COM";  // a port's name begins here ...
inline constexpr char kComEnd = ')';                 // ... and ends before the last of these
inline constexpr std::string_view kUsbWord = "USB";
// The port name of an adapter on the oldest systems.
inline constexpr std::string_view kAdapterName = "USB_SERIAL";
// Adapters, unless the name has the phone's own word.
inline constexpr std::string_view kAdapterWords[] = {"USB Serial Port", "USB High Speed Serial"};
inline constexpr std::string_view kPhoneWord = "OrvoE CDMA";
// The phone's modem, which is no port for pictures, unless the name has the second word.
inline constexpr std::string_view kModemWords = "Orvo CDMA USB Modem";
inline constexpr std::string_view kDiagnosticWord = "Diagnostic";

// The whole number at the start of a text, behind spaces and with a sign if there is one; 0 if there is none.
// One that no int holds is the int nearest to it.
int LeadingNumber(std::string_view strText);
