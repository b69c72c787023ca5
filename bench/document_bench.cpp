// Speed of the document library on generated config files of 10,000 to 1,000,000 lines.
#include "configgen.h"

#include "document/cleanuptools.h"
#include "document/documentfile.h"

#include <QBuffer>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

const quenfor::EncodingChoice kChoice; // windows-1252, as on a fresh installation

// Each size is generated once and shared by all benchmarks of that size.
const QByteArray& fileBytes(int lines) {
    static std::map<int, QByteArray> cache;
    auto it = cache.find(lines);
    if (it == cache.end()) {
        const std::string text = quenfor::bench::generateConfigText(std::uint64_t(lines));
        it = cache.emplace(lines, QByteArray(text.data(), qsizetype(text.size()))).first;
    }
    return it->second;
}

const QStringList& documentLines(int lines) {
    static std::map<int, QStringList> cache;
    auto it = cache.find(lines);
    if (it == cache.end())
        it = cache.emplace(lines, quenfor::readDocumentBytes(fileBytes(lines), kChoice).lines).first;
    return it->second;
}

QTemporaryDir& tempDir() {
    static QTemporaryDir dir;
    return dir;
}

// The generated file on disk, for the benchmarks that read a file.
QString filePath(int lines) {
    const QString path = tempDir().filePath(u"config_%1.pro"_s.arg(lines));
    if (!QFile::exists(path)) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(fileBytes(lines)) != fileBytes(lines).size())
            return {};
    }
    return path;
}

void setCounters(benchmark::State& state, int lines) {
    state.SetItemsProcessed(state.iterations() * lines);
    state.SetBytesProcessed(state.iterations() * fileBytes(lines).size());
}

void BM_ReadBytes(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QByteArray& bytes = fileBytes(lines);
    for (auto _ : state) {
        quenfor::ReadResult result = quenfor::readDocumentBytes(bytes, kChoice);
        benchmark::DoNotOptimize(result.lines.data());
    }
    setCounters(state, lines);
}

void BM_ReadFile(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QString path = filePath(lines);
    if (path.isEmpty()) {
        state.SkipWithError("cannot write the temporary file");
        return;
    }
    for (auto _ : state) {
        quenfor::ReadResult result = quenfor::readDocumentFile(path, kChoice);
        if (!result.ok)
            state.SkipWithError("read failed");
        benchmark::DoNotOptimize(result.lines.data());
    }
    setCounters(state, lines);
}

void BM_WriteMemory(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QStringList& doc = documentLines(lines);
    const quenfor::TextEncoding encoding;
    QByteArray out;
    out.reserve(fileBytes(lines).size());
    for (auto _ : state) {
        out.resize(0);
        QBuffer buffer(&out);
        buffer.open(QIODevice::WriteOnly);
        if (!quenfor::writeDocument(buffer, doc, encoding).ok)
            state.SkipWithError("write failed");
        benchmark::DoNotOptimize(out.data());
    }
    setCounters(state, lines);
}

void BM_WriteFile(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QStringList& doc = documentLines(lines);
    const quenfor::TextEncoding encoding;
    const QString path = tempDir().filePath(u"written_%1.pro"_s.arg(lines));
    for (auto _ : state) {
        if (!quenfor::writeDocumentFile(path, doc, encoding).ok)
            state.SkipWithError("write failed");
    }
    setCounters(state, lines);
}

void BM_RemoveDuplicates(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QStringList& doc = documentLines(lines);
    for (auto _ : state) {
        QStringList result = quenfor::removeDuplicateLines(doc);
        benchmark::DoNotOptimize(result.data());
    }
    setCounters(state, lines);
}

void BM_SortAlphabetically(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QStringList& doc = documentLines(lines);
    const QLocale german(QLocale::German, QLocale::Germany);
    for (auto _ : state) {
        QStringList result = quenfor::sortLinesAlphabetically(doc, german);
        benchmark::DoNotOptimize(result.data());
    }
    setCounters(state, lines);
}

void BM_RemoveBlankLines(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QStringList& doc = documentLines(lines);
    for (auto _ : state) {
        QStringList result = quenfor::removeBlankLines(doc);
        benchmark::DoNotOptimize(result.data());
    }
    setCounters(state, lines);
}

void BM_LowerCase(benchmark::State& state) {
    const int lines = int(state.range(0));
    const QStringList& doc = documentLines(lines);
    for (auto _ : state) {
        QStringList result = quenfor::lowerCaseLines(doc);
        benchmark::DoNotOptimize(result.data());
    }
    setCounters(state, lines);
}

// The repair's real input: a file whose CRs were lost, so it opens as one long line. Measured
// with the decoding of the file, as the tool does it.
void BM_RepairFragmented(benchmark::State& state) {
    const int lines = int(state.range(0));
    QByteArray lfOnly = fileBytes(lines);
    lfOnly.replace("\r\n", "\n");
    for (auto _ : state) {
        const QString text = quenfor::decodeText(lfOnly, kChoice);
        QStringList result = quenfor::repairFragmentedText(text, 1);
        if (result.size() != lines)
            state.SkipWithError("repair gave a different number of lines");
        benchmark::DoNotOptimize(result.data());
    }
    setCounters(state, lines);
}

void sizes(benchmark::internal::Benchmark* b) {
    b->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(BM_ReadBytes)->Apply(sizes);
BENCHMARK(BM_ReadFile)->Apply(sizes);
BENCHMARK(BM_WriteMemory)->Apply(sizes);
BENCHMARK(BM_WriteFile)->Apply(sizes);
BENCHMARK(BM_RemoveDuplicates)->Apply(sizes);
BENCHMARK(BM_SortAlphabetically)->Apply(sizes);
BENCHMARK(BM_RemoveBlankLines)->Apply(sizes);
BENCHMARK(BM_LowerCase)->Apply(sizes);
BENCHMARK(BM_RepairFragmented)->Apply(sizes);

BENCHMARK_MAIN();
