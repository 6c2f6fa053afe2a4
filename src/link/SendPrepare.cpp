#include <algorithm>
#include <limits>

#include "engines/pack/PhoneSizes.h"
#include "link/Format.h"
#include "link/LinkSteps.h"
#include "resources/PhoneTexts.h"
#include "resources/Texts.h"

namespace {

// The items that share the phone's limit.
int CountFiles(CPhoneSession& session, std::int64_t& nStored) {
    std::int32_t nPhotos = 0;
    int nCode = session.Calls().GetTotalFiles(LINK_ITEM_PHOTO, nPhotos);
    std::int32_t nOthers = 0;
    constexpr std::int32_t kPhotosOnly = 6;
    if (nCode == LINK_OK && session.State().m_nPhoneKind != kPhotosOnly)
        nCode = session.Calls().GetTotalFiles(LINK_ITEM_OTHER, nOthers);
    nStored = std::int64_t{nPhotos} + nOthers;
    return nCode;
}

int TellLimit(CPhoneSession& session, const CSendPlan& plan) {
    const std::string strText = Format(kTextTooManyFiles, session.State().m_nMaxFiles);
    session.Show(session.WithRestart(strText, plan.bList ? ". \n\n" : " \n\n"), kTitleNotice,
                 EBoxIcon::Exclamation);
    if (!session.Restarts()) session.Calls().DisconnectToPhone();
    return session.EndOfFailure();
}

bool AskToResize(CPhoneSession& session, const std::string& strText) {
    return session.Show(strText, kTitlePhoneSize, EBoxIcon::Exclamation, EBoxButtons::YesNo) ==
           EBoxAnswer::Yes;
}

// A picture larger than the phone takes goes in one of its sizes or not at all.
int AskAboutLarge(CPhoneSession& session) {
    const CSize sizeLargest = LargestPhoneSize(session.State().m_arrPhoneSizes);
    {
        const CIdleTraffic traffic(session.Calls());
        if (AskToResize(session, Format(kTextShrink, sizeLargest.cx, sizeLargest.cy)))
            return CPhoneSession::kEndResize;
        if (session.Restarts()) session.Show(kTextRestart, kTitleSend);
    }
    if (!session.Restarts()) session.Calls().DisconnectToPhone();
    return session.EndOfFailure();
}

// One that only has none of the phone's sizes may go as it is.
int AskAboutOther(CPhoneSession& session) {
    const CIdleTraffic traffic(session.Calls());
    return AskToResize(session, kTextFitExactly) ? CPhoneSession::kEndResize : CPhoneSession::kEndDone;
}

}  // namespace

int DoSendPrepare(CPhoneSession& session, CRunningPicture& picture, const CSendPlan& plan) {
    if (const auto nEnd = OpenLink(session, EDirection::Send, picture)) return *nEnd;
    const CPhoneState& state = session.State();
    session.Calls().FindForSend();
    std::int64_t nStored = 0;
    const int nCode = CountFiles(session, nStored);
    picture.StopPicture();
    if (nCode != LINK_OK) {
        session.ReportLinkError(nCode);
        session.State().m_bConnected = false;
        const bool bQuiet = nCode == LINK_CONNECT_FAILED_QUIETLY || !session.Restarts();
        if (bQuiet) session.Calls().DisconnectToPhone();
        return bQuiet ? CPhoneSession::kEndNothing : CPhoneSession::kEndRestart;
    }
    if (IsAboveFileLimit(nStored, plan.nFiles, state.m_nMaxFiles)) return TellLimit(session, plan);
    if (plan.bList || IsPhoneSize(plan.sizeWanted, state.m_arrPhoneSizes)) return CPhoneSession::kEndDone;
    return FitsPhone(plan.sizePicture, state.m_arrPhoneSizes) ? AskAboutOther(session)
                                                              : AskAboutLarge(session);
}
