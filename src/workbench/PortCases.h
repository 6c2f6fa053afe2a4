#pragma once

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "engines/ports/PortSearch.h"

// A word of a case file. One in quotes is a text, whatever it says.
struct CPortCaseWord {
    std::string strText;
    bool bQuoted = false;
};
using CPortCaseWords = std::vector<CPortCaseWord>;

// Carries out cases of the port search, one line at a time; `workbench --help` tells their form.
class CPortCases {
  public:
    explicit CPortCases(std::ostream& out) : m_out(out) {}
    // What is wrong with the line; empty if it was carried out.
    std::string Take(const std::string& strLine);

  private:
    struct CCommand;
    static const CCommand kCommands[];

    // What a line sets. False for words that are not its own.
    bool TakeCase(const CPortCaseWords& words);
    bool TakeSystem(const CPortCaseWords& words);
    bool TakeFailure(const CPortCaseWords& words);
    bool TakeInterface(const CPortCaseWords& words);
    bool TakeKey(const CPortCaseWords& words);
    bool TakeValue(const CPortCaseWords& words);
    bool TakePortName(const CPortCaseWords& words);
    bool TakeRecord(const CPortCaseWords& words);
    bool TakeProbe(const CPortCaseWords& words);
    bool TakeChoice(const CPortCaseWords& words);
    // What a line asks for, written behind it.
    bool RunStepOne(const CPortCaseWords& words);
    bool RunStepTwo(const CPortCaseWords& words);
    bool RunRealNames(const CPortCaseWords& words);
    bool RunSearch(const CPortCaseWords& words);
    bool RunFind(const CPortCaseWords& words);
    bool RunParse(const CPortCaseWords& words);
    bool RunModem(const CPortCaseWords& words);
    bool RunDevice(const CPortCaseWords& words);

    void PrintListing(const CPortListing& listing);
    void PrintRecords();
    CPortSearch SearchRecords();

    struct CState {
        CPortMachine machine;
        CPortInfoArray arrRecords;
        std::map<std::string, EPortProbe> mapProbes;  // by the name to open; others are absent
        std::optional<std::string> strChoice;         // in the port dialog; cancelled without
    };
    CState m_state;
    std::ostream& m_out;
};
