#include "cli/lintcommand.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "common/programfolders.h"
#include "knowledge/optionreleases.h"
#include "lint/linter.h"

#include <map>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

int runLintCommand(const CliArgs& args, const CliStreams& io) {
    LintOptions options;
    options.checkPaths = args.has(u"--check-paths");
    const std::optional<QString> release = args.value(u"--release");
    if (args.positional.isEmpty() || args.count(u"--release") > 1 || args.inPlace || args.outFile)
        return usageOf(io, u"lint");
    if (release) {
        if (!cadReleaseIndex(*release)) {
            io.message(u"Unbekannte Version \"%1\" – bekannt sind: %2"_s.arg(*release, cadReleaseNames()));
            return kUsage;
        }
        options.release = *release;
    }
    options.dataFolder = args.dataDir.value_or(programDataFolder());
    options.knowledgeBase = args.kbFile.value_or(QString());
    options.encoding = encodingChoiceFor(args);

    int status = kOk;
    std::map<FamilyKind, LintRules> rulesOf; // read the lists once per family, not once per file
    for (const QString& file : args.positional) {
        const ReadResult read = readInput(file, args, io);
        if (!read.ok) {
            status = kFailed;
            continue;
        }
        const FileFamily family = fileFamilyOf(file);
        auto rules = rulesOf.find(family.kind);
        if (rules == rulesOf.end())
            rules = rulesOf.emplace(family.kind, loadLintRules(family, options)).first;
        const LintResult result = lintLines(read.lines, file, rules->second, options);
        for (const QString& note : result.notes)
            io.message(u"%1: Hinweis: %2"_s.arg(file, note));
        // In pieces: a file with a million findings need not exist twice more in memory.
        QString out;
        for (const LintFinding& finding : result.findings) {
            out += file + u':' + QString::number(finding.line) + u": "_s + finding.message + u'\n';
            if (out.size() > 65536) {
                io.print(out);
                out.clear();
            }
        }
        io.print(out);
        if (!result.findings.isEmpty() || !result.complete)
            status = kFailed;
    }
    return status;
}

QString lintCommandHelp() {
    return u"  Prüft Konfigurationsdateien und gibt je Befund eine Zeile \"DATEI:ZEILE: Meldung\" aus.\n"
           "  Die Zeilen zählen wie in der Liste des Fensters (Zeilenende CR LF oder CR).\n"
           "  Geprüft werden: Optionsnamen, die keine Liste kennt (mit Vorschlag \"meinten Sie ...?\";\n"
           "  .dtl gegen Zeichnungsoptionen, .pcf gegen Plotteroptionen), unterbrochene Mapkeys,\n"
           "  Zeilen mit mehr als 98 Zeichen, Optionen, die mehrmals mit verschiedenen Werten gesetzt\n"
           "  sind (außer wiederholbaren wie search_path, mapkey, browser_favorite), Zeilen mit\n"
           "  Unix-Zeilenenden; in einer search.pro doppelte Verzeichnisse, ein doppeltes \"\\\" im Pfad\n"
           "  und Pfade mit Leerzeichen ohne Anführungszeichen.\n"
           "  Werte (config.pro, config.sup): ein Wert, der nicht unter den erlaubten Werten der Option\n"
           "  steht, ist ein Befund (mit Vorschlag). Groß- und Kleinschreibung zählt nicht; Zahlen\n"
           "  werden als Zahlen verglichen (2 = 2.0); bei Optionen mit mehreren Wörtern nur das erste.\n"
           "  Werte, für die es keine Auswahl gibt (Zahlen, Pfade, freier Text), bleiben ungeprüft,\n"
           "  ebenso Werte in Anführungszeichen und mit Umgebungsvariablen.\n"
           "  Die Art einer Datei folgt aus ihrem Namen wie im Fenster; DATEI - liest stdin.\n"
           "  Exit-Status 0 ohne Befund, 1 bei Befunden oder wenn eine DATEI nicht lesbar ist,\n"
           "  2 bei fehlerhaftem Aufruf (auch bei unbekannter Version).\n"_s;
}

} // namespace quenfor::cli
