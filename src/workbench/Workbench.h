#pragma once

#include <iosfwd>
#include <string>
#include <vector>

// The tool for work on the engines: one verb, its files and numbers, and nothing around it.

inline constexpr int kDone = 0;
inline constexpr int kCannotBeDone = 1;  // a file that cannot be read or written, a picture without memory
inline constexpr int kWrongCall = 2;     // no such verb, or words that are not its own

using CWorkWords = std::vector<std::string>;

// Carries out the words of a command line behind the program's name. What went wrong goes to errors in one
// line, what was asked for to out. Gives the exit status.
int RunWorkbench(const CWorkWords& arrWords, std::ostream& out, std::ostream& errors);
