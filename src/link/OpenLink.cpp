#include "link/LinkSteps.h"

std::optional<int> OpenLink(CPhoneSession& session, EDirection direction, CRunningPicture& picture) {
    CPhoneState& state = session.State();
    CPhoneCalls& calls = session.Calls();
    calls.FindForExchange();
    int nCode = calls.ChangeUsbStream(state);
    if (nCode != LINK_OK) {
        session.ReportLinkError(nCode);
        picture.StopPicture();
        state.m_bConnected = false;
        return nCode == LINK_CONNECT_FAILED_QUIETLY ? CPhoneSession::kEndNothing : session.EndOfFailure();
    }
    if (!calls.NeedsConnect()) return std::nullopt;
    const int nPort = session.FindPhonePort();
    if (nPort < 0) {
        picture.StopPicture();
        session.LoseConnection();
        return CPhoneSession::kEndNothing;
    }
    // What the phone is like is known already.
    std::int32_t nKind = 0;
    std::int32_t nMostFiles = 0;
    nCode = calls.ConnectToPhone(nPort, state, nKind, nMostFiles);
    if (nCode != LINK_OK) {
        picture.StopPicture();
        session.ReportLinkError(nCode);
        state.m_bConnected = false;
        session.Env().events.Tell(direction == EDirection::Take ? EEditEvent::TakeLineFailed
                                                                : EEditEvent::SendLineFailed);
        return CPhoneSession::kEndNothing;
    }
    state.m_bConnected = true;
    return std::nullopt;
}
