#include "cli/clirunner.h"

#include "cli/cliargs.h"
#include "cli/clitexts.h"
#include "cli/commands.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

void CliStreams::print(const QString& text) const {
    out.write(text.toUtf8());
}

void CliStreams::message(const QString& text) const {
    err.write(text.toUtf8());
    err.write("\n");
}

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
    io.message(u"Unbekannter Befehl: %1 (quenfor-cli --help zeigt alle Befehle)"_s.arg(args.command));
    return kUsage;
}

} // namespace quenfor::cli
