#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <memory>

namespace quenfor {

struct ProcessEntry {
    QString name; // the program's file name, as a task manager shows it
    qint64 pid = 0;
};

struct TerminateResult {
    bool ended = false;
    QString error; // German, when it failed: no rights, already gone ...
};

// The running processes of the system and the means to end one; behind an interface so that the
// process killer can be tested with a table of its own.
class ProcessTable {
public:
    virtual ~ProcessTable() = default;

    // A fresh snapshot of the processes the user can see, in the system's order.
    virtual QList<ProcessEntry> listProcesses() = 0;
    // Ends the process at once (it gets no chance to refuse).
    virtual TerminateResult terminateProcess(qint64 pid) = 0;
    // The process this program runs in.
    virtual qint64 ownProcessId() const = 0;
};

// The table of this system: Toolhelp and TerminateProcess on Windows; /proc and SIGKILL elsewhere.
std::unique_ptr<ProcessTable> makeSystemProcessTable();

// Orders a snapshot for a list a user reads: by name regardless of case, equal names by number.
void sortByName(QList<ProcessEntry>& processes);

// The name shown for a program from what the system reports: cut at the first NUL character,
// the part after the last separator ("/", and "\" when backslashIsSeparator), at most 260
// characters.
QString programNameFromPath(QStringView reported, bool backslashIsSeparator);

} // namespace quenfor
