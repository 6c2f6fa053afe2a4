#include "link/LinkSteps.h"
#include "resources/PhoneTexts.h"

int DoTakePrepare(CPhoneSession& session, CRunningPicture& picture, std::int32_t& nFiles) {
    if (const auto nEnd = OpenLink(session, EDirection::Take, picture)) return *nEnd;
    CPhoneCalls& calls = session.Calls();
    calls.FindForTake();
    if (!calls.CanList()) {
        picture.StopPicture();
        if (session.Restarts())
            session.Show(kTextRestart, kTitleTake);
        else
            calls.DisconnectToPhone();
        return session.EndOfFailure();
    }
    const int nCode = calls.GetFileList(session.State(), nFiles, session.InstallFolder());
    picture.StopPicture();
    if (nCode == LINK_OK) return CPhoneSession::kEndDone;
    session.ReportLinkError(nCode);
    calls.DisconnectToPhone();
    return nCode == LINK_CONNECT_FAILED_QUIETLY ? CPhoneSession::kEndNothing : session.EndOfFailure();
}
