#pragma once

#include <optional>
#include <string>

#include "engines/ports/PortInfo.h"

// The phone in a folder, as every platform lists it among the serial ports.

// The environment variable that names the folder, for the program and for the phone library alike.
inline constexpr const char* kPhoneFolderVariable = "FOTARIUM_PHONE_FOLDER";

// The record of its port; nothing as long as the variable names no folder that exists.
std::optional<CPortInfo> FindFolderPhone();
// Names that folder from now on; an empty text names none.
void SetPhoneFolder(const std::string& strFolder);
// Makes the folder's path whole: the process moves from folder to folder, and the phone does not.
void PinPhoneFolder();
