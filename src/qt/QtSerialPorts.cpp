#include "qt/QtSerialPorts.h"

#include <QFile>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "engines/ports/DeviceNumbers.h"
#include "qt/Text.h"
#include "window/FolderPhone.h"

namespace {

// Each of these tells by itself what stands behind a port.
constexpr std::array<std::string_view, 4> kTellingWords = {"OrvoE CDMA", "Orvo CDMA USB Modem",
                                                           "USB Serial Port", "USB High Speed Serial"};

// Those that hang on USB, whatever they say of themselves.
bool IsUsbDevice(const std::string& strName) {
    return strName.starts_with("ttyUSB") || strName.starts_with("ttyACM");
}

bool TellsWhatItIs(const std::string& strDescription) {
    return std::any_of(kTellingWords.begin(), kTellingWords.end(), [&](std::string_view strWord) {
        return strDescription.find(strWord) != std::string::npos;
    });
}

// In one line, and without the word that stands before a port's number: it is looked for from the left.
std::string PlainDescription(const CSerialDevice& device) {
    std::string strText = FromQt(NameToQt(device.strDescription).simplified());
    if (strText.empty()) strText = device.strName;
    for (std::size_t n = 0; (n = strText.find("COM", n)) != std::string::npos; n += 3)
        strText.replace(n, 3, "Com");
    return strText;
}

CPortInfo RecordOf(const CSerialDevice& device, int nPort) {
    std::string strName = PlainDescription(device);
    if (IsUsbDevice(device.strName) && !TellsWhatItIs(strName)) strName.insert(0, "USB Serial Port, ");
    return {{}, strName.append(" (COM").append(std::to_string(nPort)).append(")")};
}

// The n of "COMn" or "\\.\COMn"; 0 for any other text.
int NumberIn(std::string_view strName) {
    for (const std::string_view strPart : {std::string_view(R"(\\.\)"), std::string_view("COM")}) {
        if (strName.starts_with(strPart))
            strName.remove_prefix(strPart.size());
        else if (strPart == "COM")
            return 0;
    }
    int n = 0;
    const char* const pEnd = strName.data() + strName.size();
    const auto result = std::from_chars(strName.data(), pEnd, n);
    return result.ec == std::errc{} && result.ptr == pEnd ? n : 0;
}

}  // namespace

std::vector<CPortInfo> NamePorts(const std::vector<CSerialDevice>& arrDevices) {
    std::vector<std::pair<int, CPortInfo>> arrNumbered;
    for (const CSerialDevice& device : arrDevices)
        if (const std::optional<int> nPort = PortNumberOf(device.strName))
            arrNumbered.emplace_back(*nPort, RecordOf(device, *nPort));
    std::sort(arrNumbered.begin(), arrNumbered.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<CPortInfo> arrPorts;
    arrPorts.reserve(arrNumbered.size() + 1);
    for (auto& [nPort, info] : arrNumbered) arrPorts.push_back(std::move(info));
    if (std::optional<CPortInfo> phone = FindFolderPhone()) arrPorts.push_back(*std::move(phone));
    return arrPorts;
}

EPortProbe ProbeDevice(const std::string& strPath) {
    const QString strDevice = PathToQt(strPath);
    // Without it Qt would not get further than to ask for a lock.
    if (!QFile::exists(strDevice)) return EPortProbe::Absent;
    QSerialPort port(strDevice);
    if (port.open(QIODevice::ReadWrite)) return EPortProbe::Free;
    return port.error() == QSerialPort::PermissionError ? EPortProbe::Busy : EPortProbe::Absent;
}

CQtSerialPorts::CQtSerialPorts() {
    PinPhoneFolder();
}

std::optional<std::vector<CPortInfo>> CQtSerialPorts::List() {
    std::vector<CSerialDevice> arrDevices;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        arrDevices.push_back({FromQt(info.portName()), FromQt(info.description())});
    return NamePorts(arrDevices);
}

EPortProbe CQtSerialPorts::Probe(const std::string& strName) {
    const int nPort = NumberIn(strName);
    if (nPort == kFolderPhonePort) return FindFolderPhone() ? EPortProbe::Free : EPortProbe::Absent;
    const std::string strPath = DeviceOfPort(nPort);
    return strPath.empty() ? EPortProbe::Absent : ProbeDevice(strPath);
}
