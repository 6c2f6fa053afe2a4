#pragma once

#include <cstdint>
#include <span>
#include <string>

// Writes a file as a whole or not at all; false if it cannot be written.
[[nodiscard]] bool WriteBytes(const std::string& strPath, std::span<const std::uint8_t> bytes);
[[nodiscard]] bool WriteText(const std::string& strPath, const std::string& strText);
