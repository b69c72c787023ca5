#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"
#include "document/documentfile.h"

namespace quenfor::cli {

// The reading and writing every command shares, so each behaves exactly like the window's open
// and save.

// The code page for files that are not UTF-8: --codepage (which then also forces it), else the
// stored setting.
EncodingChoice encodingChoiceFor(const CliArgs& args);

// Reads FILE, or standard input for "-"; the error is already reported when `ok` is false.
ReadResult readInput(const QString& file, const CliArgs& args, const CliStreams& io,
                     LineFeeds lineFeeds = LineFeeds::InLine);

// Writes the lines like a save: back to `file` with -i, to -o's file, else to standard output.
// Reports failures and the "?" warning; returns the exit status. With -i, `readAs` is the file as
// it was read: if another program changed it since, it is not overwritten.
int writeOutput(const QString& file, const CliArgs& args, const CliStreams& io, const QStringList& lines,
                const TextEncoding& encoding, const std::optional<FileStamp>& readAs = std::nullopt);

// Prints "Aufruf: quenfor-cli " + synopsis and returns the usage status.
int usage(const CliStreams& io, const QString& synopsis);

} // namespace quenfor::cli
