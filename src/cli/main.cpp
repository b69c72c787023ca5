#include "cli/clirunner.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>

int main(int argc, char* argv[]) {
#ifdef SIGXFSZ
    // A file size limit must fail the write, which keeps the old file, not kill the process.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quenfor-cli"));

    QFile in;
    QFile out;
    QFile err;
    in.open(stdin, QIODevice::ReadOnly);
    out.open(stdout, QIODevice::WriteOnly);
    err.open(stderr, QIODevice::WriteOnly);
    const QStringList args = QCoreApplication::arguments().mid(1);
    const int status = quenfor::cli::runCli(args, {in, out, err});
    out.flush();
    err.flush();
    return status;
}
