#include "qt/QtShell.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "qt/Text.h"
#include "window/MessageBoxes.h"

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostNames = 8;  // in one message

std::string NameOf(const std::string& strPath) {
    return FromQt(PathToQt(fs::path(strPath).filename().string()));
}

bool IsFolder(const std::string& strPath) {
    std::error_code error;
    return fs::is_directory(fs::symlink_status(strPath, error));
}

// "“name”", or "这 3 项" for several.
std::string Naming(const std::vector<std::string>& arrPaths) {
    if (arrPaths.size() != 1) return "这 " + std::to_string(arrPaths.size()) + " 项";
    return (IsFolder(arrPaths.front()) ? "文件夹“" : "“") + NameOf(arrPaths.front()) + "”";
}

std::string TitleOf(const std::vector<std::string>& arrPaths) {
    if (arrPaths.size() != 1) return "确认删除多个文件";
    return IsFolder(arrPaths.front()) ? "确认文件夹删除" : "确认文件删除";
}

bool MayChange(const fs::path& folder) {
#ifdef Q_OS_WIN
    return fs::is_directory(folder);
#else
    return access(folder.c_str(), W_OK) == 0;
#endif
}

// A name that is no valid text cannot be told to Qt.
bool MoveToTrash(const std::string& strPath) {
    const QString str = PathToQt(strPath);
    return PathFromQt(str) == strPath && QFile::moveToTrash(str);
}

// A link goes, what it leads to stays.
bool Remove(const std::string& strPath) {
    std::error_code error;
    fs::remove_all(strPath, error);
    return !error;
}

QUrl UrlOf(const std::string& strPath) {
#ifdef Q_OS_WIN
    return QUrl::fromLocalFile(PathToQt(strPath));
#else
    return QUrl::fromEncoded("file://" + QByteArray::fromStdString(strPath).toPercentEncoding("/"));
#endif
}

}  // namespace

bool CQtShell::Ask(const std::vector<std::string>& arrPaths, bool bToBin) {
    std::string strText =
        bToBin ? "要把" + Naming(arrPaths) + "移动到垃圾箱吗？" : "要永久删除" + Naming(arrPaths) + "吗？";
    const bool bFolder = std::any_of(arrPaths.begin(), arrPaths.end(), IsFolder);
    if (bFolder) strText += "\n文件夹里的所有内容也会一起删除。";
    return m_boxes.Show({strText, TitleOf(arrPaths), bToBin ? EBoxIcon::Information : EBoxIcon::Exclamation,
                         EBoxButtons::YesNo}) == EBoxAnswer::Yes;
}

bool CQtShell::AskWithoutBin(const std::vector<std::string>& arrPaths) {
    return m_boxes.Show({Naming(arrPaths) + "不能移动到垃圾箱。\n要永久删除吗？", TitleOf(arrPaths),
                         EBoxIcon::Exclamation, EBoxButtons::YesNo}) == EBoxAnswer::Yes;
}

void CQtShell::Report(const std::vector<std::string>& arrPaths) {
    std::string strText = "以下项目无法删除：\n";
    for (std::size_t i = 0; i < std::min(arrPaths.size(), kMostNames); ++i)
        strText.append("\n").append(NameOf(arrPaths[i]));
    if (arrPaths.size() > kMostNames) strText += "\n……共 " + std::to_string(arrPaths.size()) + " 项";
    strText += "\n\n它可能正在使用，或者您没有删除它的权限。";
    m_boxes.Show({strText, "删除文件时出错", EBoxIcon::Stop, EBoxButtons::Ok});
}

bool CQtShell::Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) {
    if (bAsk && !Ask(arrPaths, bToBin)) return false;
    std::vector<std::string> arrRefused;
    std::vector<std::string> arrForGood;
    for (const std::string& strPath : arrPaths) {
        if (bToBin && MoveToTrash(strPath)) continue;
        // What may not be taken out of its folder cannot be deleted for good either.
        const bool bFixed = !MayChange(fs::path(strPath).parent_path());
        (bFixed ? arrRefused : arrForGood).push_back(strPath);
    }
    const bool bSpared = bToBin && !arrForGood.empty() && !AskWithoutBin(arrForGood);
    if (!bSpared)
        std::copy_if(arrForGood.begin(), arrForGood.end(), std::back_inserter(arrRefused),
                     [](const std::string& strPath) { return !Remove(strPath); });
    if (!arrRefused.empty()) Report(arrRefused);
    return arrRefused.empty() && !bSpared;
}

void CQtShell::Open(const std::string& strPath) {
    if (QDesktopServices::openUrl(UrlOf(strPath))) return;
    m_boxes.Show({"没有可以打开“" + NameOf(strPath) + "”的程序。", "打开", EBoxIcon::Stop, EBoxButtons::Ok});
}
