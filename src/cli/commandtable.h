#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

#include <QList>
#include <QString>

namespace quenfor::cli {

// One option of a command: the help, the parser and the command all read it from here.
struct CommandOption {
    QString shortName;   // "-r", or empty
    QString longName;    // "--recursive", or empty when the option has only a short name
    QString valueName;   // "N" for "--mask N"; empty for a switch
    QString description; // German; "\n" starts a further line of the help

    bool takesValue() const { return !valueName.isEmpty(); }
    // The name a command asks CliArgs for: the long one where there is one.
    const QString& key() const { return longName.isEmpty() ? shortName : longName; }
    bool matches(QStringView name) const { return name == shortName || name == longName; }
};

enum class CommandGroup { Document, Query, CadFiles, Lint, Compare, Calculator };

using CommandRunner = int (*)(const CliArgs&, const CliStreams&);

struct CommandEntry {
    QString name;
    CommandGroup group;
    CommandRunner run;
    QString summary;   // one line of the overview help
    QString arguments; // what follows the options in the synopsis, e.g. "ORDNER MUSTER"
    QList<CommandOption> options;
    QString (*details)(); // the help below the synopsis, without the options
};

// Every command in the order the overview lists them.
const QList<CommandEntry>& commandTable();
const CommandEntry* findCommandEntry(QStringView name);

// The options every command takes (--codepage, -i, -o, --kb, --data, --help, --version).
const QList<CommandOption>& commonOptions();

// "find [--no-subfolders] [--mask N] ORDNER MUSTER"
QString synopsisOf(const CommandEntry& entry);

// The option list of a help text, one option a line with its description in one column.
QString optionLines(const QList<CommandOption>& options);

// Prints "Aufruf: quenfor-cli " and the command's synopsis; returns the usage status.
int usageOf(const CliStreams& io, QStringView command);

} // namespace quenfor::cli
