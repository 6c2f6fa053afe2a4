#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "image/Color.h"
#include "window/Events.h"

// The words of a script's line. Every function leaves its result alone and gives false, or nothing, for a
// text that is none of its kind.

using CWords = std::vector<std::string>;

// Splits a line at its blanks. A word in double quotes keeps its blanks, and in it \" and \\ stand for the
// second character. A # at the beginning of a word makes the rest a comment. False for a quote that is not
// closed, or one that ends inside a word.
bool SplitWords(std::string_view strLine, CWords& arrWords);

// The text in double quotes on one line: what SplitWords would read back, with \n for a line's end.
std::string Quote(std::string_view strText);

std::optional<int> ParseNumber(std::string_view strWord);
// A letter of a drive, in upper case.
std::optional<char> ParseLetter(std::string_view strWord);
// RRGGBB
std::optional<CColor> ParseColor(std::string_view strWord);
// ctrl+shift+KEY, either or none in front; KEY is a letter, a digit, enter, esc or delete. Case does not
// count.
std::optional<CKeyEvent> ParseChord(std::string_view strWord);
