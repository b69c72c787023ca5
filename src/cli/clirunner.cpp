#include "cli/clirunner.h"

#include "cli/cliargs.h"
#include "cli/clitexts.h"
#include "cli/commands.h"
#include "cli/comparecommands.h"
#include "cli/drwcheckcommand.h"
#include "cli/editcommands.h"
#include "cli/findcommand.h"
#include "cli/interpolatecommand.h"
#include "cli/lintcommand.h"
#include "cli/mapkeycommands.h"
#include "cli/proposalcommands.h"
#include "cli/purgecommands.h"
#include "cli/searchprocommands.h"
#include "common/safefilewrite.h"

#include <QHash>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

void CliStreams::print(const QString& text) const {
    out.write(text.toUtf8());
}

void CliStreams::message(const QString& text) const {
    err.write(text.toUtf8());
    err.write("\n");
}

namespace {

using Runner = int (*)(const CliArgs&, const CliStreams&);

// The generators, mapkey tools and file utilities, each in a file of its own.
const QHash<QString, Runner>& toolCommands() {
    static const QHash<QString, Runner> commands = {
        {u"mapkeys"_s, runMapkeysCommand},
        {u"mapkey-dups"_s, runMapkeyDupsCommand},
        {u"favorite"_s, runFavoriteCommand},
        {u"replace"_s, runReplaceCommand},
        {u"proposal"_s, runProposalCommand},
        {u"ghost"_s, runGhostCommand},
        {u"searchpro"_s, runSearchProCommand},
        {u"purge"_s, runPurgeCommand},
        {u"clean"_s, runCleanCommand},
        {u"drwcheck"_s, runDrwCheckCommand},
        {u"find"_s, runFindCommand},
        {u"lint"_s, runLintCommand},
        {u"interpolate"_s, runInterpolateCommand},
        {u"effective"_s, runEffectiveCommand},
        {u"diff"_s, runDiffCommand},
    };
    return commands;
}

} // namespace

int runCli(const QStringList& argList, const CliStreams& io) {
    CliArgs args;
    if (const auto error = parseArgs(argList, args)) {
        io.message(*error);
        return kUsage;
    }
    if (args.version) {
        io.print(u"quenfor-cli " QUENFOR_VERSION "\n"_s);
        return kOk;
    }
    if (args.command.isEmpty()) {
        io.print(overviewHelp());
        return args.help ? kOk : kUsage;
    }
    if (args.help) {
        const QString help = commandHelp(args.command);
        if (help.isEmpty()) {
            io.message(u"Unbekannter Befehl: %1"_s.arg(args.command));
            return kUsage;
        }
        io.print(help);
        return kOk;
    }
    if (isDocumentCommand(args.command))
        return runDocumentCommand(args, io);
    if (isQueryCommand(args.command))
        return runQueryCommand(args, io);
    if (const Runner run = toolCommands().value(args.command))
        return run(args, io);
    io.message(u"Unbekannter Befehl: %1 (quenfor-cli --help zeigt alle Befehle)"_s.arg(args.command));
    return kUsage;
}

} // namespace quenfor::cli

namespace quenfor::cli {

int finishOutput(QFileDevice& out, const CliStreams& io, int status) {
    errno = 0;
    const bool flushed = out.flush();
    const int err = errno;
    if (flushed && out.error() == QFileDevice::NoError)
        return status;
    io.message(u"Die Ausgabe konnte nicht vollständig geschrieben werden: %1"_s.arg(err != 0 ? writeErrorReason(err)
                                                                                             : out.errorString()));
    return kFailed;
}

} // namespace quenfor::cli
