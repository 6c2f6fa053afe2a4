#pragma once

// The phone: connecting, sending and taking.
class CPhoneLink {
  public:
    bool IsConnected() const { return m_bConnected; }
    // A send that waits for files from the list is off.
    void ForgetSend() { m_bSendReady = false; }

    void OnConnect() {}
    void OnSend() {}
    void OnTake() {}

  private:
    bool m_bConnected = false;
    bool m_bSendReady = false;
};
