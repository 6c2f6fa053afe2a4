#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "window/Libraries.h"

// Writes down the calls that the program makes into a phone library, one line a call:
//   GetPhoneInfo 200 -1 1 3000 = 0 305419896
// with what is handed in, the code behind "=" where there is one, and the out-values as they are when the
// function has returned. Texts stand in quotes.
//
// The library's functions know no object, so there is one trace at a time: the one that wrapped last.
class CPhoneTrace {
  public:
    ~CPhoneTrace();
    // The library, with its functions listened to. What it lacks is lacking still.
    std::unique_ptr<CLibrary> Wrap(std::unique_ptr<CLibrary> pLibrary);
    // Since the last time.
    std::vector<std::string> Take() { return std::exchange(m_arrCalls, {}); }
    void Note(std::string strCall);

  private:
    std::vector<std::string> m_arrCalls;
};
