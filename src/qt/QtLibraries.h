#pragma once

#include "window/LibraryFolders.h"

// The libraries beside the running program, see FoldersOfLibraries.
class CQtLibraries : public CLibraryFolders {
  public:
    CQtLibraries();
};
