#pragma once

#include <string>

#include "image/SharedBytes.h"

// Reads a whole regular file. Empty if strPath is a folder, a pipe or a device, has no bytes or more than 2
// GiB, cannot be read, or is no path at all.
[[nodiscard]] CSharedBytes ReadFileBytes(const std::string& strPath);
