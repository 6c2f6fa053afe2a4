#pragma once

#include <string>

// Puts values into a text as printf does. The texts are the program's own and fit their values.
std::string Format(const char* szText, ...) __attribute__((format(printf, 1, 2)));
