#include "cli/purgecommands.h"

#include "cadfiles/findpattern.h"
#include "cadfiles/purgesettings.h"
#include "cadfiles/purgetree.h"
#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "common/rawfilenames.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

struct TreeCommand {
    TreeOptions options;
    QString folder;
};

// Reads -r, -n/--dry-run, --patterns and the folder; false when the words do not fit.
bool parseTree(const CliArgs& args, TreeTask task, TreeCommand& command) {
    command.options.task = task;
    command.options.recursive = args.has(u"--recursive");
    command.options.dryRun = args.has(u"--dry-run");
    if (task == TreeTask::Clean) {
        const std::optional<QString> patterns = args.value(u"--patterns");
        command.options.cleaningPatterns = patterns ? *patterns : PurgeSettings::load().cleaningPatterns;
    }
    if (args.positional.size() != 1 || args.inPlace || args.outFile)
        return false;
    command.folder = args.positional.front();
    return true;
}

int runTree(const CliArgs& args, const CliStreams& io, TreeTask task) {
    TreeCommand command;
    if (!parseTree(args, task, command))
        return usageOf(io, args.command);
    if (task == TreeTask::Clean && command.options.cleaningPatterns.trimmed().remove(u';').isEmpty()) {
        io.message(u"Die Liste der Endungen ist leer: es wird nichts gelöscht."_s);
        return kFailed;
    }
    TreeRun run(command.folder, command.options);
    run.runToEnd();
    const TreeResult& result = run.result();
    if (!result.error.isEmpty()) {
        io.message(result.error);
        return kFailed;
    }
    const QStringList& printed = command.options.dryRun ? result.listed : result.deletion.deleted;
    // The bytes of each name as they stand on the disk, as ls and find print them.
    for (const QString& path : printed) {
        io.out.write(encodeFileName(path));
        io.out.write("\n");
    }
    for (const QString& folder : result.unreadable)
        io.message(u"Nicht lesbar: %1"_s.arg(folder));
    for (const QString& path : result.deletion.vanished)
        io.message(u"Nicht mehr vorhanden, übersprungen: %1"_s.arg(path));
    for (const QString& path : result.deletion.failed)
        io.message(u"Konnte nicht gelöscht werden: %1"_s.arg(path));
    return result.deletion.failed.isEmpty() ? kOk : kFailed;
}

} // namespace

int runPurgeCommand(const CliArgs& args, const CliStreams& io) {
    return runTree(args, io, TreeTask::Purge);
}

int runCleanCommand(const CliArgs& args, const CliStreams& io) {
    return runTree(args, io, TreeTask::Clean);
}

QString purgeCommandHelp(const QString& command) {
    if (command == u"purge"_s) {
        return u"  \"Dr.Fegel\": löscht in ORDNER von jedem Objekt (name.typ.N) alle Versionen außer der\n"
               "  höchsten; Versionen werden als Zahlen verglichen (.10 liegt über .9), eine Datei ohne\n"
               "  Nummer zählt als Version 0. Schreibgeschützte alte Versionen werden auch gelöscht.\n"
               "  Gibt den vollständigen Pfad jeder gelöschten Datei aus.\n"_s;
    }
    if (command == u"clean"_s) {
        return u"  \"Dr.Fegel\": löscht in ORDNER die Nebenprodukte des CAD-Systems (Stücklisten, Info-,\n"
               "  Log-, Trail- und Fehlerdateien ...) nach der Musterliste, Groß-/Kleinschreibung egal.\n"
               "  Gibt den vollständigen Pfad jeder gelöschten Datei aus.\n"_s +
               wildcardRulesHelp();
    }
    return {};
}

} // namespace quenfor::cli
