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

    const std::string strLong = m_folder.Write("long", std::string(65120, 'x'));
    EXPECT_EQ(Run({"pack", strPicture, strLong, strOut}), kCannotBeDone);
    EXPECT_EQ(m_strOut, "workbench: " + strLong + " is too long for a thumbnail\n");
    EXPECT_EQ(Run({"pack", strOut + "2", strThumb, strOut}), kCannotBeDone);
    EXPECT_EQ(m_strOut, "workbench: " + strOut + "2 cannot be read\n");
    EXPECT_EQ(Run({"pack", strPicture, strThumb}), kWrongCall);
    EXPECT_EQ(ReadBytes(strOut), strPacked);
}

TEST_F(PhoneVerbs, Ports) {
    const std::string strCases = m_folder.Write("cases", R"~(# The phone is found, or not.
case "one ""port"""
interface "Cable (COM12)" -
interface "OrvoE CDMA USB Serial Port (COM7)" Phone
record gone ""
probe COM7 free
value Hardware\Devicemap\serialcomm \Device\ORVOSIMDM0 COM8
find

case oldest
system 4 1
value Enum\USB\VID_0403&PID_6001\1 DeviceDesc Cable
probe \\.\USB_SERIAL busy
step1
search
parse "USB[COM5]"
modem old
)~");
    ASSERT_EQ(Run({"ports", strCases, m_folder.Path("out")}), kDone) << m_strOut;
    EXPECT_EQ(ReadBytes(m_folder.Path("out")), R"~(case "one ""port"""
find
  record "" "OrvoE CDMA USB Serial Port (COM7)"
  probe "COM7" free
  usb "USB[COM7] : 使用可能"
  port 7
  usbport 1
  modemport 8
case oldest
step1
  record "USB_SERIAL" "Cable(COM)"
search
  probe "\\.\USB_SERIAL" busy
  line 0 "USB_SERIAL : 无法使用"
  askmodem 0
parse "USB[COM5]"
  number 5
modem old
  number -1
)~");
    m_folder.Write("cases", "\n\nprobe COM1 open");
    EXPECT_EQ(Run({"ports", strCases, m_folder.Path("none")}), kCannotBeDone);
    EXPECT_EQ(m_strOut, "workbench: " + strCases + " line 3: wrong words for probe\n");
    EXPECT_EQ(m_folder.Names(), (std::set<std::string>{"cases", "out"}));
}

}  // namespace
