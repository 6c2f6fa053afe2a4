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
        {{"", "Port (COM0)"}, "\\\\.\\COM0", false},
        {{"", "VCOM (x) USB (COM3)"}, "\\\\.\\COM (x) USB (COM3", true},
        {{"COM5", "COM5"}, "", false},
        {{"COM5", "USB (COM)"}, "COM5", true},
        {{"com5", "Port (COM)"}, "\\\\.\\com5", false},
        {{"", ") COM"}, "", false},
        {{"", "usb Port (COM3)"}, "COM3", false},
        {{"", "Orvo CDMA USB Modem (VCOMM)"}, "", true},
        {{"", "My Orvo CDMA USB Modem (COM3)"}, "", true},
        {{"", "Orvo CDMA USB Modem Diagnostic (COM3)"}, "COM3", true},
        {{"", "USB High Speed Serial (COM3)"}, "COM3", false},
        {{"", "OrvoE CDMA USB High Speed Serial (COM3)"}, "COM3", true},
        {{"USB_SERIAL", "OrvoE CDMA USB (COM)"}, "\\\\.\\USB_SERIAL", false},
    };
    for (const auto& one : arrCases) {
        CBench bench;
        EXPECT_EQ(bench.Search({one.port}).bUsbLast, one.bUsb) << one.port.m_strFriendlyName;
        EXPECT_EQ(bench.arrOpened, one.strOpened.empty() ? CNames{} : CNames{one.strOpened});
    }
}

TEST(PortSearch, OldestSystemsNameTheAdapter) {
    const CPortInfoArray arrPorts = {
        {"COM1", "Port (COM1)"}, {"", "Cable (COM2)"}, {"USB_SERIAL", "USB cable(COM)"}};
    CBench bench{{{"\\\\.\\COM11", EPortProbe::Free}}, {}};
    CPortSearch search = bench.Search(arrPorts, CNames{"COM4", "COM1", "COM11", "COM2"});
    EXPECT_EQ(bench.arrOpened, (CNames{"COM1", "COM2", "\\\\.\\COM11"}));
    EXPECT_EQ(search.arrLines[2], "COM11 : free");
    EXPECT_FALSE(search.bUsbLast);
    bench.arrOpened.clear();
    search = bench.Search(arrPorts, CNames{"COM1", "COM2"});
    EXPECT_EQ(bench.arrOpened.back(), "\\\\.\\USB_SERIAL");

    EXPECT_EQ(RealPortNames(CNames{"LPT1", "cOm3", "COM12345", "COM1234", "COM0", "COM5"}),
              (CNames{"cOm3", "COM1234"}));
}

TEST(PortSearch, Numbers) {
    const std::pair<const char*, int> arrTexts[] = {{"USB[COM12] : 使用可能", 12},
                                                    {"COM3", 3},
                                                    {"COM3 : 使用可能", 3},
                                                    {"", 0},
                                                    {"COM", 0},
                                                    {"LPT1", 0},
                                                    {"USB COM3", 0},
                                                    {"] USB COM3", 0},
                                                    {": COM3", 0},
                                                    {"COM 7x", 7},
                                                    {"COM3:4 : x", 3},
                                                    {"com3", 0},
                                                    {"COM99999999999999999999", INT32_MAX},
                                                    {"COM-99999999999999999999", INT32_MIN}};
    for (const auto& [szText, nNumber] : arrTexts) EXPECT_EQ(ParsePortNumber(szText), nNumber) << szText;

    EXPECT_EQ(ModemPortOf("COM5"), 5);
    EXPECT_EQ(ModemPortOf("COM"), 0);
    EXPECT_EQ(ModemPortOf("COM5" + std::string(251, ' ')), 5);
    for (const auto& strEntry :
         {std::optional<std::string>(), {"com5"}, {""}, {"COM5" + std::string(252, ' ')}})
        EXPECT_EQ(ModemPortOf(strEntry), -1);
}

TEST(PortListing, RegistryOfTheModem) {
    CRegistryKey machine;
    EXPECT_EQ(FindModemPort(machine, false), -1);
    machine.Make("HARDWARE\\DEVICEMAP\\SERIALCOMM").arrValues = {
        {"\\Device\\Serial0", "COM1"}, {"\\Device\\ORVOSIMDM0", "COM6"}, {"\\Device\\ORVOSIMDM1", "COM8"}};
    EXPECT_EQ(FindModemPort(machine, false), 6);
    EXPECT_EQ(FindModemPort(machine, true), -1);
    machine.Make("Enum\\USB\\ORVOMODEM\\WDMMDM0").arrValues = {{"AttachedTo", "COM9"}};
    EXPECT_EQ(FindModemPort(machine, true), 9);
    machine.Make("Enum\\USB").bReadable = false;
    EXPECT_EQ(FindModemPort(machine, true), -1);
    // The first one counts, even if it cannot be read.
    machine.Make("Hardware\\Devicemap\\serialcomm").arrValues[1].strData.reset();
    EXPECT_EQ(FindModemPort(machine, false), -1);
}

TEST(PortListing, BySystem) {
    CPortMachine machine;
    machine.arrInterfaces = {{"A (COM1)", "A"}, {"B (COM2)", {}}, {{}, "C"}, {"", "D"}};
    EXPECT_EQ(ListPorts(machine).arrPorts, Friendly({"A (COM1)", ""}));
    machine.failure = {EListingCall::Interfaces, 0x1F};
    EXPECT_EQ(ListPorts(machine).strError, "SetupDiEnumDeviceInterfaces failed. (err=1f)");
    machine.version = {4, 2};
    CPortListing listing = EnumSerialPorts(machine);
    ASSERT_EQ(listing.arrPorts.size(), 16U);
    EXPECT_EQ(listing.arrPorts[15], (CPortInfo{"COM16", "COM16"}));
    machine.failure = {EListingCall::Version, 5};
    EXPECT_EQ(ListPorts(machine).strError, "Could not get OS version. (err=5)");
    machine.failure.reset();
    machine.version = {4, 1};
    EXPECT_EQ(ListPorts(machine).strError, "Could not read from HKLM\\Enum");
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
    Add("USB\\VID_0403&PID_6001\\2", {{"PORTNAME", "COM6"}});
    Add("USBPORTS\\VID_0403&PID_6001\\0", {{"PORTNAME", "COM1"}, {"DeviceDesc", "Again (COM1)"}});
    const CPortInfoArray expected = {{"COM1", "Again (COM1)"},
                                     {"COM3", "Phone (COM3)"},
                                     {"COM4", ""},
                                     {"USB_SERIAL", "USB cable(COM)"},
                                     {"USB_SERIAL", "USB cord(COM)"}};
    EXPECT_EQ(ListPorts(machine).arrPorts, expected);
    EXPECT_EQ(EnumSerialPorts(machine).arrPorts[2], (CPortInfo{"COM4", "COM4"}));

    // A device that nobody asks may be closed.
    const std::pair<const char*, const char*> arrClosed[] = {
        {"USB\\OTHER", ""}, {"USB\\ORVODIAG", "...\\ORVODIAG"}, {"ORVOATCR", "ORVOATCR"}, {"", ""}};
    for (const auto& [szKey, szTold] : arrClosed) {
        machine.machine.Make(*szKey ? "Enum\\" + std::string(szKey) : "Enum").bReadable = false;
        const CPortListing listing = ListPorts(machine);
        if (listing.strError.empty()) {
            EXPECT_EQ(listing.arrPorts, expected);
            EXPECT_STREQ(szKey, "USB\\OTHER");
        } else {
            EXPECT_EQ(listing.strError,
                      std::string("Could not read from HKLM\\Enum") + (*szTold ? "\\" : "") + szTold);
            EXPECT_TRUE(listing.arrPorts.empty());
        }
    }
}

TEST(PortListing, TheRecordBehindAModemIsNotCompared) {
    const std::string strModem = "Orvo CDMA USB Modem";
    CPortInfoArray arrPorts = Friendly({strModem, strModem + " Diagnostic (COM5)", strModem, "Last (COM1)"});
    arrPorts.push_back({"COM8", ""});
    arrPorts.push_back({"COM9", strModem + " (VCOMM)"});
    DropModems(arrPorts);
    EXPECT_EQ(arrPorts,
              (CPortInfoArray{{"", strModem + " Diagnostic (COM5)"}, {"", "Last (COM1)"}, {"COM8", "COM8"}}));
    arrPorts = {{"COM1", strModem}, {"COM2", ""}};
    DropModems(arrPorts);
    EXPECT_EQ(arrPorts, (CPortInfoArray{{"COM2", "COM2"}}));
}

TEST(DeviceNumbers, EveryDeviceHasOneOfItsOwn) {
    int nDevices = 0;
    for (int n = -1; n <= 300; ++n) {
        const std::string strPath = DeviceOfPort(n);
        if (strPath.empty()) continue;
        ++nDevices;
        EXPECT_TRUE(n >= 1 && n <= 256 && n != kFolderPhonePort) << n;
        ASSERT_TRUE(strPath.starts_with("/dev/"));
        EXPECT_EQ(PortNumberOf(strPath.substr(5)), n) << strPath;
    }
    EXPECT_GT(nDevices, 200);
    // Numbers that people have written down.
    EXPECT_EQ(PortNumberOf("ttyS0"), 1);
    EXPECT_EQ(PortNumberOf("ttyUSB0"), 33);
    EXPECT_EQ(PortNumberOf("ttyACM1"), 98);
    EXPECT_EQ(PortNumberOf("rfcomm0"), 161);
    for (const char* szName :
         {"ttyS", "ttyS07", "ttyS32", "ttyS-1", "ttyS1x", "ttyS99999999999", "/dev/ttyS0", "tty1", ""})
        EXPECT_FALSE(PortNumberOf(szName)) << szName;
}

}  // namespace
