#include "cli/cliargs.h"

using namespace Qt::StringLiterals;

namespace quenfor::cli {

std::optional<QString> parseArgs(const QStringList& args, CliArgs& out) {
    bool onlyPositional = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        auto takeValue = [&](std::optional<QString>& target) -> std::optional<QString> {
            if (i + 1 >= args.size())
                return u"Die Option %1 braucht einen Wert."_s.arg(a);
            target = args[++i];
            return std::nullopt;
        };
        if (onlyPositional || a == u"-" || !a.startsWith(u'-')) {
            if (out.command.isEmpty())
                out.command = a;
            else
                out.positional.append(a);
            continue;
        }
        if (a == u"--") {
            onlyPositional = true;
        } else if (a == u"--help" || a == u"-h") {
            out.help = true;
        } else if (a == u"--version") {
            out.version = true;
        } else if (a == u"-i" || a == u"--in-place") {
            out.inPlace = true;
        } else if (a == u"-o") {
            if (auto e = takeValue(out.outFile))
                return e;
        } else if (a == u"--codepage") {
            if (auto e = takeValue(out.codepage))
                return e;
        } else if (a == u"--kb") {
            if (auto e = takeValue(out.kbFile))
                return e;
        } else if (a == u"--data") {
            if (auto e = takeValue(out.dataDir))
                return e;
        } else if (a.startsWith(u"--codepage=")) {
            out.codepage = a.mid(11);
        } else if (a == u"--mask" || a == u"--release" || a == u"--format") {
            // Its value goes with it wherever the option stands, so it is never taken for a word.
            std::optional<QString> value;
            if (auto e = takeValue(value))
                return e;
            out.flags.append(a + u'=' + *value);
        } else {
            out.flags.append(a);
        }
    }
    if (out.inPlace && out.outFile)
        return u"-i und -o schließen einander aus."_s;
    return std::nullopt;
}

} // namespace quenfor::cli
