#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor::cli {

// One command option as given, under its key (the long name where the option has one).
struct GivenOption {
    QString key;
    std::optional<QString> value;
};

// The command line after the common options were taken out of it.
struct CliArgs {
    QString command;
    QStringList positional;
    std::optional<QString> codepage; // --codepage NAME
    bool inPlace = false;            // -i, --in-place
    std::optional<QString> outFile;  // -o FILE
    std::optional<QString> kbFile;   // --kb FILE
    std::optional<QString> dataDir;  // --data DIR
    bool help = false;
    bool version = false;
    // The command's own options, in the order given; the parser let through only those the command
    // table lists for the command.
    QList<GivenOption> options;

    bool has(QStringView key) const { return count(key) > 0; }
    qsizetype count(QStringView key) const;
    // The value of the last occurrence.
    std::optional<QString> value(QStringView key) const;
};

// Parses the arguments (without the program name). Returns an error text for usage errors.
std::optional<QString> parseArgs(const QStringList& args, CliArgs& out);

} // namespace quenfor::cli
