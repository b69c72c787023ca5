// The command table drives the help, the parser and the dispatch; these tests walk the table
// itself, so a command or option added later is checked without touching them.

#include "cli/cliargs.h"
#include "cli/clirunner.h"
#include "cli/clitexts.h"
#include "cli/commandtable.h"

#include <QBuffer>
#include <QRegularExpression>

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor::cli;

namespace {

struct InProcessRun {
    int status = -1;
    QString out;
    QString err;
};

InProcessRun runInProcess(const QStringList& args) {
    QBuffer in, out, err;
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    const int status = runCli(args, CliStreams{in, out, err});
    return {status, QString::fromUtf8(out.data()), QString::fromUtf8(err.data())};
}

QStringList namesOf(const CommandOption& option) {
    QStringList names;
    for (const QString& name : {option.shortName, option.longName}) {
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

TEST(CommandTableTest, EveryCommandHasItsHelpWithSynopsisAndOptions) {
    ASSERT_FALSE(commandTable().isEmpty());
    for (const CommandEntry& entry : commandTable()) {
        SCOPED_TRACE(entry.name.toStdString());
        EXPECT_FALSE(entry.summary.isEmpty());
        EXPECT_FALSE(entry.details().trimmed().isEmpty());
        const InProcessRun help = runInProcess({entry.name, u"--help"_s});
        EXPECT_EQ(help.status, kOk);
        EXPECT_TRUE(help.out.startsWith(u"quenfor-cli "_s + synopsisOf(entry) + u'\n')) << help.out.toStdString();
        // Each option has a line of its own that begins with its names.
        const QStringList lines = help.out.split(u'\n');
        for (const CommandOption& option : entry.options) {
            EXPECT_FALSE(option.description.isEmpty());
            const QStringList names = namesOf(option);
            const bool described = std::any_of(lines.begin(), lines.end(), [&](const QString& line) {
                return line.startsWith(u"  "_s + names.join(u", "_s));
            });
            EXPECT_TRUE(described) << names.join(u", "_s).toStdString();
        }
    }
}

TEST(CommandTableTest, OverviewListsEveryCommandExactlyOnce) {
    const QString overview = overviewHelp();
    for (const CommandEntry& entry : commandTable()) {
        const QRegularExpression line(u"^  "_s + QRegularExpression::escape(entry.name) + u"  +\\S"_s,
                                      QRegularExpression::MultilineOption);
        EXPECT_EQ(overview.count(line), 1) << entry.name.toStdString();
    }
    EXPECT_EQ(runInProcess({u"--help"_s}).out, overview);
}

TEST(CommandTableTest, EveryListedOptionIsTakenWithItsValue) {
    for (const CommandEntry& entry : commandTable()) {
        for (const CommandOption& option : entry.options) {
            for (const QString& name : namesOf(option)) {
                SCOPED_TRACE((entry.name + u' ' + name).toStdString());
                QStringList args = {entry.name, u"erstes"_s, name};
                if (option.takesValue())
                    args.append(u"-1"_s); // a value is taken as it stands, even one that looks like an option
                args.append(u"zweites"_s);
                CliArgs parsed;
                const std::optional<QString> error = parseArgs(args, parsed);
                ASSERT_FALSE(error) << error->toStdString();
                EXPECT_EQ(parsed.command, entry.name);
                EXPECT_EQ(parsed.positional, (QStringList{u"erstes"_s, u"zweites"_s}));
                EXPECT_EQ(parsed.count(option.key()), 1);
                if (option.takesValue())
                    EXPECT_EQ(parsed.value(option.key()), u"-1"_s);

                if (option.takesValue()) {
                    const std::optional<QString> missing = parseArgs({entry.name, u"x"_s, name}, parsed = {});
                    ASSERT_TRUE(missing);
                    EXPECT_TRUE(missing->contains(u"braucht einen Wert"_s)) << missing->toStdString();
                }
                if (name.startsWith(u"--")) {
                    // "--name=value" is the same as "--name value"; a switch refuses a value.
                    CliArgs joined;
                    const std::optional<QString> e = parseArgs({entry.name, name + u"=w"_s, u"x"_s}, joined);
                    if (option.takesValue()) {
                        ASSERT_FALSE(e) << e->toStdString();
                        EXPECT_EQ(joined.value(option.key()), u"w"_s);
                    } else {
                        ASSERT_TRUE(e);
                        EXPECT_TRUE(e->contains(u"nimmt keinen Wert"_s)) << e->toStdString();
                    }
                }
            }
        }
    }
}

TEST(CommandTableTest, AnOptionNotListedForTheCommandIsAUsageErrorNamingBoth) {
    for (const CommandEntry& entry : commandTable()) {
        QStringList foreign = {u"--gibt-es-nicht"_s, u"-x"_s};
        // Options of other commands are unknown here too.
        for (const CommandEntry& other : commandTable()) {
            for (const CommandOption& option : other.options) {
                for (const QString& name : namesOf(option)) {
                    const bool listed = std::any_of(entry.options.begin(), entry.options.end(),
                                                    [&](const CommandOption& o) { return o.matches(name); });
                    if (!listed && !option.takesValue() && !foreign.contains(name))
                        foreign.append(name);
                }
            }
        }
        for (const QString& name : foreign) {
            SCOPED_TRACE((entry.name + u' ' + name).toStdString());
            const InProcessRun r = runInProcess({entry.name, name, u"x"_s});
            EXPECT_EQ(r.status, kUsage);
            EXPECT_TRUE(r.out.isEmpty());
            EXPECT_TRUE(r.err.contains(u"Unbekannte Option %1 für den Befehl %2"_s.arg(name, entry.name)))
                << r.err.toStdString();
            EXPECT_TRUE(r.err.contains(u"Aufruf: quenfor-cli "_s + synopsisOf(entry))) << r.err.toStdString();
        }
    }
}

TEST(CommandTableTest, WordsAroundOptionsStayInPlace) {
    // An option before the command word still takes its value; a negative number is a word.
    CliArgs parsed;
    ASSERT_FALSE(parseArgs({u"--mask"_s, u"33"_s, u"find"_s, u"ordner"_s, u"*"_s}, parsed));
    EXPECT_EQ(parsed.command, u"find"_s);
    EXPECT_EQ(parsed.value(u"--mask"), u"33"_s);
    EXPECT_EQ(parsed.positional, (QStringList{u"ordner"_s, u"*"_s}));

    CliArgs numbers;
    ASSERT_FALSE(parseArgs({u"interpolate"_s, u"0"_s, u"-,5"_s, u"10"_s, u"-.5"_s, u"-5"_s}, numbers));
    EXPECT_EQ(numbers.positional.size(), 5);
    EXPECT_TRUE(numbers.options.isEmpty());

    // After "--" everything is a word, and a help request is answered despite a stray option.
    CliArgs words;
    ASSERT_FALSE(parseArgs({u"replace"_s, u"--"_s, u"--mask"_s, u"-r"_s, u"datei"_s}, words));
    EXPECT_EQ(words.positional, (QStringList{u"--mask"_s, u"-r"_s, u"datei"_s}));
    EXPECT_EQ(runInProcess({u"purge"_s, u"--gibt-es-nicht"_s, u"--help"_s}).status, kOk);
}

} // namespace
