#include "SkinTable.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>

namespace {

constexpr int kPlaceFields = 6;

// How many fields follow the place, by kind. The last of them takes the rest of the line, blanks included.
const QMap<QString, int>& FieldsOfKinds() {
    static const QMap<QString, int> mapFields{{"sheet", 2},   {"key", 5},    {"tab", 2},  {"title", 2},
                                              {"face", 3},    {"label", 2},  {"hint", 1}, {"spray", 3},
                                              {"picture", 2}, {"masked", 1}, {"icon", 1}, {"dialog", 2},
                                              {"strip", 3},   {"frames", 4}, {"cap", 3}};
    return mapFields;
}

std::optional<CSkinLine> ReadLine(const QString& strText) {
    const QStringList arrWords = strText.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    if (arrWords.size() <= kPlaceFields || !FieldsOfKinds().contains(arrWords[0])) return std::nullopt;
    int aPlace[4] = {};
    for (int i = 0; i < 4; ++i) {
        bool bNumber = false;
        aPlace[i] = arrWords[2 + i].toInt(&bNumber);
        if (!bNumber) return std::nullopt;
    }
    CSkinLine line{arrWords[0], arrWords[1], QRect(aPlace[0], aPlace[1], aPlace[2], aPlace[3]), {}};
    const int nFields = FieldsOfKinds()[line.strKind];
    if (arrWords.size() < kPlaceFields + nFields || line.rcPlace.isEmpty()) return std::nullopt;
    line.arrRest = arrWords.mid(kPlaceFields, nFields - 1);
    line.arrRest << arrWords.mid(kPlaceFields + nFields - 1).join(' ');
    return line;
}

// The pictures of a frames line are numbered, and each is a moment later than the one before.
bool HasCounts(const CSkinLine& line) {
    if (line.strKind != "frames") return true;
    return line.strName.toInt() > 0 && line.arrRest[2].toInt() > 0 && line.arrRest[3].toInt() > 0;
}

}  // namespace

std::optional<std::vector<CSkinLine>> ReadSkinTable(const QString& strPath, QString& strError) {
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly)) {
        strError = strPath + ": cannot be read";
        return std::nullopt;
    }
    std::vector<CSkinLine> arrLines;
    const QStringList arrText = QString::fromUtf8(file.readAll()).split('\n');
    for (int i = 0; i < arrText.size(); ++i) {
        const QString strText = arrText[i].trimmed();
        if (strText.isEmpty() || strText.startsWith('#')) continue;
        const std::optional<CSkinLine> line = ReadLine(strText);
        if (!line || !HasCounts(*line)) {
            strError = QString("%1:%2: not a line of the skin: %3").arg(strPath).arg(i + 1).arg(strText);
            return std::nullopt;
        }
        arrLines.push_back(*line);
    }
    return arrLines;
}
