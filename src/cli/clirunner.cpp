#include "cli/clirunner.h"

#include "cli/cliargs.h"
#include "cli/clitexts.h"
#include "cli/commandtable.h"
#include "common/safefilewrite.h"

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
    if (const CommandEntry* entry = findCommandEntry(args.command))
        return entry->run(args, io);
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
