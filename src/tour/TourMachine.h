#pragma once

#include <QImage>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "window/Libraries.h"
#include "window/SerialPorts.h"

// A phone in a folder of the walk's own.
struct CTourPhone {
    QString strFolder;

    // A fact as fotarium-phone knows it, with its value.
    bool SetFact(const QString& strFact) const;
    // A failure that is ordered: "FUNCTION N CODE". It takes the place of the one before.
    bool SetFault(const QString& strFault) const;
    // Whether it has a file of that name in inner memory.
    bool Has(const QString& strName) const;
};

// The machine that the walk runs on, as far as a phone goes: the same ports wherever it runs, and a look at
// the screen whenever the phone's library is about to move a file. The program's thread stands still then, so
// nobody else could look.
class CTourMachine : public CSerialPorts, public CLibraries {
  public:
    // Those of the real machine outlive this one. Of its ports it has only the phone in a folder.
    CTourMachine(CSerialPorts& ports, CLibraries& libraries) : m_ports(ports), m_libraries(libraries) {}
    ~CTourMachine() override;

    void PlugIn(const CTourPhone& phone);
    void PlugOut();
    // A port that is free and no phone's; an empty name for none.
    void SetPlainPort(const std::string& strFriendlyName) { m_strPlainPort = strFriendlyName; }

    // The screen at the beginning of each move of a file since the last time that they were forgotten.
    const std::vector<QImage>& Moves() const { return m_arrMoves; }
    void ForgetMoves() { m_arrMoves.clear(); }
    void OnMove();

    std::optional<std::vector<CPortInfo>> List() override;
    EPortProbe Probe(const std::string& strName) override;
    std::optional<std::string> ModemEntry() override { return m_ports.ModemEntry(); }
    std::unique_ptr<CLibrary> Load(const std::string& strFileName) override;

  private:
    CSerialPorts& m_ports;
    CLibraries& m_libraries;
    std::string m_strPlainPort;
    std::vector<QImage> m_arrMoves;
};
