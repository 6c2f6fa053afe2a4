#include "link/TakeFiles.h"

#include <filesystem>
#include <optional>
#include <string_view>

#include "engines/linkset/FileSet.h"
#include "resources/PhoneTexts.h"
#include "resources/Texts.h"

namespace {

// A name on the phone may have a path before it.
std::string TitleOf(const std::string& strName) {
    const std::size_t nSlash = strName.rfind('/');
    return nSlash == std::string::npos ? strName : strName.substr(nSlash + 1);
}

// What no file on a computer may be called. A zero would end the path that the library gets.
bool IsForbidden(const std::string& strTitle) {
    using namespace std::string_view_literals;
    return strTitle.find_first_of("\\/:*?<>|\"\0"sv) != std::string::npos;
}

// A link counts wherever it leads: what is written through it would lie elsewhere.
bool IsThere(const std::string& strPath) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(strPath, error));
}

std::string Closed(std::string strFolder, char cSeparator) {
    if (strFolder.empty() || strFolder.back() != cSeparator) strFolder += cSeparator;
    return strFolder;
}

class CTaker {
  public:
    CTaker(CPhoneSession& session, CTransferDlg& dialog, CTake& take)
        : m_session(session), m_dialog(dialog), m_take(take), m_strStart(take.strSaveFolder) {}

    int Run() {
        CFILESet files;
        files.m_strFileName = m_session.DataFile("FILE.Dat");
        // The dialog in which the files were picked has just read it.
        static_cast<void>(files.Open());
        for (std::size_t i = 0; i < m_take.arrPicked.size(); ++i) {
            m_dialog.TellProgress(static_cast<int>(i) + 1, static_cast<int>(m_take.arrPicked.size()));
            const auto nRecord = static_cast<std::size_t>(m_take.arrPicked[i]);
            if (nRecord >= files.m_nDataArray.size()) continue;
            if (const auto nEnd = TakeOne(files.m_nDataArray[nRecord])) return *nEnd;
        }
        m_dialog.ShowDone();
        TellEnd();
        return CPhoneSession::kEndDone;
    }

  private:
    // Nothing if the take goes on.
    std::optional<int> TakeOne(const CFileItem& item) {
        const std::optional<std::string> strTarget = ChooseTarget(TitleOf(item.m_strFileName));
        if (!strTarget) return std::nullopt;
        const int nCode = m_session.Calls().GetFile(m_session.State(), item.m_nFileId, *strTarget);
        if (nCode == LINK_OK) return std::nullopt;
        if (nCode == LINK_FILE_FAILED) {
            m_strFailed.append("\n").append(item.m_strFileName);
            return std::nullopt;
        }
        if (nCode == LINK_CARD_GONE && m_session.Show(kTextCardLeft, kTitleNotice, EBoxIcon::None,
                                                      EBoxButtons::OkCancel) == EBoxAnswer::Ok) {
            m_take.bCardChanged = true;
            m_dialog.StopPicture();
            return CPhoneSession::kEndNothing;
        }
        m_session.ReportLinkError(nCode);
        m_dialog.StopPicture();
        m_session.Calls().StopDummyPacket();
        return CPhoneSession::kEndNothing;
    }

    // The folder's own file of that name, or another that the user chooses where that cannot be. Nothing if
    // the user passes the file over.
    std::optional<std::string> ChooseTarget(const std::string& strTitle) {
        const std::string strTarget = m_take.strSaveFolder + strTitle + ".jpg";
        if (!IsForbidden(strTitle) && !IsThere(strTarget)) return strTarget;
        const CIdleTraffic traffic(m_session.Calls());
        const auto choice = m_session.Env().files.RunSave({kFilterTake, strTarget});
        if (!choice) return std::nullopt;
        FollowFolder();
        const bool bNamed = choice->strName.find('.') != std::string::npos;
        return bNamed ? choice->strPath : choice->strPath + ".jpg";
    }

    // The folder that the user has chosen takes the following files too. It may be the same one under another
    // name; a process whose folder has been deleted has none, and theirs stays.
    void FollowFolder() {
        const CFolders& folders = m_session.Env().folders;
        const std::string strNow = folders.CurrentFolder();
        if (!strNow.empty()) m_take.strSaveFolder = Closed(strNow, folders.Separator());
        std::error_code error;
        m_take.bFolderMoved = !std::filesystem::equivalent(m_take.strSaveFolder, m_strStart, error);
    }

    void TellEnd() {
        if (!m_strFailed.empty()) {
            const std::string strText = kTextFailedFiles + m_strFailed + kTextFilesFailed;
            m_session.Show(m_session.WithRestart(strText, "\n"), kTitleNotice);
            return;
        }
        const CIdleTraffic traffic(m_session.Calls());
        m_session.Show(m_session.WithRestart(kTextTaken), kTitleTake);
    }

    CPhoneSession& m_session;
    CTransferDlg& m_dialog;
    CTake& m_take;
    const std::string m_strStart;
    std::string m_strFailed;  // the names, each on a line of its own
};

}  // namespace

int DoTakeFiles(CPhoneSession& session, CTransferDlg& dialog, CTake& take) {
    return CTaker(session, dialog, take).Run();
}
