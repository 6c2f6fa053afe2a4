#pragma once

#include <string>

// Moves a file, a folder or a link, which is not followed, into the user's trash. False if that cannot be: no
// trash on that volume, or the folder may not be changed; everything is then as it was. Where the desktop's
// trash is a folder this keeps to its rules by itself: Qt knows no names that are no valid text and no links
// that lead nowhere, and puts files elsewhere when there can be no trash.
bool MoveToTrash(const std::string& strPath);
