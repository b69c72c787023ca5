#include "cli/commands.h"
#include "cli/commandtable.h"
#include "cli/documentio.h"

#include "common/pathsplit.h"
#include "common/programfolders.h"
#include "document/configdocument.h"
#include "document/documentfile.h"
#include "document/documentsearch.h"
#include "document/filefamily.h"
#include "document/linekind.h"
#include "document/mapkeysplitter.h"
#include "knowledge/explanation.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

int printKinds(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usageOf(io, args.command);
    const QString& file = args.positional.front();
    const ReadResult read = readInput(file, args, io);
    if (!read.ok)
        return kFailed;
    QString out;
    for (qsizetype i = 0; i < read.lines.size(); ++i)
        out += QString::number(i) + u'\t' + lineKindName(classifyLine(read.lines[i])) + u'\n';
    io.print(out);
    return kOk;
}

int printFamily(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usageOf(io, args.command);
    const FileFamily f = fileFamilyOf(args.positional.front());
    io.print(QStringList{familyKindName(f.kind), f.pickerList, f.optionListFile, f.knowledgeBaseFile, f.defaultSaveName}
                 .join(u'\t') +
             u'\n');
    return kOk;
}

int printMapkeySplit(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usageOf(io, args.command);
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

int printExplanation(const CliArgs& args, const CliStreams& io) {
    if (args.positional.size() != 1)
        return usageOf(io, args.command);
    const QString dataFolder = args.dataDir.value_or(programDataFolder());
    const QString knowledgeBase = args.kbFile.value_or(joinFolderAndName(dataFolder, u"config_opts.txt"));
    const Explanation explanation = explainEntryLine(args.positional.front(), knowledgeBase, encodingChoiceFor(args));
    if (explanation.knowledgeBaseMissing) {
        io.message(QString::fromUtf16(kKnowledgeBaseMissing));
        return kFailed;
    }
    if (!explanation.error.isEmpty()) {
        io.message(explanation.error);
        return kFailed;
    }
    io.print(explanation.text + u'\n');
    return kOk;
}

} // namespace

int runQueryCommand(const CliArgs& args, const CliStreams& io) {
    if (args.command == u"kinds")
        return printKinds(args, io);
    if (args.command == u"family")
        return printFamily(args, io);
    if (args.command == u"explain")
        return printExplanation(args, io);
    return printMapkeySplit(args, io);
}

} // namespace quenfor::cli
