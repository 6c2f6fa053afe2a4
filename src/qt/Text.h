#pragma once

#include <QFile>
#include <QString>
#include <string>
#include <string_view>

// Text and file names between the two sides: UTF-8 here, Qt's strings there.

inline QString ToQt(std::string_view str) {
    return QString::fromUtf8(str.data(), static_cast<qsizetype>(str.size()));
}

inline std::string FromQt(const QString& str) {
    return str.toStdString();
}

inline QString PathToQt(const std::string& strPath) {
    return QFile::decodeName(strPath.c_str());
}

inline std::string PathFromQt(const QString& strPath) {
    return QFile::encodeName(strPath).toStdString();
}

// The name of a file to be shown: bytes that are no valid text become replacement signs, what would break the
// line becomes a blank.
inline QString NameToQt(std::string_view str) {
    QString strName = ToQt(str);
    for (QChar& c : strName)
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
            c.category() == QChar::Separator_Paragraph)
            c = u' ';
    return strName;
}
