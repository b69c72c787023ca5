#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor::cli {

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
    // Command-specific flags such as -r, -n, kept for the command to check; "--mask N" comes as
    // "--mask=N", "--release NAME" as "--release=NAME".
    QStringList flags;
};

// Parses the arguments (without the program name). Returns an error text for usage errors.
std::optional<QString> parseArgs(const QStringList& args, CliArgs& out);

} // namespace quenfor::cli
