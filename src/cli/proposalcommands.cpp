#include "cli/proposalcommands.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "document/configdocument.h"
#include "document/documentfile.h"
#include "knowledge/proposal.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

using Tool = std::function<ProposalOutcome(ConfigDocument&, const AskCallback&)>;

// Where the window asks, a script has already decided: every question counts as Yes.
bool answerYes(const QString&) {
    return true;
}

// Reads FILE (standard input for "-", nothing without FILE) into a document, runs the tool on it
// and writes the document as the window's save does.
int appendToDocument(const CliArgs& args, const CliStreams& io, const Tool& tool) {
    if (args.positional.size() > 1)
        return usageOf(io, args.command);
    const QString file = args.positional.value(0);
    if (args.inPlace && (file.isEmpty() || file == u"-")) {
        io.message(u"-i braucht eine DATEI, in die das Ergebnis zurückgeschrieben wird."_s);
        return kUsage;
    }

    ConfigDocument doc;
    TextEncoding encoding = TextEncoding::codepageNamed(encodingChoiceFor(args).codepage);
    std::optional<FileStamp> readAs;
    if (!file.isEmpty()) {
        ReadResult read = readInput(file, args, io);
        if (!read.ok)
            return kFailed;
        doc.replaceAll(std::move(read.lines));
        encoding = read.encoding;
        readAs = read.stamp;
    }
    tool(doc, answerYes);

    return writeOutput(file, args, io, doc.lines(), encoding, readAs);
}

} // namespace

int runProposalCommand(const CliArgs& args, const CliStreams& io) {
    return appendToDocument(args, io, runProposal);
}

int runGhostCommand(const CliArgs& args, const CliStreams& io) {
    return appendToDocument(args, io, runGhostOptions);
}

QString proposalCommandHelp(const QString& command) {
    if (command == u"proposal")
        return u"  \"config.pro Vorschlag\": hängt die 356 Zeilen des eingebauten "
               u"Vorschlags\n"
               "  (280 Optionen, danach Beispiel-Mapkeys) an die Zeilen von DATEI an; ohne DATEI\n"
               "  entsteht ein Dokument nur aus dem Vorschlag. Vorhandene Optionen werden nicht\n"
               "  gesucht: doppelte Einträge entfernt danach \"dedupe\".\n"_s;
    if (command == u"ghost")
        return u"  Hängt die drei Ghost-Optionen fail_ref_copy_when_missing_orig,\n"
               "  cleanup_drawing_dependencies und cleanup_layout_dependencies an die Zeilen von\n"
               "  DATEI an (ohne DATEI an ein leeres Dokument).\n"_s;
    return {};
}

} // namespace quenfor::cli
