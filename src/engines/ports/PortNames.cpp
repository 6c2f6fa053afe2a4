#include "engines/ports/PortNames.h"

#include <algorithm>
#include <cstdint>
#include <limits>

int LeadingNumber(std::string_view strText) {
    strText.remove_prefix(std::min(strText.find_first_not_of(" \t\n\v\f\r"), strText.size()));
    const bool bMinus = strText.starts_with('-');
    if (bMinus || strText.starts_with('+')) strText.remove_prefix(1);
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    std::int64_t n = 0;
    for (const char ch : strText) {
        if (ch < '0' || ch > '9') break;
        n = std::min(n * 10 + (ch - '0'), kMost + 1);
    }
    return static_cast<int>(bMinus ? -n : std::min(n, kMost));
}
