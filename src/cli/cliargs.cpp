#include "cli/cliargs.h"

#include "cli/commandtable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

qsizetype CliArgs::count(QStringView key) const {
    return std::count_if(options.begin(), options.end(), [&](const GivenOption& o) { return o.key == key; });
}

std::optional<QString> CliArgs::value(QStringView key) const {
    for (auto it = options.rbegin(); it != options.rend(); ++it) {
        if (it->key == key)
            return it->value;
    }
    return std::nullopt;
}

namespace {

// "-5" or "-,5" is a number that a calculator refuses with its own message, never an option.
bool looksLikeNumber(QStringView a) {
    return a.size() > 1 && a[0] == u'-' && (a[1].isDigit() || a[1] == u',' || a[1] == u'.');
}

const CommandOption* findOption(const QList<CommandOption>& options, QStringView name) {
    const auto it =
        std::find_if(options.begin(), options.end(), [&](const CommandOption& o) { return o.matches(name); });
    return it == options.end() ? nullptr : &*it;
}

// Before the command word is read, an option takes a value when it does so for some command.
const CommandOption* anyCommandOption(QStringView name) {
    for (const CommandEntry& entry : commandTable()) {
        if (const CommandOption* option = findOption(entry.options, name))
            return option;
    }
    return nullptr;
}

void applyCommon(const CommandOption& option, const std::optional<QString>& value, CliArgs& out) {
    const QString& key = option.key();
    if (key == u"--help")
        out.help = true;
    else if (key == u"--version")
        out.version = true;
    else if (key == u"--in-place")
        out.inPlace = true;
    else if (key == u"-o")
        out.outFile = value;
    else if (key == u"--codepage")
        out.codepage = value;
    else if (key == u"--kb")
        out.kbFile = value;
    else if (key == u"--data")
        out.dataDir = value;
}

} // namespace

std::optional<QString> parseArgs(const QStringList& args, CliArgs& out) {
    struct Given {
        QString name; // as typed, without "=value"
        std::optional<QString> value;
    };
    QList<Given> given;
    bool onlyPositional = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (onlyPositional || a == u"-" || !a.startsWith(u'-') || looksLikeNumber(a)) {
            if (out.command.isEmpty())
                out.command = a;
            else
                out.positional.append(a);
            continue;
        }
        if (a == u"--") {
            onlyPositional = true;
            continue;
        }
        QString name = a;
        std::optional<QString> inlineValue;
        if (const qsizetype eq = a.indexOf(u'='); a.startsWith(u"--") && eq > 2) {
            name = a.left(eq);
            inlineValue = a.mid(eq + 1);
        }
        const CommandOption* common = findOption(commonOptions(), name);
        const CommandOption* option = common;
        if (!option) {
            const CommandEntry* entry = findCommandEntry(out.command);
            option = entry ? findOption(entry->options, name) : anyCommandOption(name);
        }
        std::optional<QString> value = inlineValue;
        if (option && option->takesValue() && !value) {
            // The value goes with its option wherever it stands, so it is never taken for a word.
            if (i + 1 >= args.size())
                return u"Die Option %1 braucht einen Wert."_s.arg(name);
            value = args[++i];
        } else if (option && !option->takesValue() && value) {
            return u"Die Option %1 nimmt keinen Wert."_s.arg(name);
        }
        if (common)
            applyCommon(*common, value, out);
        else
            given.append({name, value});
    }
    if (out.inPlace && out.outFile)
        return u"-i und -o schließen einander aus."_s;

    // An unknown command is reported as such by the runner; a help request shows the help anyway.
    const CommandEntry* entry = findCommandEntry(out.command);
    if (!entry || out.help)
        return std::nullopt;
    for (const Given& g : given) {
        const CommandOption* option = findOption(entry->options, g.name);
        if (!option)
            return u"Unbekannte Option %1 für den Befehl %2.\nAufruf: quenfor-cli %3"_s.arg(g.name, entry->name,
                                                                                            synopsisOf(*entry));
        if (option->takesValue() && !g.value)
            return u"Die Option %1 braucht einen Wert."_s.arg(g.name);
        if (!option->takesValue() && g.value)
            return u"Die Option %1 nimmt keinen Wert."_s.arg(g.name);
        out.options.append({option->key(), g.value});
    }
    return std::nullopt;
}

} // namespace quenfor::cli
