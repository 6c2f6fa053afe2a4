#include "phone/PhoneFaults.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

std::optional<int> CPhoneFaults::Count(const std::string& strFolder, const std::string& strFunction) {
    std::ifstream file(std::filesystem::path(strFolder) / "faults");
    const std::string strText{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (strText != m_strText) Read(strText);
    const int nCall = ++m_mapCalls[strFunction];
    for (const CFault& fault : m_arrFaults)
        if (fault.strFunction == strFunction && fault.nCall == nCall) return fault.nCode;
    return std::nullopt;
}

std::string CPhoneFaults::TakeError() {
    return std::exchange(m_strError, {});
}

void CPhoneFaults::Read(const std::string& strText) {
    m_strText = strText;
    m_arrFaults.clear();
    m_mapCalls.clear();
    m_strError.clear();
    std::istringstream text(strText);
    for (std::string strLine; std::getline(text, strLine);) {
        std::istringstream line(strLine);
        CFault fault;
        std::string strMore;
        if (!(line >> fault.strFunction) || fault.strFunction.starts_with('#')) continue;
        if (line >> fault.nCall >> fault.nCode && !(line >> strMore)) {
            m_arrFaults.push_back(fault);
        } else {
            m_strError = strLine;
        }
    }
}
