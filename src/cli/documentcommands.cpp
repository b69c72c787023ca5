#include "cli/commands.h"
#include "cli/commandtable.h"
#include "cli/documentio.h"

#include "document/cleanuptools.h"
#include "document/documentfile.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

int runDocumentCommand(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usageOf(io, args.command);
    const QString file = args.positional.front();
    if (args.inPlace && file == u"-") {
        io.message(u"-i geht nicht mit der Standardeingabe."_s);
        return kUsage;
    }

    const QString& cmd = args.command;
    // The command is the menu entry and refuses with its text, before the file is even read.
    if (cmd == u"categories" && categorySortRefuses(file)) {
        io.message(QString::fromUtf16(kCategorySortRefusedMenu));
        return kFailed;
    }
    // The repair reads every LF as a line end: the lines are then repaired as they are read, and
    // a huge file is never held as bytes and as text at once.
    ReadResult read = readInput(file, args, io, cmd == u"repair" ? LineFeeds::EndLine : LineFeeds::InLine);
    if (!read.ok)
        return kFailed;
    QStringList lines = std::move(read.lines);

    if (cmd == u"blank") {
        lines = removeBlankLines(lines);
    } else if (cmd == u"dedupe") {
        if (lines.isEmpty())
            io.message(u"kein Inhalt"_s);
        lines = removeDuplicateLines(std::move(lines));
    } else if (cmd == u"sort") {
        std::optional<QString> dropped;
        lines = sortLinesAlphabetically(lines, QLocale(), &dropped);
        if (dropped)
            io.message(dropped->trimmed().isEmpty()
                           ? u"Beim Sortieren entfällt eine Leerzeile."_s
                           : u"Beim Sortieren entfällt die zuerst einsortierte Zeile: %1"_s.arg(*dropped));
    } else if (cmd == u"lower") {
        lines = lowerCaseLines(lines);
    } else if (cmd == u"categories") {
        lines = sortByCategory(lines, CategoryTable::builtIn());
    }
    const int status = writeOutput(file, args, io, lines, read.encoding, read.stamp);
    // Freeing a million strings one by one takes longer than the whole save; the process ends
    // right after this, and the system takes the memory back at once.
    static QStringList* const kept = new QStringList;
    *kept = std::move(lines);
    return status;
}

} // namespace quenfor::cli
