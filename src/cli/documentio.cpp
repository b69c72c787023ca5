#include "cli/documentio.h"

#include "settings/mainsettings.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

EncodingChoice encodingChoiceFor(const CliArgs& args) {
    return {args.codepage.value_or(settingValue(Setting::Codepage)), args.codepage.has_value()};
}

ReadResult readInput(const QString& file, const CliArgs& args, const CliStreams& io, LineFeeds lineFeeds) {
    const EncodingChoice choice = encodingChoiceFor(args);
    ReadResult read = file == u"-" ? readDocumentBytes(io.in.readAll(), choice, lineFeeds)
                                   : readDocumentFile(file, choice, lineFeeds);
    if (!read.ok)
        io.message(read.error);
    return read;
}

int writeOutput(const QString& file, const CliArgs& args, const CliStreams& io, const QStringList& lines,
                const TextEncoding& encoding, const std::optional<FileStamp>& readAs) {
    WriteResult result;
    if (args.inPlace)
        result = writeDocumentFile(file, lines, encoding, readAs);
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

int usage(const CliStreams& io, const QString& synopsis) {
    io.message(u"Aufruf: quenfor-cli "_s + synopsis);
    return kUsage;
}

} // namespace quenfor::cli
