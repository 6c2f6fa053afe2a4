#pragma once

#include "window/Clipboard.h"

class CQtClipboard : public CClipboard {
  public:
    [[nodiscard]] bool SetBitmap(std::span<const std::uint8_t> arrDib) override;
    std::optional<std::vector<std::uint8_t>> GetBitmap() override;
};
