#include "qt/ResourceFolders.h"

#include <QCoreApplication>
#include <QDir>

#include "qt/Text.h"

std::string ShareFolder() {
    return PathFromQt(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/fotarium"));
}

std::string SkinFolder() {
    return ShareFolder() + "/skin";
}

std::string SampleFolder() {
    return ShareFolder() + "/drive/ZEFA肖像";
}
