#include "cli/commands.h"

#include "document/cleanuptools.h"
#include "document/documentfile.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"
#include "settings/mainsettings.h"

#include <QFile>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

const QStringList kDocumentCommands = {u"cat"_s,   u"blank"_s,  u"dedupe"_s,    u"sort"_s,
                                       u"lower"_s, u"repair"_s, u"categories"_s};

struct Input {
    ReadResult read;
    QByteArray bytes; // kept only where the tool needs the raw file (repair)
};

bool readInput(const QString& file, const CliArgs& args, const CliStreams& io, bool keepBytes, Input& input) {
    EncodingChoice choice;
    choice.codepage = effectiveCodepage(args);
    choice.force = args.codepage.has_value();
    if (file == u"-") {
        input.bytes = io.in.readAll();
        input.read = readDocumentBytes(input.bytes, choice);
    } else {
        input.read = readDocumentFile(file, choice);
        if (input.read.ok && keepBytes) {
            QFile f(file);
            if (f.open(QIODevice::ReadOnly))
                input.bytes = f.readAll();
        }
    }
    if (!input.read.ok) {
        io.message(input.read.error);
        return false;
    }
    if (!keepBytes)
        input.bytes.clear();
    return true;
}

int writeOutput(const QString& file, const CliArgs& args, const CliStreams& io, const QStringList& lines,
                const TextEncoding& encoding) {
    WriteResult result;
    if (args.inPlace)
        result = writeDocumentFile(file, lines, encoding);
    else if (args.outFile)
        result = writeDocumentFile(*args.outFile, lines, encoding);
    else
        result = writeDocument(io.out, lines, encoding);
    if (!result.ok) {
        io.message(result.error);
        return kFailed;
    }
    if (const QString warning = result.warning(encoding); !warning.isEmpty())
        io.message(warning);
    return kOk;
}

} // namespace

QString effectiveCodepage(const CliArgs& args) {
    if (args.codepage)
        return *args.codepage;
    return settingValue(Setting::Codepage);
}

bool isDocumentCommand(const QString& command) {
    return kDocumentCommands.contains(command);
}

int runDocumentCommand(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1 || !args.flags.isEmpty()) {
        io.message(u"Aufruf: quenfor-cli %1 [OPTIONEN] DATEI"_s.arg(args.command));
        return kUsage;
    }
    const QString file = args.positional.front();
    if (args.inPlace && file == u"-") {
        io.message(u"-i geht nicht mit der Standardeingabe."_s);
        return kUsage;
    }

    const QString& cmd = args.command;
    Input input;
    if (!readInput(file, args, io, cmd == u"repair", input))
        return kFailed;
    QStringList lines = std::move(input.read.lines);

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
    } else if (cmd == u"repair") {
        const QString text = decodeText(input.bytes, {effectiveCodepage(args), args.codepage.has_value()});
        lines = repairFragmentedText(text, lines.size());
    }
    const int status = writeOutput(file, args, io, lines, input.read.encoding);
    // Freeing a million strings one by one takes longer than the whole save; the process ends
    // right after this, and the system takes the memory back at once.
    static QStringList* const kept = new QStringList;
    *kept = std::move(lines);
    return status;
}

} // namespace quenfor::cli
