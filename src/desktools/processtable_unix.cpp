// The process table from /proc, ended with SIGKILL.
#include "desktools/processtable.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Enough for a state line or the first word of a command line; the rest is not needed.
constexpr qsizetype kReadLimit = 4096;

QByteArray readProcFile(const QByteArray& path) {
    QByteArray bytes;
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return bytes;
    bytes.resize(kReadLimit);
    qsizetype filled = 0;
    while (filled < kReadLimit) {
        const ssize_t n = ::read(fd, bytes.data() + filled, size_t(kReadLimit - filled));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        filled += n;
    }
    ::close(fd);
    bytes.truncate(filled);
    return bytes;
}

// Zombies wait only for their parent and cannot be ended again; dead ones are on their way out.
bool isFinished(const QByteArray& stat) {
    const qsizetype close = stat.lastIndexOf(')');
    if (close < 0 || close + 2 >= stat.size())
        return false;
    const char state = stat.at(close + 2);
    return state == 'Z' || state == 'X' || state == 'x';
}

QString executableName(const QByteArray& folder) {
    QByteArray target(kReadLimit, Qt::Uninitialized);
    const ssize_t n = ::readlink((folder + "/exe").constData(), target.data(), size_t(target.size()));
    if (n <= 0)
        return {};
    target.truncate(n);
    // A program replaced on disk while it runs still is the same program.
    static const QByteArray deleted = " (deleted)";
    if (target.endsWith(deleted))
        target.chop(deleted.size());
    // A program run from memory (a sealed memfd) is known to its user by its command line.
    if (!target.startsWith('/') || target.startsWith("/memfd:"))
        return {};
    return programNameFromPath(QFile::decodeName(target), false);
}

QString commandName(const QByteArray& commandLine) {
    QByteArray first = commandLine.left(commandLine.indexOf('\0'));
    const qsizetype blank = first.indexOf(' ');
    if (blank >= 0)
        first.truncate(blank);
    return programNameFromPath(QFile::decodeName(first), false);
}

class ProcProcessTable : public ProcessTable {
public:
    QList<ProcessEntry> listProcesses() override {
        QList<ProcessEntry> entries;
        DIR* proc = ::opendir("/proc");
        if (!proc)
            return entries;
        while (const dirent* entry = ::readdir(proc)) {
            bool isNumber = false;
            const qint64 pid = QByteArray(entry->d_name).toLongLong(&isNumber);
            if (!isNumber || pid <= 0)
                continue;
            const QByteArray folder = "/proc/" + QByteArray(entry->d_name);
            if (isFinished(readProcFile(folder + "/stat")))
                continue;
            // Kernel threads have no command line: no program a user started or could end.
            const QByteArray commandLine = readProcFile(folder + "/cmdline");
            if (commandLine.isEmpty())
                continue;
            // The executable is readable for the user's own processes, the command line for all.
            QString name = executableName(folder);
            if (name.isEmpty())
                name = commandName(commandLine);
            if (name.isEmpty())
                name = QString::fromLocal8Bit(readProcFile(folder + "/comm").trimmed());
            if (!name.isEmpty())
                entries.append({name, pid});
        }
        ::closedir(proc);
        return entries;
    }

    TerminateResult terminateProcess(qint64 pid) override {
        // 0 and negative numbers would address whole process groups.
        if (pid <= 0 || pid > std::numeric_limits<pid_t>::max())
            return {false, u"Die Prozessnummer %1 gibt es nicht."_s.arg(pid)};
        if (::kill(pid_t(pid), SIGKILL) == 0)
            return {true, {}};
        switch (errno) {
        case EPERM:
            return {false, u"Der Prozess %1 darf nicht beendet werden: Es fehlen die Rechte."_s.arg(pid)};
        case ESRCH:
            return {false, u"Der Prozess %1 läuft nicht mehr."_s.arg(pid)};
        default:
            return {false, u"Der Prozess %1 konnte nicht beendet werden."_s.arg(pid)};
        }
    }

    qint64 ownProcessId() const override { return qint64(::getpid()); }
};

} // namespace

std::unique_ptr<ProcessTable> makeSystemProcessTable() {
    return std::make_unique<ProcProcessTable>();
}

} // namespace quenfor
