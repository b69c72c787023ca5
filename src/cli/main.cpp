#include "cli/clirunner.h"
#include "cli/hugepageheap.h"
#include "common/qttranslations.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <new>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

// A closed standard stream would hand its number to the next file the tool opens, and the output
// would land in that file. Hold each number with a stream on which every write fails instead.
void holdClosedStandardStreams() {
#ifdef Q_OS_UNIX
    for (int fd = 0; fd <= 2; ++fd) {
        if (::fcntl(fd, F_GETFD) == -1 && errno == EBADF)
            ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    }
#endif
}

} // namespace

int main(int argc, char* argv[]) {
    // First, before anything is set up that a restart would lose.
    quenfor::cli::restartWithHugePageHeapForLargeInputs(argv);
#ifdef SIGXFSZ
    // A file size limit must fail the write, which keeps the old file, not kill the process.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    holdClosedStandardStreams();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quenfor-cli"));
    quenfor::installGermanQtTranslations(app);

    QFile in;
    QFile out;
    QFile err;
    in.open(0, QIODevice::ReadOnly, QFileDevice::DontCloseHandle);
    out.open(1, QIODevice::WriteOnly, QFileDevice::DontCloseHandle);
    err.open(2, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::DontCloseHandle);
    const quenfor::cli::CliStreams io{in, out, err};
    int status = quenfor::cli::kFailed;
    try {
        status = quenfor::cli::runCli(QCoreApplication::arguments().mid(1), io);
    } catch (const std::bad_alloc&) {
        // Nothing was replaced: a save writes into a temporary file that is removed on the way out.
        io.message(
            QStringLiteral("Der Arbeitsspeicher reicht für diese Datei nicht aus; es wurde nichts geschrieben."));
        return quenfor::cli::kFailed;
    }
    return quenfor::cli::finishOutput(out, io, status);
}
