#pragma once

#include <optional>
#include <string>

// Which serial device a port's number n means, and the other way round: one table for the program, which
// lists the ports, and for a phone library, which is told a number. A number belongs to the kind of a device
// and its place among them, so it is the same today and tomorrow.

// The number of the port behind which the phone in a folder stands.
inline constexpr int kFolderPhonePort = 200;

// 1 to 256 for the name of a device without its folder, such as "ttyUSB0"; nothing for one that has no
// number.
std::optional<int> PortNumberOf(const std::string& strDevice);
// The whole path of the device, such as "/dev/ttyUSB0"; empty for a number that means none.
std::string DeviceOfPort(int nPort);
