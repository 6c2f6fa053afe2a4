// Drives, the shell and the skin's pictures of the scripted platform.

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "play/ScriptedPlatform.h"

namespace fs = std::filesystem;

// --- drives ---

void CScriptedPlatform::AddDrive(char cLetter, const std::string& strFolder) {
    RemoveDrive(cLetter);
    std::string strRoot = fs::absolute(strFolder).lexically_normal().string();
    if (strRoot.back() != '/') strRoot += '/';
    const auto it = std::find_if(m_arrDrives.begin(), m_arrDrives.end(),
                                 [cLetter](const CDrive& drive) { return drive.cLetter > cLetter; });
    m_arrDrives.insert(it, {cLetter, strRoot, std::string("磁盘 (") + cLetter + ":)", ETreeIcon::Disk});
}

void CScriptedPlatform::RemoveDrive(char cLetter) {
    std::erase_if(m_arrDrives, [cLetter](const CDrive& drive) { return drive.cLetter == cLetter; });
}

std::string CScriptedPlatform::OnDrive(const std::string& strPath) const {
    const CDrive* pBest = nullptr;
    for (const CDrive& drive : m_arrDrives) {
        const bool bHolds = strPath.starts_with(drive.strRoot) || strPath + '/' == drive.strRoot;
        if (bHolds && (pBest == nullptr || drive.strRoot.size() > pBest->strRoot.size())) pBest = &drive;
    }
    if (pBest == nullptr) return strPath;
    const std::size_t nTop = pBest->strRoot.size() - 1;
    return std::string{pBest->cLetter, ':'} + strPath.substr(nTop);
}

// --- shell ---

bool CScriptedPlatform::MayDelete(bool bToBin, bool bAsk) {
    if (bAsk) {
        const std::optional<CAnswer> answer = TakeAnswer(EQuestion::Delete);
        if (!answer || !answer->bDelete) return false;
    }
    if (m_bRefuseDeletes) return false;
    if (!bToBin || !m_strBin.empty()) return true;
    m_arrProblems.emplace_back().strText = "there is no recycle bin";
    return false;
}

// A second file of the same name stands in the bin with a number.
bool CScriptedPlatform::DeleteOne(const std::string& strPath, bool bToBin) const {
    std::error_code error;
    if (!fs::exists(fs::symlink_status(strPath, error))) return false;
    if (!bToBin) {
        fs::remove_all(strPath, error);
        return !error;
    }
    const std::string strPlace = (fs::path(m_strBin) / fs::path(strPath).filename()).string();
    std::string strFree = strPlace;
    for (int i = 2; fs::exists(fs::symlink_status(strFree, error)); ++i)
        strFree = strPlace + " " + std::to_string(i);
    fs::rename(strPath, strFree, error);
    return !error;
}

bool CScriptedPlatform::Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) {
    bool bDone = MayDelete(bToBin, bAsk);
    if (bDone)
        for (const std::string& strPath : arrPaths) bDone = DeleteOne(strPath, bToBin) && bDone;
    m_arrShellActs.push_back({false, arrPaths, bToBin, bAsk, bDone});
    return bDone;
}

void CScriptedPlatform::Open(const std::string& strPath) {
    m_arrShellActs.push_back({true, {strPath}, false, false, true});
}

// --- pictures ---

const CxImage* CScriptedPlatform::Find(const std::string& strName, int nDensity) {
    return m_pBitmaps == nullptr ? nullptr : m_pBitmaps->Find(strName, nDensity);
}
