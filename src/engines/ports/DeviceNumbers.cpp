#include "engines/ports/DeviceNumbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace {

constexpr int kMostPort = 256;

// The devices PREFIX0, PREFIX1, ... have as many numbers from nFirst on. A new kind takes numbers that are
// free; one that is here keeps its own, or a number that somebody wrote down would mean another device.
struct CDeviceKind {
    std::string_view strPrefix;
    int nFirst;
    int nCount;
};
constexpr auto kKinds = std::to_array<CDeviceKind>({
    {"ttyS", 1, 32},      // on the board or on a card
    {"ttyUSB", 33, 64},   // adapters
    {"ttyACM", 97, 64},   // modems and phones on USB
    {"rfcomm", 161, 32},  // Bluetooth
    {"ttyGS", 193, 4},    // this machine as a device on USB
    {"ttyAMA", 201, 8},   // from here on: on the boards of small computers
    {"ttymxc", 209, 8},
    {"ttyO", 217, 8},
    {"ttyHS", 225, 8},
    {"ttyTHS", 233, 8},
    {"ttyXRUSB", 241, 16},
});

constexpr bool AreApart() {
    int nFree = 1;
    for (const CDeviceKind& kind : kKinds) {
        const int nEnd = kind.nFirst + kind.nCount;
        if (kind.nFirst < nFree || (kind.nFirst <= kFolderPhonePort && kFolderPhonePort < nEnd)) return false;
        nFree = nEnd;
    }
    return nFree <= kMostPort + 1;
}
static_assert(AreApart());

}  // namespace

std::optional<int> PortNumberOf(const std::string& strDevice) {
    for (const CDeviceKind& kind : kKinds) {
        if (!strDevice.starts_with(kind.strPrefix)) continue;
        const std::string_view strPlace = std::string_view(strDevice).substr(kind.strPrefix.size());
        // "ttyS07" is no name that the system gives, and "ttySAC0" is another kind.
        const bool bDigits = std::ranges::all_of(strPlace, [](char ch) { return ch >= '0' && ch <= '9'; });
        if (!bDigits || (strPlace.size() > 1 && strPlace.front() == '0')) continue;
        int nPlace = 0;
        const auto [pStop, error] =
            std::from_chars(strPlace.data(), strPlace.data() + strPlace.size(), nPlace);
        if (error == std::errc() && nPlace < kind.nCount) return kind.nFirst + nPlace;
    }
    return std::nullopt;
}

std::string DeviceOfPort(int nPort) {
    for (const CDeviceKind& kind : kKinds) {
        if (nPort < kind.nFirst || nPort >= kind.nFirst + kind.nCount) continue;
        std::string strDevice = "/dev/";
        strDevice.append(kind.strPrefix).append(std::to_string(nPort - kind.nFirst));
        return strDevice;
    }
    return {};
}
