#include "ResidentMemory.h"

#include <fstream>
#include <string>

static double kilobytesOf(const std::string& entry) {
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0.0;
    while (status >> word) {
        if (word == entry && status >> kilobytes)
            return kilobytes;
    }
    return 0.0;
}

double ResidentMemory::now() {
    return kilobytesOf("VmRSS:") * 1024.0;
}

double ResidentMemory::peak() {
    return kilobytesOf("VmHWM:") * 1024.0;
}

void ResidentMemory::forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}
