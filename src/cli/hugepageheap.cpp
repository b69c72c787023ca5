#include "cli/hugepageheap.h"

#if defined(__linux__) && defined(__GLIBC__)
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quenfor::cli {

#if defined(__linux__) && defined(__GLIBC__)

namespace {

constexpr const char* kRestartedMarker = "QUENFOR_HUGE_PAGE_HEAP";
constexpr const char* kTunables = "GLIBC_TUNABLES";
constexpr off_t kLargeInput = off_t(16) << 20;

bool namesLargeFile(char** argv) {
    for (char** arg = argv + 1; *arg; ++arg) {
        struct stat info {};
        if (::stat(*arg, &info) == 0 && S_ISREG(info.st_mode) && info.st_size >= kLargeInput)
            return true;
    }
    return false;
}

// "always" gives the heap huge pages anyway, "never" not at all.
bool hugePagesOnRequest() {
    std::ifstream setting("/sys/kernel/mm/transparent_hugepage/enabled");
    std::string line;
    return std::getline(setting, line) && line.find("[madvise]") != std::string::npos;
}

} // namespace

void restartWithHugePageHeapForLargeInputs(char** argv) {
    if (std::getenv(kRestartedMarker)) {
        // The restarted run: programs it starts get the caller's environment.
        ::unsetenv(kRestartedMarker);
        ::unsetenv(kTunables);
        return;
    }
    if (std::getenv(kTunables) || !namesLargeFile(argv) || !hugePagesOnRequest())
        return;
    ::setenv(kRestartedMarker, "1", 1);
    ::setenv(kTunables, "glibc.malloc.hugetlb=1", 1);
    ::execv("/proc/self/exe", argv);
    ::unsetenv(kRestartedMarker);
    ::unsetenv(kTunables);
}

#else

void restartWithHugePageHeapForLargeInputs(char**) {}

#endif

} // namespace quenfor::cli
