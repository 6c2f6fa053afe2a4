#include "qt/UnlistedFiles.h"

#include <QDir>
#include <filesystem>

#include "qt/FileNames.h"
#include "qt/Text.h"

namespace fs = std::filesystem;

bool CUnlistedFiles::Fill(const QString& strFolder, const QStringList& arrPatterns) {
    clear();
    QStringList arrNames;
    std::error_code error;
    for (fs::directory_iterator it(ResolvePath(strFolder), error), itEnd; !error && it != itEnd;
         it.increment(error)) {
        std::error_code errorKind;
        if (it->is_directory(errorKind) ||
            !PathToQt(it->path().string()).contains(QChar::ReplacementCharacter))
            continue;
        const QString strName = PathToQt(it->path().filename().string());
        if (QDir::match(arrPatterns, strName)) arrNames.append(strName);
    }
    arrNames.sort();
    addItems(arrNames);
    setCurrentIndex(-1);
    return !arrNames.isEmpty();
}
