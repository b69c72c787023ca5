#include "cli/purgecommands.h"

#include "cadfiles/findpattern.h"
#include "cadfiles/purgesettings.h"
#include "cadfiles/purgetree.h"
#include "cli/documentio.h"
#include "common/rawfilenames.h"

#include <QCoreApplication>

#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

struct TreeCommand {
    TreeOptions options;
    QString folder;
};

// The value of --patterns. The common parser keeps unknown options as flags and their values as
// positionals, which loses where the value stood; so "--patterns=P" is taken from the flag, and
// "--patterns P" from the process's own argument list when there is one (the value right behind
// the option), else from the first positional, the place the synopsis gives it.
std::optional<QString> takePatterns(QStringList& positional, const QStringList& flags, QString& error) {
    for (const QString& flag : flags) {
        if (flag.startsWith(u"--patterns="_s))
            return flag.mid(11);
    }
    if (!flags.contains(u"--patterns"_s))
        return std::nullopt;
    const QStringList raw = QCoreApplication::instance() ? QCoreApplication::arguments() : QStringList();
    const qsizetype at = raw.indexOf(u"--patterns"_s);
    if (at >= 0 && at + 1 < raw.size() && positional.removeOne(raw.at(at + 1)))
        return raw.at(at + 1);
    if (positional.size() < 2) {
        error = u"Die Option --patterns braucht einen Wert."_s;
        return std::nullopt;
    }
    return positional.takeFirst();
}

// Reads -r, -n/--dry-run, --patterns and the folder; an error text for anything else.
std::optional<QString> parseTree(const CliArgs& args, TreeTask task, TreeCommand& command) {
    command.options.task = task;
    command.options.recursive = false;
    QStringList positional = args.positional;
    for (const QString& flag : args.flags) {
        if (flag == u"-r"_s || flag == u"--recursive"_s)
            command.options.recursive = true;
        else if (flag == u"-n"_s || flag == u"--dry-run"_s)
            command.options.dryRun = true;
        else if (task != TreeTask::Clean || (flag != u"--patterns"_s && !flag.startsWith(u"--patterns="_s)))
            return u"Unbekannte Option: %1"_s.arg(flag);
    }
    if (task == TreeTask::Clean) {
        QString error;
        const std::optional<QString> patterns = takePatterns(positional, args.flags, error);
        if (!error.isEmpty())
            return error;
        command.options.cleaningPatterns = patterns ? *patterns : PurgeSettings::load().cleaningPatterns;
    }
    if (positional.size() != 1 || args.inPlace || args.outFile)
        return QString();
    command.folder = positional.front();
    return std::nullopt;
}

int runTree(const CliArgs& args, const CliStreams& io, TreeTask task, const QString& synopsis) {
    TreeCommand command;
    if (const auto error = parseTree(args, task, command)) {
        if (!error->isEmpty())
            io.message(*error);
        return usage(io, synopsis);
    }
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
    return runTree(args, io, TreeTask::Purge, u"purge [-r] [-n] ORDNER"_s);
}

int runCleanCommand(const CliArgs& args, const CliStreams& io) {
    return runTree(args, io, TreeTask::Clean, u"clean [-r] [-n] [--patterns MUSTER] ORDNER"_s);
}

QString purgeCommandHelp(const QString& command) {
    if (command == u"purge"_s) {
        return u"quenfor-cli purge [-r] [-n] ORDNER\n"
               "  \"Dr.Fegel\": löscht in ORDNER von jedem Objekt (name.typ.N) alle Versionen außer der\n"
               "  höchsten; Versionen werden als Zahlen verglichen (.10 liegt über .9), eine Datei ohne\n"
               "  Nummer zählt als Version 0. Schreibgeschützte alte Versionen werden auch gelöscht.\n"
               "  Gibt den vollständigen Pfad jeder gelöschten Datei aus.\n"
               "  -r            auch alle Unterverzeichnisse (verlinkte Verzeichnisse werden nicht betreten)\n"
               "  -n, --dry-run nichts löschen, nur ausgeben, was gelöscht würde\n"_s;
    }
    if (command == u"clean"_s) {
        return u"quenfor-cli clean [-r] [-n] [--patterns MUSTER] ORDNER\n"
               "  \"Dr.Fegel\": löscht in ORDNER die Nebenprodukte des CAD-Systems (Stücklisten, Info-,\n"
               "  Log-, Trail- und Fehlerdateien ...) nach der Musterliste, Groß-/Kleinschreibung egal.\n"
               "  Gibt den vollständigen Pfad jeder gelöschten Datei aus.\n"
               "  -r                 auch alle Unterverzeichnisse (verlinkte werden nicht betreten)\n"
               "  -n, --dry-run      nichts löschen, nur ausgeben, was gelöscht würde\n"
               "  --patterns MUSTER  Muster durch \";\" getrennt, z. B. \"*.log*;*.inf*\"; ohne die Option\n"
               "                     die gespeicherte Liste von Dr.Fegel, sonst die Standardliste\n"_s +
               wildcardRulesHelp();
    }
    return {};
}

} // namespace quenfor::cli
