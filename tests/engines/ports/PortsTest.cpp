#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "engines/ports/DeviceNumbers.h"
#include "engines/ports/PortSearch.h"

namespace {

using CNames = std::vector<std::string>;

// A machine with ports that are free, busy or, without a mark, absent; notes which names were opened.
struct CBench {
    std::map<std::string, EPortProbe> mapPorts;
    CNames arrOpened;

    CPortSearch Search(const CPortInfoArray& arrPorts, const std::optional<CNames>& realNames = {}) {
        const auto Probe = [this](const std::string& strName) {
            arrOpened.push_back(strName);
            const auto it = mapPorts.find(strName);
            return it == mapPorts.end() ? EPortProbe::Absent : it->second;
        };
        return SearchPhonePort(arrPorts, Probe, {"free", "busy"}, realNames);
    }
};

CPortInfoArray Friendly(const CNames& names) {
    CPortInfoArray arrPorts;
    for (const std::string& strName : names) arrPorts.push_back({{}, strName});
    return arrPorts;
}

TEST(PortSearch, AUsbPortThatOpensEndsIt) {
    CBench bench{{{"COM1", EPortProbe::Free}, {"COM7", EPortProbe::Free}}, {}};
    const CPortSearch search =
        bench.Search(Friendly({"Printer Port (LPT1)", "Communications Port (COM1)",
                               "OrvoE CDMA USB Serial Port (COM7)", "OrvoE CDMA USB Serial Port (COM8)"}));
    EXPECT_EQ(search.arrLines, (CNames{"", "COM1 : free", "", ""}));
    EXPECT_EQ(search.strUsbLine, "USB[COM7] : free");
    EXPECT_EQ(bench.arrOpened, (CNames{"COM1", "COM7"}));
    const CPhonePort port = ConcludePortSearch(search, {});
    EXPECT_TRUE(port.nPort == 7 && port.bUsb && port.bAskModem);
}

TEST(PortSearch, OtherwiseTheUserChooses) {
    CBench bench{{{"COM4", EPortProbe::Free}, {"COM7", EPortProbe::Busy}}, {}};
    const auto Choose = [&](const CPortInfoArray& arrPorts, std::optional<std::string> strChosen) {
        return ConcludePortSearch(bench.Search(arrPorts), [&](auto /*lines*/) { return strChosen; });
    };
    // An adapter is never taken unasked.
    CPhonePort port = Choose(Friendly({"USB Serial Port (COM4)"}), "COM12");
    EXPECT_TRUE(port.nPort == 12 && !port.bUsb && !port.bAskModem);
    const CPortInfoArray arrBusy = Friendly({"OrvoE CDMA USB Serial Port (COM7)", "Printer USB (LPT1)"});
    EXPECT_EQ(bench.Search(arrBusy).arrLines[0], "USB[COM7] : busy");
    // The last record counts for the modem, though it is passed over.
    port = Choose(arrBusy, "COM256");
    EXPECT_TRUE(port.nPort == 256 && !port.bUsb && port.bAskModem);
    port = Choose(arrBusy, std::nullopt);
    EXPECT_TRUE(port.nPort == kPortChoiceCancelled && !port.bAskModem);

    // Without a line nobody is asked.
    for (const CNames& names : {CNames{}, CNames{"Printer (LPT1)", "USB port (COM9)"}})
        EXPECT_EQ(ConcludePortSearch(bench.Search(Friendly(names)), {}).nPort, kNoPort);
}

TEST(PortSearch, WhatARecordIsAndWhatIsOpened) {
    const struct {
        CPortInfo port;
        std::string strOpened;  // empty: passed over
        bool bUsb;
    } arrCases[] = {
        {{"", "Port (COM9)"}, "COM9", false},
        {{"", "Port (COM12)"}, "\\\\.\\COM12", false},
        {{"", "VCOM (x) USB (COM3)"}, "\\\\.\\COM (x) USB (COM3", true},
        {{"COM5", "COM5"}, "", false},
        {{"COM5", "USB (COM)"}, "COM5", true},
        {{"", ") COM"}, "", false},
        {{"", "My Orvo CDMA USB Modem (COM3)"}, "", true},
        {{"", "Orvo CDMA USB Modem Diagnostic (COM3)"}, "COM3", true},
        {{"", "USB High Speed Serial (COM3)"}, "COM3", false},
        {{"", "OrvoE CDMA USB High Speed Serial (COM3)"}, "COM3", true},
        {{"USB_SERIAL", "OrvoE CDMA USB (COM)"}, "\\\\.\\USB_SERIAL", false},
    };
    for (const auto& [port, strOpened, bUsb] : arrCases) {
        CBench bench;
        EXPECT_EQ(bench.Search({port}).bUsbLast, bUsb) << port.m_strFriendlyName;
        EXPECT_EQ(bench.arrOpened, strOpened.empty() ? CNames{} : CNames{strOpened});
    }
}

TEST(PortSearch, OldestSystemsNameTheAdapter) {
    const CPortInfoArray arrPorts = {
        {"COM1", "Port (COM1)"}, {"", "Cable (COM2)"}, {"USB_SERIAL", "USB cable(COM)"}};
    CBench bench{{{"\\\\.\\COM11", EPortProbe::Free}}, {}};
    const CPortSearch search = bench.Search(arrPorts, CNames{"COM4", "COM1", "COM11", "COM2"});
    EXPECT_EQ(bench.arrOpened, (CNames{"COM1", "COM2", "\\\\.\\COM11"}));
    EXPECT_EQ(search.arrLines[2], "COM11 : free");
    EXPECT_FALSE(search.bUsbLast);
    bench.Search(arrPorts, CNames{"COM1", "COM2"});
    EXPECT_EQ(bench.arrOpened.back(), "\\\\.\\USB_SERIAL");

    EXPECT_EQ(RealPortNames(CNames{"LPT1", "cOm3", "COM12345", "COM1234", "COM0", "COM5"}),
              (CNames{"cOm3", "COM1234"}));
}

TEST(PortSearch, Numbers) {
    const std::map<int, CNames> mapTexts = {
        {12, {"USB[COM12] : 使用可能"}},
        {3, {"COM3", "COM3 : 使用可能", "COM3:4 : x", "COM 3x"}},
        {0, {"", "COM", "LPT1", "com3", "USB COM3", "] USB COM3", ": COM3"}},
        {INT32_MAX, {"COM99999999999999999999"}},
        {INT32_MIN, {"COM-99999999999999999999"}}};
    for (const auto& [nNumber, texts] : mapTexts)
        for (const std::string& strText : texts) EXPECT_EQ(ParsePortNumber(strText), nNumber) << strText;
    EXPECT_EQ(ModemPortOf("COM"), 0);
    EXPECT_EQ(ModemPortOf("COM5" + std::string(251, ' ')), 5);
    EXPECT_EQ(ModemPortOf("COM5" + std::string(252, ' ')), -1);
    EXPECT_EQ(ModemPortOf("com5"), -1);
}

TEST(PortListing, RegistryOfTheModem) {
    CRegistryKey machine;
    machine.Make("HARDWARE\\DEVICEMAP\\SERIALCOMM").arrValues = {
        {"\\Device\\Serial0", "COM1"}, {"\\Device\\ORVOSIMDM0", "COM6"}, {"\\Device\\ORVOSIMDM1", "COM8"}};
    EXPECT_TRUE(FindModemPort(machine, false) == 6 && FindModemPort(machine, true) == -1);
    machine.Make("Enum\\USB\\ORVOMODEM\\WDMMDM0").arrValues = {{"AttachedTo", "COM9"}};
    EXPECT_EQ(FindModemPort(machine, true), 9);
    machine.Make("Enum\\USB").bReadable = false;
    // The first one counts, even if it cannot be read.
    machine.Make("Hardware\\Devicemap\\serialcomm").arrValues[1].strData.reset();
    EXPECT_TRUE(FindModemPort(machine, false) == -1 && FindModemPort(machine, true) == -1);
}

TEST(PortListing, BySystem) {
    CPortMachine machine;
    machine.arrInterfaces = {{"A (COM1)", "A"}, {"B (COM2)", {}}, {{}, "C"}, {"", "D"}};
    EXPECT_EQ(ListPorts(machine).arrPorts, Friendly({"A (COM1)", ""}));
    machine.failure = {EListingCall::Interfaces, 0x1F};
    EXPECT_EQ(ListPorts(machine).strError, "SetupDiEnumDeviceInterfaces failed. (err=1f)");
    machine.version = {4, 2};
    ASSERT_EQ(ListPorts(machine).arrPorts.size(), 16U);
    EXPECT_EQ(EnumSerialPorts(machine).arrPorts[15], (CPortInfo{"COM16", "COM16"}));
    machine.failure = {EListingCall::Version, 5};
    EXPECT_EQ(ListPorts(machine).strError, "Could not get OS version. (err=5)");
}

TEST(PortListing, WalkOfTheOldestSystems) {
    CPortMachine machine;
    machine.version = {4, 1};
    const auto Add = [&](const std::string& strPath, std::vector<CRegistryValue> arrValues) {
        machine.machine.Make("Enum\\" + strPath).arrValues = std::move(arrValues);
    };
    Add("ACPI\\*PNP0501\\0", {{"PortName", "COM1"}, {"FRIENDLYNAME", "Port (COM1)"}, {"DeviceDesc", "Port"}});
    Add("ACPI\\*PNP0501\\1", {{"FRIENDLYNAME", "No port"}});
    Add("ACPI\\*PNP0502\\0", {{"PORTNAME", "COM2"}});
    Add("ORVOATCR\\any\\0", {{"PORTNAME", "COM3"}, {"FRIENDLYNAME", ""}, {"DeviceDesc", "Phone (COM3)"}});
    Add("USB\\ORVODIAG\\0", {{"PORTNAME", "COM4"}});
    Add("USB\\OTHER\\0", {{"PORTNAME", "COM5"}});
    Add("USB\\VID_0403&PID_6001\\0", {{"DeviceDesc", "USB cable"}});
    Add("USB\\VID_0403&PID_6001\\1", {{"DeviceDesc", "USB cord"}});
    Add("USBPORTS\\VID_0403&PID_6001\\0", {{"PORTNAME", "COM1"}, {"DeviceDesc", "Again (COM1)"}});
    const CPortInfoArray expected = {{"COM1", "Again (COM1)"},
                                     {"COM3", "Phone (COM3)"},
                                     {"COM4", ""},
                                     {"USB_SERIAL", "USB cable(COM)"},
                                     {"USB_SERIAL", "USB cord(COM)"}};
    EXPECT_EQ(ListPorts(machine).arrPorts, expected);
    EXPECT_EQ(EnumSerialPorts(machine).arrPorts[2], (CPortInfo{"COM4", "COM4"}));

    // A device that nobody asks may be closed.
    const std::pair<const char*, std::string> arrClosed[] = {
        {"Enum\\USB\\OTHER", ""},
        {"Enum\\USB\\ORVODIAG", "Could not read from HKLM\\Enum\\...\\ORVODIAG"},
        {"Enum\\ORVOATCR", "Could not read from HKLM\\Enum\\ORVOATCR"},
        {"Enum", "Could not read from HKLM\\Enum"}};
    for (const auto& [szKey, strError] : arrClosed) {
        machine.machine.Make(szKey).bReadable = false;
        EXPECT_EQ(ListPorts(machine).strError, strError);
        EXPECT_EQ(ListPorts(machine).arrPorts, strError.empty() ? expected : CPortInfoArray{});
    }
}

TEST(PortListing, TheRecordBehindAModemIsNotCompared) {
    const std::string strModem = "Orvo CDMA USB Modem";
    CPortInfoArray arrPorts = Friendly({strModem, strModem + " Diagnostic (COM5)", strModem, "Last (COM1)"});
    arrPorts.insert(arrPorts.end(), {{"COM8", ""}, {"COM9", strModem + " (VCOMM)"}});
    DropModems(arrPorts);
    EXPECT_EQ(arrPorts,
              (CPortInfoArray{{"", strModem + " Diagnostic (COM5)"}, {"", "Last (COM1)"}, {"COM8", "COM8"}}));
}

TEST(DeviceNumbers, EveryDeviceHasOneOfItsOwn) {
    int nDevices = 0;
    for (int n = -1; n <= 300; ++n) {
        const std::string strPath = DeviceOfPort(n);
        if (strPath.empty()) continue;
        ++nDevices;
        EXPECT_TRUE(n >= 1 && n <= 256 && n != kFolderPhonePort) << n;
        EXPECT_EQ(PortNumberOf(strPath.substr(5)), n) << strPath;
    }
    EXPECT_GT(nDevices, 200);
    // Numbers that people have written down.
    EXPECT_EQ(PortNumberOf("ttyS0"), 1);
    EXPECT_EQ(PortNumberOf("ttyUSB0"), 33);
    for (const char* szName :
         {"ttyS", "ttyS07", "ttyS32", "ttyS-1", "ttyS1x", "ttyS99999999999", "/dev/ttyS0"})
        EXPECT_FALSE(PortNumberOf(szName)) << szName;
}

}  // namespace
