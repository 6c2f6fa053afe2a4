#pragma once

#include "window/LibraryFolders.h"

// The libraries beside the running program, see FoldersOfLibraries; the phone library may lie elsewhere.
class CQtLibraries : public CLibraryFolders {
  public:
    CQtLibraries();
};
