#include "app/StatusLines.h"

#include <array>
#include <cstdio>
#include <filesystem>

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

void CStatusLines::ShowPair(int nEditId, int nBrowseId) {
    m_controls.Show(nEditId, m_state.m_bEditInfo);
    m_controls.Show(nBrowseId, !m_state.m_bEditInfo);
}

void CStatusLines::ShowSizeInfo() {
    ShowPair(kInfoSize, kBrowseSize);
    if (!m_state.m_bEditInfo) return;
    if (m_state.m_bFontMode || m_state.m_bDrawMode) {
        m_controls.SetText(kInfoSize, std::string(kWordSize) + " :" + PadColumns(kWordEditMode, 14) + " ");
        return;
    }
    const CSize size = m_state.m_bStickMode ? m_images.RuledSize() : m_images.DisplaySize();
    m_controls.SetText(kInfoSize, FormatSize(size.cx, size.cy));
}

void CStatusLines::ShowNameInfo() {
    ShowPair(kInfoName, kBrowseName);
    m_controls.SetText(kInfoName, std::string(kWordName) + ": " + PadColumns(m_state.m_strFileName, 62));
}

void CStatusLines::ShowDepthInfo() {
    ShowPair(kInfoDepth, kBrowseDepth);
    if (!m_state.m_bEditInfo || !m_images.m_pImgDisplay) return;
    m_controls.SetText(kInfoDepth, FormatDepth(m_images.m_pImgDisplay->GetBpp()));
}

void CStatusLines::ShowFileInfo(const std::string& strPath, EFileInfo kind) {
    ShowPair(kInfoName, kBrowseName);
    ShowPair(kInfoSize, kBrowseSize);
    ShowPair(kInfoDepth, kBrowseDepth);
    if (kind == EFileInfo::Picture) return ShowPicture(strPath);

    const std::string strName = NameOf(strPath);
    const bool bEdit = m_state.m_bEditInfo;
    const bool bClear = kind == EFileInfo::Clear;
    m_controls.SetText(
        bEdit ? kInfoName : kBrowseName,
        bClear ? PadColumns(" ", 90) : std::string(kWordName) + " : " + PadColumns(strName, 62));
    m_controls.SetText(bEdit ? kInfoSize : kBrowseSize, PadColumns(" ", 60));
    m_controls.SetText(bEdit ? kInfoDepth : kBrowseDepth, PadColumns(" ", bClear ? 20 : 24));
}

void CStatusLines::ShowPicture(const std::string& strPath) {
    m_strBrowsePath = strPath;
    const std::string strName = NameOf(strPath);
    if (GetFileExtension(strName).empty()) return;
    m_pImgBrowse = std::make_unique<CxImage>(strPath, FindImageTypeOfName(strName));
    const bool bValid = m_pImgBrowse->IsValid();
    m_controls.SetText(kBrowseName, std::string(kWordName) + ": " + PadColumns(strName, 100));
    m_controls.SetText(kBrowseSize, FormatSize(m_pImgBrowse->GetWidth(), m_pImgBrowse->GetHeight()));
    m_controls.SetText(kBrowseDepth, FormatDepth(bValid ? m_pImgBrowse->GetBpp() : 0));
}

void CStatusLines::SetHelp(int nCode) {
    std::string strText;
    if (FindHelpText(nCode, strText)) m_controls.SetText(kHelpLine, PadColumns(strText, 180));
    m_controls.Show(kHelpLine, true);
}
