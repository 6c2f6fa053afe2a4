#include "qt/QtLibraries.h"

#include <QCoreApplication>

#include "qt/Text.h"

CQtLibraries::CQtLibraries()
    : CLibraryFolders(FoldersOfLibraries(PathFromQt(QCoreApplication::applicationDirPath()))) {}
