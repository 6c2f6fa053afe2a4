#include "link/SendFiles.h"

#include <algorithm>
#include <span>

#include "engines/pack/PhoneJpeg.h"
#include "engines/pack/PhoneSizes.h"
#include "image/JpegCodec.h"
#include "link/Format.h"
#include "link/SendTemporary.h"
#include "resources/PhoneTexts.h"
#include "resources/Texts.h"

namespace {

// One picture on its way. What goes wrong has been told when a step is false.
class CSender {
  public:
    CSender(CPhoneSession& session, CTransferDlg& dialog, const CSend& send)
        : m_session(session),
          m_dialog(dialog),
          m_send(send),
          m_temporary(session.Env().folders.CurrentFolder(), session.Env().folders.Separator()) {}

    int Run() {
        if (!(m_send.arrFiles.empty() ? SendPicture() : SendList())) return CPhoneSession::kEndNothing;
        m_dialog.ShowDone();
        const CIdleTraffic traffic(m_session.Calls());
        m_session.Show(m_session.WithRestart(kTextSent), kTitleSend);
        return CPhoneSession::kEndDone;
    }

  private:
    bool SendPicture() {
        return SendOne(m_send.image.Pixels(), m_send.strName,
                       [&] { m_session.ReportLinkError(LINK_PHONE_FULL); });
    }

    bool SendList() {
        const auto nFiles = static_cast<int>(m_send.arrFiles.size());
        for (int i = 0; i < nFiles; ++i) {
            m_dialog.TellProgress(i + 1, nFiles);
            const CSendFile& file = m_send.arrFiles[static_cast<std::size_t>(i)];
            const std::string strPath = PathOf(file, m_session.Env().folders.Separator());
            const CxImage image(strPath, FindImageTypeOfName(strPath));
            if (!image.IsValid())
                return Stop([&] { m_session.Show(kTextOpenFailed, kTitleOpenFailed, EBoxIcon::Stop); });
            // Tells which files did not get through.
            const auto tellFull = [&] {
                m_session.Show(Format(kTextPhoneFullFrom, file.m_strName.c_str(),
                                      m_send.arrFiles.back().m_strName.c_str()),
                               kTitleSend);
            };
            if (!SendOne(image.Pixels(), file.m_strName, tellFull)) return false;
        }
        return true;
    }

    template <class TTell>
    bool Stop(TTell tell) {
        m_dialog.StopPicture();
        tell();
        return false;
    }
    bool Fail(int nCode) {
        return Stop([&] { m_session.ReportLinkError(nCode); });
    }

    template <class TTell>
    bool SendOne(const CPixels& pixels, const std::string& strName, TTell tellFull) {
        if (!MakeFile(pixels))
            return Stop([&] { m_session.Show(kTextNoMemory, kTextProgram, EBoxIcon::Exclamation); });
        const bool bWritten = m_temporary.Write(m_packed);
        std::uint32_t nFree = 0;
        if (const int nCode = m_session.Calls().GetAvailableMemory(nFree); nCode != LINK_OK)
            return Fail(nCode);
        if (!bWritten) return Stop([&] { m_session.Show(kTextFileOpenFailed, kTitleFileOpenFailed); });
        if (m_packed.size() > nFree) return Stop(tellFull);
        const int nCode = m_session.Calls().Transfer(m_session.State(), m_temporary.Path(), strName);
        m_temporary.Remove();
        return nCode == LINK_OK || Fail(nCode);
    }

    // The picture in the phone's form, its thumbnail inside. False if memory is short.
    bool MakeFile(const CPixels& pixels) {
        CxImage thumb;
        if (!MakeThumb(pixels, thumb)) return false;
        m_picture.clear();
        return EncodeJpeg(pixels, {}, m_picture) && EncodeThumb(thumb) &&
               PackPhoneJpeg(m_picture, m_thumb, m_packed);
    }

    // A thumbnail that does not go into its segment, as a phone of odd sizes may want it, is made smaller.
    bool EncodeThumb(CxImage& thumb) {
        for (;;) {
            m_thumb.clear();
            if (!EncodeJpeg(thumb.Pixels(), {}, m_thumb)) return false;
            if (m_thumb.size() <= kMostThumbBytes) return true;
            if (!thumb.Resample(std::max(1, thumb.GetWidth() / 2), std::max(1, thumb.GetHeight() / 2)))
                return false;
        }
    }

    bool MakeThumb(const CPixels& pixels, CxImage& thumb) const {
        const CPhoneState& state = m_session.State();
        const CSize sizeBox = ThumbBox({state.m_nThumbWidth, state.m_nThumbHeight});
        const CThumbPlan plan = PlanThumb({pixels.Width(), pixels.Height()}, sizeBox, state.m_arrPhoneSizes);
        if (!thumb.CreateFromHBITMAP(pixels)) return false;
        if (plan.bTwoStages && !thumb.Resample(kLargeThumb.cx, kLargeThumb.cy)) return false;
        return thumb.Resample(plan.size.cx, plan.size.cy);
    }

    CPhoneSession& m_session;
    CTransferDlg& m_dialog;
    const CSend& m_send;
    CSendTemporary m_temporary;
    // Kept from picture to picture, so that the memory for them is taken once.
    std::vector<std::uint8_t> m_picture;
    std::vector<std::uint8_t> m_thumb;
    std::vector<std::uint8_t> m_packed;
};

}  // namespace

std::string PathOf(const CSendFile& file, char cSeparator) {
    const bool bClosed = !file.m_strFolder.empty() && file.m_strFolder.back() == cSeparator;
    return bClosed ? file.m_strFolder + file.m_strName : file.m_strFolder + cSeparator + file.m_strName;
}

int DoSendFiles(CPhoneSession& session, CTransferDlg& dialog, const CSend& send) {
    return CSender(session, dialog, send).Run();
}
