#pragma once

#include <string>
#include <string_view>

// The formats by the numbers that a picture's constructor and Save take.
enum class ImageType : int {
    kUnknown = 0,  // no picture
    kBmp = 1,
    kGif = 2,
    kJpeg = 3,
    kPng = 4,
    kIco = 5,
    kTiff = 6,
    kTga = 7,
    kPcx = 8,
    kWbmp = 9,
    kWmf = 10,
    kJp2 = 11,
    kJpc = 12,
    kPgx = 13,
    kPnm = 14,
    kRas = 15,
};

// The text behind the last point of a name or path, its case unchanged; empty if there is no point. A point
// in a folder's name counts as well.
std::string GetFileExtension(std::string_view strName);

// ASCII letters in lower case, every other byte unchanged.
std::string ToLowerExtension(std::string_view strExtension);

// The format of an extension by exact, case-sensitive comparison: lower it first. kUnknown for any other
// text.
ImageType FindImageType(std::string_view strExtension);

// The three in one: the format that a name or path stands for.
ImageType FindImageTypeOfName(std::string_view strName);
