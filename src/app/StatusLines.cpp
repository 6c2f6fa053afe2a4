#include "app/StatusLines.h"

#include <array>
#include <cstdio>
#include <filesystem>

#include "image/ImageHead.h"
#include "resources/Ids.h"
#include "resources/Texts.h"

namespace {

std::string FormatSize(int nWidth, int nHeight) {
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), " :%5dX%-8d ", nWidth, nHeight);
    return kWordSize + std::string(buffer.data());
}

std::string NameOf(const std::string& strPath) {
    return std::filesystem::path(strPath).filename().string();
}

std::string FormatDepth(int nBits) {
    return std::string(kWordDepth) + ": " + PadColumns(std::to_string(nBits), 3);
}

}  // namespace

std::string PadColumns(const std::string& strText, int nColumns) {
    int nUsed = 0;
    for (const char c : strText) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80)
            ++nUsed;
        else if (byte >= 0xC0)
            nUsed += 2;
    }
    return nUsed >= nColumns ? strText
                             : strText + std::string(static_cast<std::size_t>(nColumns - nUsed), ' ');
}

std::string CStatusLines::SizeInfo() const {
    if (m_state.IsUp(EMode::Font) || m_state.IsUp(EMode::Draw))
        return std::string(kWordSize) + " :" + PadColumns(kWordEditMode, 14) + " ";
    const CSize size = m_state.IsUp(EMode::Stick) ? m_images.RuledSize() : m_images.DisplaySize();
    return FormatSize(size.cx, size.cy);
}

void CStatusLines::ShowEditInfo() {
    m_desk.ShowInfoLines(m_bEditInfo);
    m_controls.SetText(kInfoName, std::string(kWordName) + ": " + PadColumns(m_state.m_strFileName, 62));
    if (!m_bEditInfo) return;
    m_controls.SetText(kInfoSize, SizeInfo());
    m_controls.SetText(kInfoDepth, FormatDepth(m_images.m_imgDisplay.GetBpp()));
}

void CStatusLines::ShowFileInfo(const std::string& strPath, EFileInfo kind) {
    m_desk.ShowInfoLines(m_bEditInfo);
    if (kind == EFileInfo::Picture) return ShowPicture(strPath);

    const bool bClear = kind == EFileInfo::Clear;
    m_controls.SetText(
        m_bEditInfo ? kInfoName : kBrowseName,
        bClear ? PadColumns(" ", 90) : std::string(kWordName) + " : " + PadColumns(strPath, 62));
    m_controls.SetText(m_bEditInfo ? kInfoSize : kBrowseSize, PadColumns(" ", 60));
    m_controls.SetText(m_bEditInfo ? kInfoDepth : kBrowseDepth, PadColumns(" ", bClear ? 20 : 24));
}

void CStatusLines::ShowPicture(const std::string& strPath) {
    const std::string strName = NameOf(strPath);
    if (GetFileExtension(strName).empty()) return;
    const CImageHead head = ReadImageHead(strPath, FindImageTypeOfName(strName));
    m_controls.SetText(kBrowseName, std::string(kWordName) + ": " + PadColumns(strName, 100));
    m_controls.SetText(kBrowseSize, FormatSize(head.size.cx, head.size.cy));
    m_controls.SetText(kBrowseDepth, FormatDepth(head.nBpp));
}

void CStatusLines::SetHelp(int nCode) {
    std::string strText;
    if (FindHelpText(nCode, strText)) m_controls.SetText(kHelpLine, PadColumns(strText, 180));
    m_desk.ShowHelpLine();
}
