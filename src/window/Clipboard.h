#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// The system clipboard's picture, shared with all other programs, as a packed device-independent bitmap.
class CClipboard {
  public:
    virtual ~CClipboard() = default;
    // Empties the clipboard and gives it the bitmap; false if it cannot be set.
    [[nodiscard]] virtual bool SetBitmap(std::span<const std::uint8_t> arrDib) = 0;
    // Nothing if the clipboard holds no picture.
    virtual std::optional<std::vector<std::uint8_t>> GetBitmap() = 0;
};
