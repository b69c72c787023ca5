// Target: listing the names and finding the duplicates of 100,000 mapkeys within 1 s each, and
// marking the lines of every duplicate entry in the document.
#include "document/configdocument.h"
#include "knowledge/mapkeytools.h"

#include <benchmark/benchmark.h>

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMapkeys = 100000;

std::uint64_t nextRandom(std::uint64_t& state) {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    return state >> 33;
}

// A config.pro with 100,000 mapkeys, each with one to three continuation lines, between option
// lines. With `allEqual` every first line is the same (the pair loop's worst case: 10^10 pairs);
// otherwise about a fifth of the first lines repeat an earlier one exactly.
QStringList mapkeyDocument(bool allEqual) {
    QStringList lines;
    QStringList firstLines;
    std::uint64_t random = 7;
    for (int i = 0; i < kMapkeys; ++i) {
        QString first;
        if (allEqual) {
            first = u"mapkey $F2 @MAPKEY_LABEL Zeichnung;~ Command `ProCmdDwgNew`;\\"_s;
        } else if (!firstLines.isEmpty() && nextRandom(random) % 5 == 0) {
            first = firstLines[qsizetype(nextRandom(random) % std::uint64_t(firstLines.size()))];
        } else {
            QString name;
            for (int k = 1 + int(nextRandom(random) % 4); k > 0; --k)
                name += QChar(u'a' + int(nextRandom(random) % 26));
            first = u"mapkey %1 @MAPKEY_LABEL Makro %2;~ Command `ProCmdModelSave` ;\\"_s.arg(name).arg(i);
            firstLines.append(first);
        }
        lines.append(first);
        for (int k = 1 + int(nextRandom(random) % 3); k > 0; --k)
            lines.append(u"mapkey(continued) ~ Activate `file_saveas` `OK`;~ Close `main_dlg_cur`;\\"_s);
        if (i % 10 == 0)
            lines.append(u"display_planes no"_s);
    }
    return lines;
}

void BM_MapkeyNames100k(benchmark::State& state) {
    const QStringList lines = mapkeyDocument(state.range(0) != 0);
    qsizetype names = 0;
    for (auto _ : state) {
        names = quenfor::mapkeyNames(lines).size();
        benchmark::DoNotOptimize(names);
    }
    state.counters["names"] = double(names);
    state.counters["lines"] = double(lines.size());
}

void BM_DuplicateMapkeys100k(benchmark::State& state) {
    const QStringList lines = mapkeyDocument(state.range(0) != 0);
    qsizetype entries = 0;
    for (auto _ : state) {
        entries = quenfor::duplicateMapkeyLines(lines).size();
        benchmark::DoNotOptimize(entries);
    }
    state.counters["entries"] = double(entries);
}

// "Alle markieren": the lines of every entry selected in the document, one notification.
void BM_MarkAllDuplicates100k(benchmark::State& state) {
    quenfor::ConfigDocument doc;
    doc.replaceAll(mapkeyDocument(state.range(0) != 0));
    const QStringList entries = quenfor::duplicateMapkeyLines(doc.lines());
    int marked = 0;
    for (auto _ : state) {
        state.PauseTiming();
        doc.clearSelection();
        state.ResumeTiming();
        marked = quenfor::markDuplicateLines(doc, entries);
        benchmark::DoNotOptimize(marked);
    }
    state.counters["marked"] = double(marked);
}

} // namespace

BENCHMARK(BM_MapkeyNames100k)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DuplicateMapkeys100k)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MarkAllDuplicates100k)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
