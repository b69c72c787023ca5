// Targets: "quenfor-cli diff" of two 100,000-line files within 1 s, and "quenfor-cli effective"
// over five files of 100,000 lines (a config.sup and four config.pro) within 1 s. Each run does
// what the command does: read the files from disk (CR LF, windows-1252), compare, and put the
// whole readable output together. The files come from the generator with different seeds, so
// nearly every option differs: the most output there can be.
#include "configgen.h"

#include "compare/comparetexts.h"
#include "compare/configdiff.h"
#include "compare/configsource.h"
#include "compare/effectiveconfig.h"
#include "compare/repeatableoptions.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLines = 100000;

QString writeGenerated(const QTemporaryDir& dir, const QString& name, std::uint64_t seed) {
    const std::string text = quenfor::bench::generateConfigText(kLines, seed);
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        std::abort();
    file.write(text.data(), qint64(text.size()));
    return file.fileName();
}

const QSet<QString>& repeatable() {
    static const QSet<QString> names = quenfor::loadRepeatableOptions(QStringLiteral(QUENFOR_DATA_FOLDER)).names;
    return names;
}

// As the command prints: the text goes out as UTF-8 in pieces of 64K characters.
class Output {
public:
    QString& text() { return m_text; }
    void flushIfLarge() {
        if (m_text.size() > 65536)
            flush();
    }
    void flush() {
        const QByteArray bytes = m_text.toUtf8();
        m_size += bytes.size();
        benchmark::DoNotOptimize(bytes.data());
        m_text.truncate(0); // keeps the buffer for the next piece
    }
    qsizetype size() const { return m_size; }

private:
    QString m_text;
    qsizetype m_size = 0;
};

quenfor::ConfigSource read(const QString& path) {
    quenfor::ConfigSourceRead r = quenfor::readConfigSource(path, {});
    if (!r.ok)
        std::abort();
    return std::move(r.source);
}

void BM_DiffTwoFiles(benchmark::State& state) {
    QTemporaryDir dir;
    const QString a = writeGenerated(dir, u"alt.pro"_s, 1);
    // Equal files cost the comparison without output; different ones add the output.
    const QString b = writeGenerated(dir, u"neu.pro"_s, state.range(0) == 0 ? 1 : 2);
    qsizetype differences = 0;
    qsizetype outputSize = 0;
    for (auto _ : state) {
        const quenfor::ConfigSource sa = read(a);
        const quenfor::ConfigSource sb = read(b);
        const std::vector<quenfor::DiffEntry> diff = quenfor::diffConfigs(sa.lines, sb.lines, repeatable());
        Output out;
        for (const quenfor::DiffEntry& d : diff) {
            quenfor::appendDiffText(out.text(), d, a, b);
            out.flushIfLarge();
        }
        out.flush();
        differences = qsizetype(diff.size());
        outputSize = out.size();
        benchmark::DoNotOptimize(outputSize);
    }
    state.counters["differences"] = double(differences);
    state.counters["output_bytes"] = double(outputSize);
}

void BM_EffectiveFiveFiles(benchmark::State& state) {
    QTemporaryDir dir;
    QStringList paths = {writeGenerated(dir, u"config.sup"_s, 10)};
    for (int i = 1; i < 5; ++i)
        paths.append(writeGenerated(dir, u"config%1.pro"_s.arg(i), 10 + std::uint64_t(i)));
    qsizetype settings = 0;
    qsizetype outputSize = 0;
    for (auto _ : state) {
        std::vector<quenfor::ConfigSource> sources;
        for (const QString& path : paths)
            sources.push_back(read(path));
        const quenfor::EffectiveConfig config = quenfor::effectiveConfig(sources, repeatable());
        Output out;
        for (const quenfor::EffectiveSetting& s : config.settings) {
            quenfor::appendEffectiveText(out.text(), s, paths);
            out.flushIfLarge();
        }
        out.flush();
        settings = qsizetype(config.settings.size());
        outputSize = out.size();
        benchmark::DoNotOptimize(outputSize);
    }
    state.counters["settings"] = double(settings);
    state.counters["output_bytes"] = double(outputSize);
}

} // namespace

// Argument 0: two equal files (nothing to print); 1: two different files.
BENCHMARK(BM_DiffTwoFiles)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EffectiveFiveFiles)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
