#pragma once

#include "window/Template.h"

// The main window: every control at its place, as it stands before the first mode comes up.
extern const CDialogTemplate kMainDialog;
