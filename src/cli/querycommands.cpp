#include "cli/commands.h"

#include "document/configdocument.h"
#include "document/documentfile.h"
#include "document/filefamily.h"
#include "document/linekind.h"
#include "document/mapkeysplitter.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

int usage(const CliStreams& io, const QString& synopsis) {
    io.message(u"Aufruf: quenfor-cli "_s + synopsis);
    return kUsage;
}

int printKinds(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usage(io, u"kinds DATEI"_s);
    const QString& file = args.positional.front();
    EncodingChoice choice{effectiveCodepage(args), args.codepage.has_value()};
    const ReadResult read = file == u"-" ? readDocumentBytes(io.in.readAll(), choice) : readDocumentFile(file, choice);
    if (!read.ok) {
        io.message(read.error);
        return kFailed;
    }
    QString out;
    for (qsizetype i = 0; i < read.lines.size(); ++i)
        out += QString::number(i) + u'\t' + lineKindName(classifyLine(read.lines[i])) + u'\n';
    io.print(out);
    return kOk;
}

int printFamily(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usage(io, u"family NAME"_s);
    const FileFamily f = fileFamilyOf(args.positional.front());
    io.print(QStringList{familyKindName(f.kind), f.pickerList, f.optionListFile, f.knowledgeBaseFile, f.defaultSaveName}
                 .join(u'\t') +
             u'\n');
    return kOk;
}

int printMapkeySplit(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usage(io, u"split-mapkey ZEILE"_s);
    const QString& line = args.positional.front();
    ConfigDocument doc;
    doc.appendLine(line);
    doc.selectOnly(0);
    doc.setMarked(0);
    const MapkeySplitResult result = splitMapkeyLine(doc, line);
    if (result.refused) {
        io.message(result.message);
        return kFailed;
    }
    io.print(doc.lines().join(u'\n') + u'\n');
    if (!result.status.isEmpty())
        io.message(result.status);
    return kOk;
}

} // namespace

bool isQueryCommand(const QString& command) {
    return command == u"kinds" || command == u"family" || command == u"split-mapkey";
}

int runQueryCommand(const CliArgs& args, const CliStreams& io) {
    if (args.command == u"kinds")
        return printKinds(args, io);
    if (args.command == u"family")
        return printFamily(args, io);
    return printMapkeySplit(args, io);
}

} // namespace quenfor::cli
