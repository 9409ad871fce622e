#include "PrivateMemory.h"

#include <QtGlobal>

#if defined(Q_OS_WIN)
#include <qt_windows.h>

#define PSAPI_VERSION 2 // in a library that is linked anyway
#include <psapi.h>
#elif defined(__GLIBC__)
#include <malloc.h>

#include <fstream>
#include <string>
#endif

#if defined(Q_OS_WIN)

double PrivateMemory::held() {
    PROCESS_MEMORY_COUNTERS_EX counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
    return double(counters.PrivateUsage);
}

double PrivateMemory::allocated() {
    return 0.0;
}

#elif defined(__GLIBC__)

double PrivateMemory::held() {
    malloc_trim(0);
    std::ifstream sums("/proc/self/smaps_rollup");
    double kilobytes = 0.0;
    std::string word;
    while (sums >> word) {
        double value = 0.0;
        // Clean pages are the files' and count as private whenever no other process happens to use them.
        if ((word == "Private_Dirty:" || word == "Swap:") && sums >> value)
            kilobytes += value;
    }
    return kilobytes * 1024.0;
}

double PrivateMemory::allocated() {
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

#else

double PrivateMemory::held() {
    return 0.0;
}

double PrivateMemory::allocated() {
    return 0.0;
}

#endif
