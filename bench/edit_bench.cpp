// The replace run over a whole company config.pro, alone and with the main list attached as the
// window has it, and taking every favourite line of such a file apart. Our own target: a run over
// 1,000,000 lines within 1 s, so the dialog needs no progress display.
#include "configgen.h"

#include "document/configdocument.h"
#include "knowledge/favorites.h"
#include "knowledge/replacelines.h"
#include "ui/main/documentlistmodel.h"

#include <QApplication>
#include <QListView>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

QStringList generatedLines(qsizetype count) {
    quenfor::bench::ConfigGenerator generator;
    QStringList lines;
    lines.reserve(count);
    std::string line;
    for (qsizetype i = 0; i < count; ++i) {
        line.clear();
        generator.appendLine(line);
        lines.append(QString::fromLatin1(line));
    }
    return lines;
}

// Paths under C:\ptc stand in about one line of twenty; the find text differs from them in case.
// An empty find text changes every line that is not empty: the worst case for the list.
void runReplace(benchmark::State& state, bool withView, const QString& find, const QString& replacement) {
    const QStringList lines = generatedLines(state.range(0));
    quenfor::ConfigDocument document;
    quenfor::DocumentListModel model(&document);
    QListView view;
    if (withView) {
        view.setUniformItemSizes(true);
        view.setModel(&model);
        view.resize(600, 800);
        view.show();
    }
    int count = 0;
    for (auto _ : state) {
        state.PauseTiming();
        document.replaceAll(lines);
        state.ResumeTiming();
        count = quenfor::replaceInDocument(document, find, replacement);
        if (withView)
            QApplication::processEvents();
    }
    state.counters["replaced"] = count;
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_ReplaceInDocument(benchmark::State& state) {
    runReplace(state, false, u"c:\\ptc"_s, u"D:\\cad\\ptc"_s);
}

void BM_ReplaceWithListView(benchmark::State& state) {
    runReplace(state, true, u"c:\\ptc"_s, u"D:\\cad\\ptc"_s);
}

void BM_CommentOutEveryLineWithListView(benchmark::State& state) {
    runReplace(state, true, QString(), u"! "_s);
}

void BM_TakeFavoritesApart(benchmark::State& state) {
    QStringList favorites;
    for (const QString& line : generatedLines(state.range(0))) {
        if (line.startsWith(u"browser_favorite"))
            favorites.append(line);
    }
    for (auto _ : state) {
        qsizetype pathCharacters = 0;
        for (const QString& line : favorites)
            pathCharacters += quenfor::takeFavoriteApart(line).path.size();
        benchmark::DoNotOptimize(pathCharacters);
    }
    state.counters["favorites"] = double(favorites.size());
}

} // namespace

BENCHMARK(BM_ReplaceInDocument)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReplaceWithListView)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CommentOutEveryLineWithListView)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TakeFavoritesApart)->Arg(1000000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
