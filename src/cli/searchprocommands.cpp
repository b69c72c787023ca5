#include "cli/searchprocommands.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "document/documentfile.h"
#include "knowledge/searchprowalk.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

int runSearchProCommand(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1 || args.inPlace)
        return usageOf(io, args.command);
    const SearchProWalkResult walk = SearchProWalk().run(args.positional.front());
    if (!walk.error.isEmpty()) {
        io.message(walk.error);
        return kFailed;
    }
    // The list is complete apart from these folders: say so, or the file would silently miss paths.
    for (const QString& folder : walk.unreadable)
        io.message(u"Nicht lesbar, seine Unterverzeichnisse fehlen: %1"_s.arg(folder));
    for (const QString& folder : walk.hidden)
        io.message(u"Versteckt, nicht aufgeführt: %1"_s.arg(folder));

    const TextEncoding encoding = TextEncoding::codepageNamed(encodingChoiceFor(args).codepage);
    return writeOutput({}, args, io, walk.folders, encoding);
}

QString searchProCommandHelp() {
    return u"  \"search.pro-Generator\": listet alle Verzeichnisse unterhalb von ORDNER, erst die\n"
           "  Unterverzeichnisse von ORDNER, dann deren Unterverzeichnisse, Ebene für Ebene, jede\n"
           "  Ebene nach Namen sortiert. Versteckte Verzeichnisse fehlen (stderr\n"
           "  nennt sie); verlinkte Verzeichnisse werden aufgeführt, aber nicht durchsucht.\n"
           "  Ausgabe als Datei mit CR LF in der Codepage.\n"_s;
}

} // namespace quenfor::cli
