#pragma once

// The platform's number of a key of Qt's; 0 for a key that the program never asks about.
int KeyCodeOf(int nQtKey);
