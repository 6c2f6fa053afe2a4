#include "qt/FileNames.h"

#include <filesystem>

#include "qt/Text.h"

namespace fs = std::filesystem;

namespace {

bool Exists(const std::string& strPath) {
    std::error_code error;
    return fs::exists(fs::symlink_status(strPath, error));
}

// The first entry of the folder that is shown by that name; empty if there is none.
std::string FindShown(const std::string& strFolder, const QString& strName) {
    std::error_code error;
    for (fs::directory_iterator it(strFolder, error), itEnd; !error && it != itEnd; it.increment(error))
        if (PathToQt(it->path().filename().string()) == strName) return it->path().filename().string();
    return {};
}

}  // namespace

std::string ResolvePath(const QString& strPath) {
    std::string strWhole = PathFromQt(strPath);
    if (!strPath.contains(QChar::ReplacementCharacter) || Exists(strWhole)) return strWhole;
    std::string strFound;
    for (const QString& strPiece : strPath.split('/')) {
        std::string strNext = PathFromQt(strPiece);
        if (strPiece.contains(QChar::ReplacementCharacter)) {
            const std::string strShown = FindShown(strFound.empty() ? "." : strFound, strPiece);
            if (!strShown.empty()) strNext = strShown;
        }
        strFound += strNext + '/';
    }
    strFound.pop_back();
    return strFound;
}

QStringList ParseFilter(const std::string& strFilter) {
    const QStringList arrPieces = ToQt(strFilter).split('|');
    QStringList arrFilters;
    for (qsizetype i = 0; i + 1 < arrPieces.size() && !arrPieces[i].isEmpty(); i += 2) {
        const QString strPattern = QString(arrPieces[i + 1]).replace(';', ' ');
        const bool bNamed = arrPieces[i].contains('(' + strPattern + ')', Qt::CaseInsensitive);
        arrFilters += bNamed ? arrPieces[i] : arrPieces[i] + " (" + strPattern + ')';
    }
    return arrFilters;
}

QStringList PatternsOf(const QString& strNameFilter) {
    const qsizetype nOpen = strNameFilter.lastIndexOf('(');
    const qsizetype nClose = strNameFilter.lastIndexOf(')');
    return strNameFilter.mid(nOpen + 1, nClose - nOpen - 1).split(' ', Qt::SkipEmptyParts);
}
