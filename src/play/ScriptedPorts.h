#pragma once

#include <string>
#include <utility>
#include <vector>

#include "window/SerialPorts.h"

// The serial ports that a script gives the machine, none at first, in the order in which they came; behind
// them the phone in a folder, once it is plugged in.
class CScriptedPorts : public CSerialPorts {
  public:
    CScriptedPorts();
    // The environment names again the folder that it named before.
    ~CScriptedPorts() override;
    CScriptedPorts(const CScriptedPorts&) = delete;
    CScriptedPorts& operator=(const CScriptedPorts&) = delete;

    // A port of that friendly name, and what becomes of opening it. One that is there keeps its place.
    void SetPort(const std::string& strFriendlyName, EPortProbe probe);
    // False if there is no such port.
    [[nodiscard]] bool RemovePort(const std::string& strFriendlyName);
    void SetModemEntry(std::optional<std::string> strData) { m_strModem = std::move(strData); }
    // Whole, or empty for none.
    void PlugFolderPhone(const std::string& strFolder);
    // As on a system that cannot list its ports.
    void RefuseList(bool bRefuse) { m_bRefuseList = bRefuse; }
    // The names that the program has opened, as it called them.
    const std::vector<std::string>& Probed() const { return m_arrProbed; }

    std::optional<std::vector<CPortInfo>> List() override;
    EPortProbe Probe(const std::string& strName) override;
    std::optional<std::string> ModemEntry() override { return m_strModem; }

  private:
    std::vector<std::pair<std::string, EPortProbe>>::iterator FindPort(const std::string& strFriendlyName);

    std::vector<std::pair<std::string, EPortProbe>> m_arrPorts;  // by friendly names
    std::optional<std::string> m_strModem;
    std::vector<std::string> m_arrProbed;
    std::string m_strFolderBefore;
    bool m_bFolderPhone = false;
    bool m_bRefuseList = false;
};
