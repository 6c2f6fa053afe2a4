#include <gtest/gtest.h>

#include <sstream>

#include "support/TempFolder.h"
#include "workbench/Workbench.h"

namespace {

class PhoneVerbs : public testing::Test {
  protected:
    int Run(const CWorkWords& arrWords) {
        std::ostringstream out, errors;
        const int nStatus = RunWorkbench(arrWords, out, errors);
        m_strOut = out.str() + errors.str();
        return nStatus;
    }
    CTempFolder m_folder;
    std::string m_strOut;
};

TEST_F(PhoneVerbs, Pack) {
    const std::string strPicture = m_folder.Write("picture", std::string(20, 'x') + "PICTURE");
    const std::string strThumb = m_folder.Write("thumb", std::string(20, 'x') + "thumb");
    const std::string strOut = m_folder.Path("out");
    ASSERT_EQ(Run({"pack", strPicture, strThumb, strOut}), kDone) << m_strOut;
    const std::string strPacked = ReadBytes(strOut);
    EXPECT_EQ(strPacked.substr(0, 4) + strPacked.substr(438), "\xFF\xD8\xFF\xE1\xFF\xD8thumbPICTURE");

    const std::string strShort = m_folder.Write("short", std::string(19, 'x'));
    const std::string strLong = m_folder.Write("long", std::string(65120, 'x'));
    const std::pair<CWorkWords, std::string> arrWrong[] = {
        {{"pack", strPicture, strShort, strOut}, strShort + " is too short for a JPEG"},
        {{"pack", strPicture, strLong, strOut}, strLong + " is too long for a thumbnail"},
        {{"pack", strOut + "2", strThumb, strOut}, strOut + "2 cannot be read"},
        {{"pack", strPicture, strThumb, strOut + "/x"}, strOut + "/x cannot be written"}};
    for (const auto& [arrWords, strError] : arrWrong) {
        EXPECT_EQ(Run(arrWords), kCannotBeDone);
        EXPECT_EQ(m_strOut, "workbench: " + strError + "\n");
    }
    EXPECT_EQ(Run({"pack", strPicture, strThumb}), kWrongCall);
    EXPECT_EQ(ReadBytes(strOut), strPacked);
}

TEST_F(PhoneVerbs, Ports) {
    const std::string strCases = m_folder.Write(
        "cases", R"(# The phone is found.
case found
interface "Communications Port (COM1)" -
                         interface "Cable (COM12)" Cable interface "OrvoE CDMA USB Serial Port (COM7)" Phone
                             probe \\.\COM12 busy probe COM7 free value
                                 Hardware\Devicemap\serialcomm \Device\ORVOSIMDM0 COM8 find modem old parse
                         "a "
                         "COM5"
                         " : b" device ttyUSB1 device 34

                         case "asked on an oldest system" system 4 1 value Enum\USB\VID_0403 &
                     PID_6001\1 DeviceDesc "Cable" portname COM3 portname com4 probe \\.\com4 free step1
                         realnames find choose COM256 find record
                     ""
                     "" record COM9 "" step2 search fails version 255 step1) ");
                                 const std::string strOut = m_folder.Path("out");
    ASSERT_EQ(Run({"ports", strCases, strOut}), kDone) << m_strOut;
    const std::string strFind = R"(find
  record "USB_SERIAL" "Cable(COM)"
  probe "\\.\com4" free
  line 0 "com4 : 使用可能"
)";
    EXPECT_EQ(ReadBytes(strOut), R"(case found
find
  record "" "Cable (COM12)"
  record "" "OrvoE CDMA USB Serial Port (COM7)"
  probe "\\.\COM12" busy
  probe "COM7" free
  line 0 "COM12 : 无法使用"
  usb "USB[COM7] : 使用可能"
  port 7
  usbport 1
  modemport 8
modem old
  number -1
parse "a ""COM5"" : b"
  number 5
device ttyUSB1
  number 34
device 34
  device "/dev/ttyUSB1"
case "asked on an oldest system"
step1
  record "USB_SERIAL" "Cable(COM)"
realnames
  name "COM3"
  name "com4"
)" + strFind + "  port -2\n  usbport -\n  modemport -\n" +
                                     strFind + "  port 256\n  usbport 0\n  modemport -\n" + R"(step2
  record "USB_SERIAL" "Cable(COM)"
  record "" ""
  record "COM9" "COM9"
search
  probe "\\.\com4" free
  line 0 "com4 : 使用可能"
  askmodem 0
step1
  error "Could not get OS version. (err=ff)"
)");
}

TEST_F(PhoneVerbs, TellsWhatIsWrongWithAPortCase) {
    const std::pair<const char*, const char*> arrLines[] = {{"probe COM1 open", "wrong words for probe"},
                                                            {"probe COM1", "wrong words for probe"},
                                                            {"system 4", "wrong words for system"},
                                                            {"system x 2", "wrong words for system"},
                                                            {"key Enum open", "wrong words for key"},
                                                            {"fails all 1", "wrong words for fails"},
                                                            {"modem", "wrong words for modem"},
                                                            {"modem 1", "wrong words for modem"},
                                                            {"record \"COM1 Port", "a quote is not closed"},
                                                            {"\"#\"", "# is no command"}};
    for (const auto& [szLine, szError] : arrLines) {
        const std::string strCases = m_folder.Write("cases", std::string("case a\n\n") + szLine + "\n");
        EXPECT_EQ(Run({"ports", strCases, m_folder.Path("out")}), kCannotBeDone);
        EXPECT_EQ(m_strOut, "workbench: " + strCases + " line 3: " + szError + "\n");
    }
    EXPECT_EQ(Run({"ports", m_folder.Path("none"), m_folder.Path("out")}), kCannotBeDone);
    EXPECT_EQ(Run({"ports", "a"}), kWrongCall);
    EXPECT_EQ(m_folder.Names(), std::set<std::string>{"cases"});
    EXPECT_EQ(Run({"--help"}), kDone);
    EXPECT_NE(m_strOut.find("pack PICTURE.jpg THUMB.jpg OUT.jpg"), std::string::npos);
    EXPECT_NE(m_strOut.find("ports CASES OUT"), std::string::npos);
}

}  // namespace
