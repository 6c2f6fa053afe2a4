#pragma once

#include <string>

// Where the program's own files lie: in share/fotarium beside the folder of the executable, in the build tree
// as in an installed one. Whole paths; nothing is checked.
std::string ShareFolder();
// The rendered pictures.
std::string SkinFolder();
// The sample photographs.
std::string SampleFolder();
