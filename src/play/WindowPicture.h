#pragma once

#include "play/PlayHost.h"
#include "surface/Surface.h"

// The client area of a window as a picture: what the dialog has drawn, and its controls on top. Buttons and
// labels show their pictures, views what they show, the list of files its cells, and names in tree and list
// are bars of their length; the rest is a flat place, since there is no text without a platform. The pictures
// may be null.
CSurface ComposeWindow(CPlayHost& host, CBitmaps* pBitmaps);
