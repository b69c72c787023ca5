// Targets: an explanation lookup in a 20 MB knowledge base within a click's time (50 ms), and
// the sort by category of a 100,000-line config file within 1 s.
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"
#include "knowledge/knowledgebase.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

// Real option names from the category lists, so prefixes collide as they do in real files.
QStringList optionNames() {
    QStringList names;
    const quenfor::CategoryTable& table = quenfor::CategoryTable::builtIn();
    for (int k = 1; k <= quenfor::CategoryTable::kCategoryCount; ++k)
        names.append(table.strings(k).mid(1));
    return names;
}

std::uint64_t nextRandom(std::uint64_t& state) {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    return state >> 33;
}

void BM_KnowledgeLookup20MB(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = dir.filePath(u"config_opts.txt"_s);
    const QStringList names = optionNames();
    QByteArray bytes;
    for (int i = 0; bytes.size() < 20 * 1024 * 1024; ++i) {
        bytes += names[i % names.size()].toUtf8() + "  yes | *no \xE2\x80\x93 Schalter\r\n";
        bytes += "  Legt fest, ob die Funktion eingeschaltet ist. Gilt f\xC3\xBCr alle Modelle.\r\n";
        bytes += "  Beispiel: mit yes wird sie beim Start aktiv.\r\n";
    }
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    file.close();
    qsizetype blocks = 0;
    for (auto _ : state) {
        const quenfor::KnowledgeLookup lookup = quenfor::lookupKnowledgeBase(path, u"trail_dir");
        blocks = lookup.blocks.size();
        benchmark::DoNotOptimize(blocks);
    }
    state.counters["blocks"] = double(blocks);
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void BM_CategorySort100k(benchmark::State& state) {
    const QStringList names = optionNames();
    QStringList lines;
    std::uint64_t random = 42;
    for (int i = 0; i < 100000; ++i) {
        const auto r = nextRandom(random) % 100;
        if (r < 8)
            lines.append(u"mapkey $F%1 @MAPKEY_LABELx;~ Command `ProCmdX`;"_s.arg(i % 12));
        else if (r < 12)
            lines.append(u"! Kommentar %1"_s.arg(i));
        else if (r < 16)
            lines.append(u"unbekannte_option_%1 1"_s.arg(i % 500));
        else
            lines.append(names[int(nextRandom(random) % names.size())] + u" yes"_s);
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(quenfor::sortByCategory(lines, quenfor::CategoryTable::builtIn()));
}

} // namespace

BENCHMARK(BM_KnowledgeLookup20MB)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CategorySort100k)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
