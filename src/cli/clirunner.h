#pragma once

#include <QFileDevice>
#include <QIODevice>
#include <QStringList>

namespace quenfor::cli {

enum ExitCode { kOk = 0, kFailed = 1, kUsage = 2 };

// Standard streams of one run; tests pass buffers.
struct CliStreams {
    QIODevice& in;
    QIODevice& out;
    QIODevice& err;

    void print(const QString& text) const;   // UTF-8 to out
    void message(const QString& text) const; // UTF-8 line to err
};

// Runs one command line (without the program name) and returns the exit status.
int runCli(const QStringList& args, const CliStreams& io);

// Flushes standard output; a write that failed anywhere (a full disk, a closed stream) turns the
// status into 1 with a German message, so no script takes a cut output for a whole one.
int finishOutput(QFileDevice& out, const CliStreams& io, int status);

} // namespace quenfor::cli
