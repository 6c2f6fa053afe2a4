// The serial ports as the system lists them, what they are called, and what becomes of opening them.

#include "qt/QtSerialPorts.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <QSerialPort>
#include <filesystem>

#include "support/TempFolder.h"
#include "window/FolderPhone.h"

namespace {

class SerialPorts : public testing::Test {
  protected:
    SerialPorts() { SetPhoneFolder({}); }
    ~SerialPorts() override { SetPhoneFolder({}); }
};

}  // namespace

// In a steady order, and no adapter under a name by which it would be taken for the phone.
TEST_F(SerialPorts, AreCalledByWhatTheyAre) {
    const std::vector<CSerialDevice> arrDevices = {{"ttyUSB10", "FT232R USB UART"},
                                                   {"ttyACM0", "OrvoE CDMA USB Serial Port"},
                                                   {"ttyS0", ""},
                                                   {"rfcomm0", "Telephone"},
                                                   {"ttyUSB2", "USB-COM Adapter\n(COM9)"},
                                                   {"ttyUSB3", ""},
                                                   {"ttyACM1", "Orvo CDMA USB Modem"},
                                                   {"ttyS1", "PCI Card"}};
    std::string strNames;
    for (const CPortInfo& info : NamePorts(arrDevices)) strNames += info.m_strFriendlyName + "\n";
    EXPECT_EQ(strNames,
              "ttyS0 (COM1)\nPCI Card (COM2)\nUSB Serial Port, USB-Com Adapter (Com9) (COM35)\n"
              "USB Serial Port, ttyUSB3 (COM36)\n"
              "USB Serial Port, FT232R USB UART (COM43)\nOrvoE CDMA USB Serial Port (COM97)\n"
              "Orvo CDMA USB Modem (COM98)\nTelephone (COM161)\n");
}

TEST_F(SerialPorts, ThePhoneInAFolderIsThereAsLongAsItsFolderIs) {
    const CTempFolder folder;
    CQtSerialPorts ports;
    const auto fnIsThere = [&] {
        const std::vector<CPortInfo> arrPorts = ports.List().value_or(std::vector<CPortInfo>{});
        const bool bListed =
            !arrPorts.empty() && arrPorts.back().m_strFriendlyName == "OrvoE CDMA USB Serial Port (COM200)";
        EXPECT_EQ(ports.Probe(R"(\\.\COM200)"), bListed ? EPortProbe::Free : EPortProbe::Absent);
        return bListed;
    };
    EXPECT_FALSE(fnIsThere());
    folder.Write("phone", "a file");
    SetPhoneFolder(folder.Path("phone"));
    EXPECT_FALSE(fnIsThere());
    // A path that counts from where the program started stays good wherever its dialogs lead.
    const std::filesystem::path pathBefore = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    std::filesystem::create_directory("near");
    SetPhoneFolder("near");
    const CQtSerialPorts started;
    std::filesystem::current_path(pathBefore);
    EXPECT_TRUE(fnIsThere());
    std::filesystem::remove(folder.Path("near"));
    EXPECT_FALSE(fnIsThere());
}

// A terminal that hangs on nothing stands for a device.
TEST_F(SerialPorts, AProbeTellsFreeBusyAndAbsent) {
    const int nMaster = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(nMaster, 0);
    ASSERT_EQ(grantpt(nMaster) | unlockpt(nMaster), 0);
    const std::string strDevice = ptsname(nMaster);
    {
        QSerialPort other(QString::fromStdString(strDevice));
        ASSERT_TRUE(other.open(QIODevice::ReadWrite)) << other.errorString().toStdString();
        EXPECT_EQ(ProbeDevice(strDevice), EPortProbe::Busy);
    }
    EXPECT_EQ(ProbeDevice(strDevice), EPortProbe::Free);
    close(nMaster);
    EXPECT_EQ(ProbeDevice(strDevice), EPortProbe::Absent);
    const CTempFolder folder;
    folder.Write("plain", "no device");
    EXPECT_EQ(ProbeDevice(folder.Path("plain")), EPortProbe::Absent);
    CQtSerialPorts ports;
    for (const char* szName : {"COM150", "COM0", "COM-1", "COM", "", "LPT1", "COM1x", "\\\\.\\", "com200"})
        EXPECT_EQ(ports.Probe(szName), EPortProbe::Absent) << szName;
}
