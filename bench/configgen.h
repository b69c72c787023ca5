#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quenfor::bench {

inline constexpr std::uint64_t kDefaultSeed = 0x5155454E464F52ULL;

// Writes a large, realistic config.pro: option lines built from a vocabulary of name parts with
// paths, switches, numbers and words as values, comments, mapkey blocks, browser_favorite lines
// and blank lines, with about a quarter of the lines repeating an earlier one exactly. Text is
// windows-1252 (umlauts in comments and values), so the file is not valid UTF-8.
//
// The same seed gives the same bytes on every platform: the generator uses its own random
// numbers, not the standard library's distributions, whose results differ between libraries.
class ConfigGenerator {
public:
    explicit ConfigGenerator(std::uint64_t seed = kDefaultSeed);

    // Appends the next line without its line end.
    void appendLine(std::string& out);

private:
    std::uint64_t next();
    std::size_t below(std::size_t n) { return std::size_t(next() % n); }
    bool chance(int percent) { return below(100) < std::size_t(percent); }
    template <std::size_t N> const char* pick(const char* const (&words)[N]) { return words[below(N)]; }

    std::string optionName();
    std::string folder();
    std::string path();
    std::string optionLine();
    std::string commentLine();
    std::string favoriteLine();
    void startMapkey();
    void remember(const std::string& line);

    std::uint64_t m_state;
    std::vector<std::string> m_names;
    std::vector<std::string> m_seen;    // earlier lines that a duplicate may repeat
    std::vector<std::string> m_pending; // the rest of a mapkey block being written
    std::size_t m_pendingAt = 0;
    std::vector<std::vector<std::string>> m_mapkeys; // earlier blocks, some files repeat them
};

// The whole file of `lineCount` lines, each ended by CR LF.
std::string generateConfigText(std::uint64_t lineCount, std::uint64_t seed = kDefaultSeed);

} // namespace quenfor::bench
