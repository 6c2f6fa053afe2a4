#pragma once

#include <span>
#include <string>
#include <vector>

// Calls functions of a phone library by their names, and puts what comes back into text.

// A function with its words, those of its arguments that the caller gives, in their order.
struct CLibraryCall {
    const char* szName;
    const char* szWords;
};
std::span<const CLibraryCall> AllCalls();

struct CCallResult {
    bool bDone = false;
    bool bWrongCall =
        false;  // if it is not done: the words are wrong; else the library or the function is missing
    std::string strText;  // "GetPhoneInfo 0 identity 17", or what is wrong
};

class CCalledLibrary {
  public:
    // Nothing is closed again: the program ends soon.
    explicit CCalledLibrary(const std::string& strPath);
    // What is wrong with the library; empty if nothing is.
    const std::string& Error() const { return m_strError; }
    // The function's name and its words.
    CCallResult Call(std::span<const std::string> words) const;

  private:
    void* m_pLibrary = nullptr;
    std::string m_strError;
};
