#include "qt/QtLibraries.h"

#include <QCoreApplication>
#include <array>

#include "engines/linkset/PhoneLibrary.h"
#include "qt/Text.h"

CQtLibraries::CQtLibraries()
    : CLibraryFolders(
          FoldersOfLibraries(PathFromQt(QCoreApplication::applicationDirPath())),
          FilesOfLibraries(std::array{CLibraryVariable{PHONE_LIBRARY_NAME, kPhoneLibraryVariable}})) {}
