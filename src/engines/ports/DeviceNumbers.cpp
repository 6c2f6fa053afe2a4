#include "engines/ports/DeviceNumbers.h"

#include <array>
#include <charconv>
#include <string_view>

namespace {

// Devices of one kind: their numbers from 0 have the ports from nFirst to nLast.
struct CDeviceKind {
    std::string_view strPrefix;
    int nFirst;
    int nLast;
};

constexpr std::array<CDeviceKind, 3> kKinds = {{{"ttyS", 1, 32}, {"ttyUSB", 33, 64}, {"ttyACM", 65, 96}}};

}  // namespace

std::optional<int> PortNumberOf(const std::string& strDevice) {
    for (const CDeviceKind& kind : kKinds) {
        if (!strDevice.starts_with(kind.strPrefix)) continue;
        const std::string strDigits = strDevice.substr(kind.strPrefix.size());
        const char* const pEnd = strDigits.data() + strDigits.size();
        unsigned n = 0;
        const auto result = std::from_chars(strDigits.data(), pEnd, n);
        if (result.ec != std::errc{} || result.ptr != pEnd ||
            n > static_cast<unsigned>(kind.nLast - kind.nFirst))
            continue;
        return kind.nFirst + static_cast<int>(n);
    }
    return std::nullopt;
}

std::string DeviceOfPort(int nPort) {
    for (const CDeviceKind& kind : kKinds)
        if (nPort >= kind.nFirst && nPort <= kind.nLast)
            return std::string("/dev/").append(kind.strPrefix).append(std::to_string(nPort - kind.nFirst));
    return {};
}
