#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

// The failures that somebody has ordered: lines "FUNCTION N CODE" in the file faults of the phone's folder,
// by which the N-th call of the function, from 1, is answered by the code and does nothing else. Calls are
// counted from the first one on, and anew when the file has changed.
class CPhoneFaults {
  public:
    // Counts a call. The code that has been ordered for it, or nothing.
    std::optional<int> Count(const std::string& strFolder, const std::string& strFunction);
    // What a line of the file could not be understood; empty if all are, and after it has been asked for.
    std::string TakeError();

  private:
    struct CFault {
        std::string strFunction;
        int nCall = 0;
        int nCode = 0;
    };
    void Read(const std::string& strText);

    std::string m_strText;
    std::vector<CFault> m_arrFaults;
    std::map<std::string, int> m_mapCalls;
    std::string m_strError;
};
