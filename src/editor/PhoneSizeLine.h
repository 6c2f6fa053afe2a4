#pragma once

#include <string>

#include "image/Geometry.h"

// A size of the phone as the lists of its sizes show it: " 640 X 480 ".
std::string FormatPhoneSize(CSize size);
