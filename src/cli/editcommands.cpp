#include "cli/editcommands.h"

#include "cli/commandtable.h"
#include "cli/documentio.h"
#include "document/configdocument.h"
#include "document/documentfile.h"
#include "knowledge/favorites.h"
#include "knowledge/replacelines.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

int runFavoriteCommand(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usageOf(io, args.command);
    const FavoriteParts parts = takeFavoriteApart(args.positional.front());
    if (!parts.isFavorite) {
        io.message(u"Die Zeile beginnt nicht mit \"browser_favorite\" oder \"BROWSER_FAVORITE\" und ist "
                   "keine Favoritenzeile."_s);
        return kFailed;
    }
    io.print(parts.path + u'\n' + parts.name + u'\n');
    if (!parts.pathIsFolder)
        io.message(u"Hinweis: das Verzeichnis \"%1\" existiert nicht."_s.arg(parts.path));
    return kOk;
}

int runReplaceCommand(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 3)
        return usageOf(io, args.command);
    const QString& file = args.positional.at(2);
    if (args.inPlace && file == u"-") {
        io.message(u"-i geht nicht mit der Standardeingabe."_s);
        return kUsage;
    }
    ReadResult read = readInput(file, args, io);
    if (!read.ok) {
        io.message(read.error);
        return kFailed;
    }
    // The same run as the window's button, on a document of the file's lines.
    ConfigDocument document;
    document.replaceAll(std::move(read.lines));
    const int count = replaceInDocument(document, args.positional.at(0), args.positional.at(1));
    const int status = writeOutput(file, args, io, document.lines(), read.encoding, read.stamp);
    if (status == kOk)
        io.message(QString::number(count) + u' ' + QString::fromUtf16(kReplacedWord));
    return status;
}

QString editCommandHelp(const QString& command) {
    if (command == u"favorite")
        return u"  Zerlegt eine Favoritenzeile (browser_favorite VERZEICHNIS NAME) wie "
               u"der\n"
               "  Favoritenkonstruktor: gibt das Verzeichnis und den Namen aus, je eine Zeile.\n"
               "  Ein Name aus nur einem Zeichen wird nicht übernommen (leere Zeile); ein\n"
               "  Verzeichnis, das nicht existiert, meldet stderr.\n"_s;
    if (command == u"replace")
        return u"  \"Ersetzen\": ersetzt in jeder Zeile das "
               u"erste "
               "Vorkommen von SUCHTEXT ohne\n  Rücksicht auf Groß- und Kleinschreibung durch ERSATZ. stderr nennt die "
               "Zahl\n  der geänderten Zeilen und \"ersetzt\". Ein leerer SUCHTEXT setzt ERSATZ vor jede\n"
               "  nicht leere Zeile. Ein SUCHTEXT, der mit \"-\" beginnt, steht hinter \"--\".\n"_s;
    return {};
}

} // namespace quenfor::cli
