#pragma once

#include <fstream>
#include <string>

// The most memory that the process has had at once, in bytes.
inline double PeakMemory() {
    std::ifstream file("/proc/self/status");
    std::string strWord;
    double fKilobytes = 0;
    while (file >> strWord && strWord != "VmHWM:") {
    }
    file >> fKilobytes;
    return fKilobytes * 1024;
}

inline void ForgetPeakMemory() {
    std::ofstream("/proc/self/clear_refs") << 5;
}
