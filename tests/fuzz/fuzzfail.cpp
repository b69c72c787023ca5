#include "fuzzinput.h"

#include <cstdio>
#include <cstdlib>

namespace quenfor::fuzz {

void fail(const char* what) {
    std::fprintf(stderr, "fuzz property violated: %s\n", what);
    std::abort();
}

} // namespace quenfor::fuzz
