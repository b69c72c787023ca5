#include "cli/mapkeycommands.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "document/documentfile.h"
#include "knowledge/mapkeytools.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

// Reads FILE (or standard input for "-") as the window's open does and prints what `query`
// makes of its lines, one item a line.
int printForFile(const CliArgs& args, const CliStreams& io,
                 const std::function<QStringList(const QStringList&)>& query) {
    if (args.positional.size() != 1 || args.inPlace || args.outFile)
        return usageOf(io, args.command);
    const ReadResult read = readInput(args.positional.front(), args, io);
    if (!read.ok)
        return kFailed;
    QString out;
    for (const QString& item : query(read.lines))
        out += item + u'\n';
    io.print(out);
    return kOk;
}

} // namespace

int runMapkeysCommand(const CliArgs& args, const CliStreams& io) {
    return printForFile(args, io, mapkeyNames);
}

int runMapkeyDupsCommand(const CliArgs& args, const CliStreams& io) {
    return printForFile(args, io, duplicateMapkeyLines);
}

QString mapkeyCommandHelp(const QString& command) {
    if (command == u"mapkeys")
        return u"  Gibt die Namen aller Mapkeys aus, wie sie das Fenster \"Mapkeys\" auflistet:\n"
               u"  je Zeile, die mit \"mapkey \" beginnt, den Text bis zum nächsten Leerzeichen.\n"
               u"  Folgt dem Namen erst in den letzten beiden Zeichen der Zeile oder gar kein\n"
               u"  Leerzeichen, liefert die Zeile keinen Namen.\n"_s;
    if (command == u"mapkey-dups")
        return u"  Gibt die Mapkey-Zeilen aus, die das Fenster \"doppelte Mapkeys\" zeigt: jede erste\n"
               u"  Mapkey-Zeile, die genau gleich (Groß- und Kleinschreibung zählt) mehrfach\n"
               u"  vorkommt, einmal, in der Reihenfolge ihres ersten Auftretens.\n"_s;
    return {};
}

} // namespace quenfor::cli
