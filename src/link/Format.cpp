#include "link/Format.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

std::string Format(const char* szText, ...) {
    std::va_list list;
    va_start(list, szText);
    std::va_list again;
    va_copy(again, list);
    const int nLength = std::vsnprintf(nullptr, 0, szText, list);
    va_end(list);
    std::vector<char> buffer(static_cast<std::size_t>(nLength < 0 ? 0 : nLength) + 1);
    std::vsnprintf(buffer.data(), buffer.size(), szText, again);
    va_end(again);
    return buffer.data();
}
