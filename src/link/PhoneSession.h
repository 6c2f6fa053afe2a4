#pragma once

#include <string>
#include <string_view>

#include "editor/EditEvents.h"
#include "editor/EditState.h"
#include "link/PhoneCalls.h"
#include "link/PhoneState.h"
#include "window/Dialog.h"
#include "window/FileDialogs.h"
#include "window/Folders.h"
#include "window/MessageBoxes.h"
#include "window/PopupMenus.h"
#include "window/SerialPorts.h"
#include "window/WaitCursor.h"

// Which way files go. The names of the keys run against everyday use; these do not.
enum class EDirection { Take, Send };

// What all steps of talking to the phone share: what is known of it, the library that reaches it, and the
// platform's topics.
class CPhoneSession {
  public:
    // All of these outlive the session.
    struct CEnvironment {
        const CEditState& state;
        CEditEvents& events;
        CMessageBoxes& boxes;
        CModalDialogs& modals;
        CTimers& timers;
        CWaitCursor& wait;
        CFileDialogs& files;
        CFolders& folders;
        CPopupMenus& menus;
        CLibraries& libraries;
        CSerialPorts& ports;
    };
    // The codes with which the dialogs of an exchange end.
    static constexpr int kEndNothing = 0;  // nothing more to do
    static constexpr int kEndDone = 1;
    static constexpr int kEndRestart = 4;  // the phone is about to restart and is to be waited for
    static constexpr int kEndResize = 5;   // the user wants the picture in one of the phone's sizes

    explicit CPhoneSession(const CEnvironment& env) : m_env(env) {}

    CPhoneState& State() { return m_state; }
    const CPhoneState& State() const { return m_state; }
    CPhoneCalls& Calls() { return m_calls; }
    const CEnvironment& Env() const { return m_env; }
    // The folder of the two data files.
    std::string InstallFolder() const;
    std::string DataFile(std::string_view strName) const;

    // Shows what a code of the library means, if it means anything; most codes then end the connection.
    void ReportLinkError(int nCode);
    // The search for the phone's line: its number, or below 0 if there is none or if the user chose none.
    // Sets the USB flag, and for a phone on USB the modem's number.
    int FindPhonePort();
    // A phone whose facts are in User.Dat; they become the state's.
    bool ReadKnownPhone(std::uint32_t nIdentity);
    void RememberPhone();
    // At the head of a take or send: the phone of the last connect answers. False behind a message.
    bool CheckPhone();

    bool Restarts() const { return m_state.m_bNoRestart == 0; }
    // The end code of a failed step: a phone that restarts is waited for.
    int EndOfFailure() const { return Restarts() ? kEndRestart : kEndNothing; }
    // The text, and for a phone that restarts what the user is to do, behind the piece between.
    std::string WithRestart(std::string strText, const char* szBetween = "\n\n") const;
    EBoxAnswer Show(std::string strText, const char* szTitle, EBoxIcon icon = EBoxIcon::None,
                    EBoxButtons buttons = EBoxButtons::Ok) const;
    // The phone is not connected any more, and the keys say so.
    void LoseConnection();

  private:
    CEnvironment m_env;
    CPhoneState m_state;
    CPhoneCalls m_calls;
};

// Keeps the phone in the exchange as long as it lives, since the program waits for its user.
class CIdleTraffic {
  public:
    explicit CIdleTraffic(const CPhoneCalls& calls) : m_calls(calls) {
        static_cast<void>(m_calls.SendDummyPacket());
    }
    ~CIdleTraffic() { m_calls.StopDummyPacket(); }
    CIdleTraffic(const CIdleTraffic&) = delete;
    CIdleTraffic& operator=(const CIdleTraffic&) = delete;

  private:
    const CPhoneCalls& m_calls;
};
