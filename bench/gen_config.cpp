// Writes a large config.pro for the speed comparisons: gen_config FILE [LINES [SEED]]
#include "configgen.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

bool parseCount(const char* text, std::uint64_t& value) {
    char* end = nullptr;
    const unsigned long long parsed = std::strtoull(text, &end, 0);
    if (end == text || *end != '\0')
        return false;
    value = parsed;
    return true;
}

} // namespace

int main(int argc, char** argv) {
    std::uint64_t lines = 1'000'000;
    std::uint64_t seed = quenfor::bench::kDefaultSeed;
    if (argc < 2 || argc > 4 || (argc > 2 && !parseCount(argv[2], lines)) || (argc > 3 && !parseCount(argv[3], seed))) {
        std::fprintf(stderr, "Aufruf: gen_config DATEI [ZEILEN [STARTWERT]]\n");
        return 2;
    }
    std::FILE* file = std::fopen(argv[1], "wb");
    if (!file) {
        std::perror(argv[1]);
        return 1;
    }

    // Written in pieces, so the generator needs little memory whatever the size.
    quenfor::bench::ConfigGenerator generator(seed);
    std::string buffer;
    buffer.reserve(1 << 20);
    bool ok = true;
    for (std::uint64_t i = 0; i < lines && ok; ++i) {
        generator.appendLine(buffer);
        buffer += "\r\n";
        if (buffer.size() >= (1 << 20) || i + 1 == lines) {
            ok = std::fwrite(buffer.data(), 1, buffer.size(), file) == buffer.size();
            buffer.clear();
        }
    }
    if (std::fclose(file) != 0)
        ok = false;
    if (!ok) {
        std::perror(argv[1]);
        return 1;
    }
    return 0;
}
