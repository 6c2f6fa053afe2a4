#include "editor/PhoneSizeLine.h"

#include <array>
#include <cstdio>

std::string FormatPhoneSize(CSize size) {
    std::array<char, 40> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%4d X %-4d", size.cx, size.cy);
    return buffer.data();
}
