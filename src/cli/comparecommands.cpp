#include "cli/comparecommands.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "common/programfolders.h"
#include "compare/comparetexts.h"
#include "compare/configdiff.h"
#include "compare/configsource.h"
#include "compare/effectiveconfig.h"
#include "compare/repeatableoptions.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

enum class Format { Text, Tsv, Invalid };

// Every --format given must name a known format; the last one counts.
Format formatOf(const CliArgs& args) {
    Format format = Format::Text;
    for (const GivenOption& option : args.options) {
        if (option.value == u"tsv")
            format = Format::Tsv;
        else if (option.value == u"text")
            format = Format::Text;
        else
            return Format::Invalid;
    }
    return format;
}

QSet<QString> repeatableFor(const CliArgs& args, const CliStreams& io) {
    RepeatableOptions repeatable = loadRepeatableOptions(args.dataDir.value_or(programDataFolder()));
    if (!repeatable.note.isEmpty())
        io.message(u"Hinweis: "_s + repeatable.note);
    return repeatable.names;
}

// Reads FILE as the editor does and refuses binary data; the error is already reported when empty.
std::optional<ConfigSource> readSource(const QString& file, const CliArgs& args, const CliStreams& io) {
    ReadResult read = readInput(file, args, io);
    if (!read.ok)
        return std::nullopt;
    const QString shownName = file == u"-" ? u"(stdin)"_s : file;
    if (const QString error = binaryDataError(shownName, read.lines); !error.isEmpty()) {
        io.message(error);
        return std::nullopt;
    }
    return ConfigSource{file, std::move(read.lines), isLockingFileName(file)};
}

// Prints in pieces: a file of a million settings need not exist twice more in memory.
class ChunkedPrinter {
public:
    explicit ChunkedPrinter(const CliStreams& io) : m_io(io) {}
    ~ChunkedPrinter() { m_io.print(m_text); }
    QString& text() { return m_text; }
    // Prints the text between the slices of a long value.
    TextDrain drain() {
        return {[this](QString& text) {
            m_io.print(text);
            text.truncate(0);
        }};
    }
    void flushIfLarge() {
        if (m_text.size() > 65536) {
            m_io.print(m_text);
            m_text.truncate(0); // keeps the buffer for the next piece
        }
    }

private:
    const CliStreams& m_io;
    QString m_text;
};

} // namespace

int runEffectiveCommand(const CliArgs& args, const CliStreams& io) {
    const Format format = formatOf(args);
    if (args.positional.isEmpty() || format == Format::Invalid || args.inPlace || args.outFile)
        return usageOf(io, args.command);
    if (args.positional.count(u"-"_s) > 1) {
        io.message(u"Die Standardeingabe (-) lässt sich nur einmal lesen."_s);
        return kUsage;
    }
    std::vector<ConfigSource> sources;
    for (const QString& file : args.positional) {
        std::optional<ConfigSource> source = readSource(file, args, io);
        if (!source)
            return kFailed; // without one of the files, what wins would be a guess
        sources.push_back(std::move(*source));
    }
    const EffectiveConfig config = effectiveConfig(sources, repeatableFor(args, io));
    ChunkedPrinter printer(io);
    const TextDrain drain = printer.drain();
    for (const EffectiveSetting& s : config.settings) {
        if (format == Format::Tsv)
            appendEffectiveTsv(printer.text(), s, args.positional, drain);
        else
            appendEffectiveText(printer.text(), s, args.positional, drain);
        printer.flushIfLarge();
    }
    return kOk;
}

int runDiffCommand(const CliArgs& args, const CliStreams& io) {
    const Format format = formatOf(args);
    if (args.positional.size() != 2 || format == Format::Invalid || args.inPlace || args.outFile)
        return usageOf(io, args.command);
    if (args.positional.count(u"-"_s) > 1) {
        io.message(u"Die Standardeingabe (-) lässt sich nur einmal lesen."_s);
        return kUsage;
    }
    const QString& fileA = args.positional.at(0);
    const QString& fileB = args.positional.at(1);
    const std::optional<ConfigSource> a = readSource(fileA, args, io);
    if (!a)
        return kFailed;
    const std::optional<ConfigSource> b = readSource(fileB, args, io);
    if (!b)
        return kFailed;
    const std::vector<DiffEntry> diff = diffConfigs(a->lines, b->lines, repeatableFor(args, io));
    {
        ChunkedPrinter printer(io);
        const TextDrain drain = printer.drain();
        for (const DiffEntry& d : diff) {
            if (format == Format::Tsv)
                appendDiffTsv(printer.text(), d, drain);
            else
                appendDiffText(printer.text(), d, fileA, fileB, drain);
            printer.flushIfLarge();
        }
        if (format == Format::Text)
            printer.text() += diffSummaryText(diff) + u'\n';
    }
    return diff.empty() ? kOk : kFailed;
}

QString compareCommandHelp(const QString& command) {
    if (command == u"effective")
        return u"  Zeigt, welcher Wert jeder Option gilt, wenn das CAD-System die Dateien lädt:\n"
               "  jede config.sup (Name endet auf .sup) zuerst, dann die übrigen Dateien in der\n"
               "  angegebenen Reihenfolge, jede von oben nach unten. Ein späterer Wert ersetzt einen\n"
               "  früheren; was eine config.sup setzt, bleibt gesperrt. Wiederholbare Optionen\n"
               "  (search_path, browser_favorite ... laut repeatable_options.txt im Datenordner)\n"
               "  sammeln alle Werte; jedes Mapkey zählt je Tastenfolge.\n"
               "  Ausgabe je Option, nach Namen sortiert:\n"
               "    NAME WERT  (DATEI:ZEILE)            der geltende Wert, \"gesperrt\" aus einer config.sup\n"
               "        überschreibt: WERT  (DATEI:ZEILE)                 frühere, ersetzte Werte\n"
               "        gesperrt durch config.sup: WERT  (DATEI:ZEILE)    spätere Werte ohne Wirkung\n"
               "  Steuerzeichen in Werten erscheinen als ^I usw.; DATEI - liest stdin (einmal).\n"
               "  Exit-Status 0 erledigt, 1 wenn eine DATEI fehlt, nicht lesbar ist oder Binärdaten\n"
               "  enthält (dann keine Ausgabe), 2 bei fehlerhaftem Aufruf.\n"_s;
    if (command == u"diff")
        return u"  Vergleicht, was zwei Konfigurationsdateien setzen, nicht ihre Zeilen: Reihenfolge,\n"
               "  Groß- und Kleinschreibung der Optionsnamen, Kommentare, Leerzeilen und die Aufteilung\n"
               "  eines Mapkeys auf Zeilen zählen nicht. Je Datei gilt der letzte Wert einer Option;\n"
               "  Werte gelten als gleich, wenn sie sich nur in Groß- und Kleinschreibung oder der Zahl\n"
               "  der Leerzeichen unterscheiden. Wiederholbare Optionen (search_path ...) vergleichen\n"
               "  ihre Werte als Menge, Mapkeys ihre Makros genau.\n"
               "  Ausgabe, nach Namen sortiert, dann eine Zusammenfassung:\n"
               "    + NAME: WERT  (B:ZEILE)                  nur in B\n"
               "    - NAME: WERT  (A:ZEILE)                  nur in A\n"
               "    ~ NAME: ALT → NEU  (A:ZEILE → B:ZEILE)   geändert\n"
               "  Exit-Status 0 gleich, 1 verschieden; 1 auch, wenn eine DATEI fehlt, nicht lesbar ist\n"
               "  oder Binärdaten enthält (dann Meldung auf stderr, keine Ausgabe); 2 bei fehlerhaftem\n"
               "  Aufruf.\n"_s;
    return {};
}

} // namespace quenfor::cli
