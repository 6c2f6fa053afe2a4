#include "engines/pack/PhoneSizes.h"
#include "link/LinkSteps.h"
#include "resources/PhoneTexts.h"

namespace {

// No phone has more; a library that tells more has lost its way.
constexpr std::int32_t kMostSizes = 1000;

int Fail(CPhoneSession& session, int nEnd = CPhoneSession::kEndNothing) {
    session.State().m_bConnected = false;
    return nEnd;
}

bool Report(CPhoneSession& session, CRunningPicture& picture, int nCode) {
    picture.StopPicture();
    session.ReportLinkError(nCode);
    return false;
}

// False if the library failed, which has been told.
bool AskSizes(CPhoneSession& session, CRunningPicture& picture) {
    CPhoneState& state = session.State();
    auto nCount = static_cast<std::int32_t>(state.m_arrPhoneSizes.size());
    int nCode = session.Calls().GetNumResolution(nCount);
    // Of its codes only these tell of a failure.
    if (nCode == LINK_CONNECT_FAILED || nCode == LINK_PHONE_LOCKED) return Report(session, picture, nCode);
    if (nCount > kMostSizes) return Report(session, picture, LINK_SIZES_FAILED);
    state.m_arrPhoneSizes.clear();
    for (int i = 0; i < nCount; ++i) {
        std::int32_t nWidth = 0;
        std::int32_t nHeight = 0;
        nCode = session.Calls().GetResolution(i, nWidth, nHeight);
        if (nCode != LINK_OK) {
            session.ReportLinkError(nCode);
            state.m_arrPhoneSizes.clear();
            picture.StopPicture();
            return false;
        }
        state.m_arrPhoneSizes.push_back({nWidth, nHeight});
    }
    state.m_nThumbWidth = kLargeThumb.cx;
    state.m_nThumbHeight = kLargeThumb.cy;
    nCode = session.Calls().GetThumbnailResolution(state);
    return nCode == LINK_OK || Report(session, picture, nCode);
}

int LearnPhone(CPhoneSession& session, CRunningPicture& picture) {
    CPhoneState& state = session.State();
    std::int32_t nKind = state.m_nPhoneKind;
    state.m_nMaxFiles = 0;
    const int nCode = session.Calls().ConnectToPhone(state.m_nPort, state, nKind, state.m_nMaxFiles);
    if (nCode != LINK_OK) {
        picture.StopPicture();
        session.ReportLinkError(nCode);
        return Fail(session, nCode == LINK_CONNECT_FAILED_QUIETLY ? CPhoneSession::kEndNothing
                                                                  : CPhoneSession::kEndRestart);
    }
    state.m_bConnected = true;
    state.m_nPhoneKind = nKind;
    state.m_bPhotoPhone = nKind != 0 && nKind % 2 == 0;
    if (state.m_nMaxFiles == 0) state.m_nMaxFiles = -1;
    if (!state.m_bPhotoPhone) {
        state.m_arrPhoneSizes.clear();
    } else {
        if (!AskSizes(session, picture)) {
            session.Calls().DisconnectToPhone();
            return CPhoneSession::kEndNothing;
        }
        session.RememberPhone();
    }
    picture.StopPicture();
    session.Show(session.WithRestart(kTextConnected), kTitleExchange);
    if (session.Restarts()) return CPhoneSession::kEndRestart;
    session.Calls().DisconnectToPhone();
    return CPhoneSession::kEndDone;
}

}  // namespace

std::optional<int> DoConnect(CPhoneSession& session, CRunningPicture& picture) {
    CPhoneState& state = session.State();
    const int nPort = session.FindPhonePort();
    if (nPort < 0) {
        picture.StopPicture();
        return Fail(session);
    }
    state.m_nPort = nPort;
    if (!session.Calls().Load(session.Env().libraries)) {
        picture.StopPicture();
        session.Show(kTextNoPhoneLibrary, kTitleCheckLibrary, EBoxIcon::Stop);
        return Fail(session);
    }
    session.Calls().FindForConnect();
    // A failure shows in the next call.
    static_cast<void>(session.Calls().GetPhoneInfo(state, state.m_nPhoneId));
    if (!session.ReadKnownPhone(state.m_nPhoneId)) return LearnPhone(session, picture);
    state.m_bPhotoPhone = true;
    state.m_bConnected = true;
    return std::nullopt;
}
