#pragma once

#include <vector>

#include "image/Geometry.h"

// The phone: connecting, sending and taking.
class CPhoneLink {
  public:
    bool IsConnected() const { return m_bConnected; }
    // The sizes that the phone can show; none until a phone has been connected.
    const std::vector<CSize>& PhoneSizes() const { return m_arrPhoneSizes; }
    // A send that waits for files from the list is off.
    void ForgetSend() { m_bSendReady = false; }

    void OnConnect() {}
    void OnSend() {}
    void OnTake() {}

  private:
    bool m_bConnected = false;
    std::vector<CSize> m_arrPhoneSizes;
    bool m_bSendReady = false;
};
