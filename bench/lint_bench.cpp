// Target: "Prüfen" of a 1,000,000-line config.pro within 2 s, from memory (the view) and from
// disk (quenfor-cli lint), values checked against the allowed values, and once more against a
// target release. Two files: one written like a company's config (real option names, 2 %
// of them misspelt, mapkeys, comments, a few long lines and changed values), and the generated
// file of the other benchmarks, whose invented names are nearly all unknown, so the suggestion
// is worked out for some 150,000 different names: the worst case for "meinten Sie ...?".
#include "configgen.h"

#include "document/documentfile.h"
#include "lint/linter.h"
#include "lint/namelist.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLines = 1000000;

quenfor::LintOptions options() {
    quenfor::LintOptions o;
    o.dataFolder = QStringLiteral(QUENFOR_DATA_FOLDER);
    return o;
}

struct Random {
    std::uint64_t state = 0x4C494E54;
    std::uint32_t below(std::uint32_t n) {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return std::uint32_t(state >> 33) % n;
    }
};

QString misspelt(QString name, Random& r) {
    const int at = int(r.below(std::uint32_t(name.size())));
    if (r.below(2) == 0)
        name.remove(at, 1);
    else
        name.insert(at, QChar(u'a' + r.below(26)));
    return name;
}

QStringList companyConfig() {
    const QStringList names = quenfor::readNameList(options().dataFolder + u"/known_options.txt"_s).value();
    const QStringList values = {u"yes"_s,
                                u"no"_s,
                                u"1"_s,
                                u"0.5"_s,
                                u"C:\\ptc\\vorlagen\\start.prt"_s,
                                u"\\\\server\\cad\\normteile\\din"_s,
                                u"$PRO_DIRECTORY\\text"_s};
    Random r;
    QStringList typos;
    for (int i = 0; i < 2000; ++i)
        typos.append(misspelt(names[int(r.below(std::uint32_t(names.size())))], r));

    QStringList lines;
    lines.reserve(kLines);
    while (lines.size() < kLines) {
        const std::uint32_t roll = r.below(100);
        const int n = int(r.below(std::uint32_t(names.size())));
        if (roll < 55) {
            // Mostly each option keeps its value; now and then someone sets another.
            const int v = r.below(50) == 0 ? int(r.below(7)) : n % 7;
            lines.append(names[n] + u' ' + values[v]);
        } else if (roll < 57) {
            lines.append(typos[int(r.below(2000))] + u" yes"_s);
        } else if (roll < 58) {
            lines.append(u"pro_library_dir \\\\fileserver01\\cad_bibliothek\\normteile\\din_iso\\schrauben_und_"
                         "muttern\\sechskant\\m%1"_s.arg(n));
        } else if (roll < 68) {
            lines.append(u"! Abschnitt %1: Änderungen nur über die CAD-Administration"_s.arg(n));
        } else if (roll < 73) {
            lines.append(QString());
        } else if (roll < 76) {
            lines.append(u"browser_favorite Projekt%1 \\\\server\\projekte\\%1"_s.arg(n));
        } else if (roll < 80) {
            lines.append(u"search_path C:\\ptc\\teile\\gruppe%1"_s.arg(n % 300));
        } else {
            lines.append(u"mapkey $F%1 @MAPKEY_NAMEAnsicht;@MAPKEY_LABELAnsicht;\\"_s.arg(n % 12));
            for (std::uint32_t k = r.below(3); k > 0; --k)
                lines.append(u"mapkey(continued) ~ Command `ProCmdViewNamePick` 1 ;\\"_s);
            // One block in two hundred loses its last line: a broken chain.
            if (r.below(200) != 0)
                lines.append(u"mapkey(continued) ~ Activate `main_dlg_cur` `ProCmdViewRefit.view`;"_s);
        }
    }
    lines.resize(kLines);
    return lines;
}

const QStringList& companyLines() {
    static const QStringList lines = companyConfig();
    return lines;
}

const QStringList& generatedLines() {
    static const QStringList lines = [] {
        const std::string text = quenfor::bench::generateConfigText(kLines);
        return quenfor::readDocumentBytes(QByteArrayView(text.data(), qsizetype(text.size())), {}).lines;
    }();
    return lines;
}

void lintInMemory(benchmark::State& state, const QStringList& lines) {
    qsizetype findings = 0;
    for (auto _ : state) {
        const quenfor::LintResult result = quenfor::lintLines(lines, u"config.pro"_s, options());
        findings = result.findings.size();
        benchmark::DoNotOptimize(findings);
    }
    state.counters["findings"] = double(findings);
    state.SetItemsProcessed(state.iterations() * lines.size());
}

void BM_LintCompanyConfig(benchmark::State& state) {
    lintInMemory(state, companyLines());
}

// With a target release every option line is also looked up in the release lists.
void BM_LintCompanyConfigForRelease(benchmark::State& state) {
    quenfor::LintOptions withRelease = options();
    withRelease.release = u"CP6"_s;
    qsizetype findings = 0;
    for (auto _ : state) {
        const quenfor::LintResult result = quenfor::lintLines(companyLines(), u"config.pro"_s, withRelease);
        findings = result.findings.size();
        benchmark::DoNotOptimize(findings);
    }
    state.counters["findings"] = double(findings);
}

void BM_LintGeneratedConfig(benchmark::State& state) {
    lintInMemory(state, generatedLines());
}

// As quenfor-cli lint does it: read the file from disk (CR LF, windows-1252), then check.
void BM_LintCompanyFile(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = dir.filePath(u"config.pro"_s);
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    for (const QString& line : companyLines())
        file.write(line.toLatin1() + "\r\n");
    file.close();
    qsizetype findings = 0;
    for (auto _ : state) {
        const quenfor::LintFileResult result = quenfor::lintFile(path, options());
        findings = result.result.findings.size();
        benchmark::DoNotOptimize(findings);
    }
    state.counters["findings"] = double(findings);
}

} // namespace

BENCHMARK(BM_LintCompanyConfig)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LintCompanyFile)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LintCompanyConfigForRelease)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LintGeneratedConfig)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
