#include "cli/findcommand.h"

#include "cadfiles/findfile.h"
#include "cadfiles/findpattern.h"
#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "common/fileexists.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

// Hits are written in blocks: a tree can hold hundreds of thousands of them.
constexpr qsizetype kFlushSize = 64 * 1024;

struct FindOptions {
    bool inclSubfolders = true;
    std::optional<QString> mask;
    QString folder;
    QString pattern;
};

// The options may stand anywhere among ORDNER and MUSTER; one mask only.
std::optional<FindOptions> parseFindOptions(const CliArgs& args) {
    FindOptions options;
    options.inclSubfolders = !args.has(u"--no-subfolders");
    if (args.count(u"--mask") > 1)
        return std::nullopt;
    options.mask = args.value(u"--mask");
    if (args.positional.size() != 2 || args.inPlace || args.outFile || args.kbFile)
        return std::nullopt;
    options.folder = args.positional[0];
    options.pattern = args.positional[1];
    return options;
}

} // namespace

int runFindCommand(const CliArgs& args, const CliStreams& io) {
    const std::optional<FindOptions> options = parseFindOptions(args);
    if (!options)
        return usageOf(io, args.command);

    cFindFile finder;
    try {
        if (options->mask) {
            bool ok = false;
            const qint64 mask = options->mask->toLongLong(&ok);
            if (!ok) {
                io.message(u"Die Maske \"%1\" ist keine ganze Zahl."_s.arg(*options->mask));
                return kUsage;
            }
            finder.setSFileFlag(mask);
        }
        finder.setSFileToFind(options->pattern);
        finder.setSSearchpath(options->folder);
        finder.setSInclSubfolders(options->inclSubfolders);
    } catch (const QuenforError& error) {
        io.message(u"%1: %2"_s.arg(error.description(), finder.lastFailure()));
        return kUsage;
    }
    if (options->pattern.isEmpty()) {
        io.message(u"Das Suchmuster ist leer."_s);
        return kUsage;
    }
    // The finder takes a missing folder for one without hits; a script needs to hear of the typo.
    if (!folderExists(options->folder)) {
        io.message(u"Der Ordner \"%1\" existiert nicht."_s.arg(options->folder));
        return kFailed;
    }

    QString block;
    finder.onMatchFound([&](const QString& fileName, const QString& directory, const QDateTime&, qint32 size,
                            const QDateTime&, const QDateTime&, const QString&) {
        block += directory + u'\t' + fileName + u'\t' + QString::number(size) + u'\n';
        if (block.size() >= kFlushSize) {
            io.print(block);
            block.clear();
        }
    });
    int status = kOk;
    try {
        finder.sStartSearch();
    } catch (const QuenforError& error) {
        io.print(block);
        block.clear();
        io.message(u"%1: %2"_s.arg(error.description(), finder.lastFailure()));
        status = kFailed;
    }
    io.print(block);
    // The list is complete apart from these folders: say so, or a script would miss files silently.
    for (const QString& folder : finder.unreadableFolders())
        io.message(u"Nicht lesbar, seine Dateien fehlen: %1"_s.arg(folder));
    return status;
}

QString findCommandHelp() {
    return u"  Dateisuche: listet alle Einträge von ORDNER und seinen Unterverzeichnissen, deren Name\n"
           "  zum MUSTER passt (ein Muster, keine Liste). Je Treffer eine Zeile: Verzeichnis,\n"
           "  Tabulator, Dateiname, Tabulator, Größe (32 Bit: ab 2 GiB falsch). Ausgabe UTF-8 mit LF.\n"
           "  Die Optionen dürfen vor, zwischen oder nach ORDNER und MUSTER stehen.\n"
           "  Verlinkte Verzeichnisse werden durchsucht, aber kein Verzeichnis zweimal.\n"_s +
           wildcardRulesHelp();
}

} // namespace quenfor::cli
