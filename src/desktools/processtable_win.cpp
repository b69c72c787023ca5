// The process table from a Toolhelp snapshot, ended with TerminateProcess.
#include "desktools/processtable.h"

#include <windows.h>

#include <tlhelp32.h>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

class ToolhelpProcessTable : public ProcessTable {
public:
    QList<ProcessEntry> listProcesses() override {
        QList<ProcessEntry> entries;
        const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
        if (snapshot == INVALID_HANDLE_VALUE)
            return entries;
        PROCESSENTRY32W entry{};
        entry.dwSize = sizeof(entry);
        for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry)) {
            const QString reported = QString::fromWCharArray(entry.szExeFile, MAX_PATH);
            entries.append({programNameFromPath(reported, true), qint64(entry.th32ProcessID)});
        }
        CloseHandle(snapshot);
        return entries;
    }

    TerminateResult terminateProcess(qint64 pid) override {
        if (pid <= 0 || pid > qint64(MAXDWORD))
            return {false, u"Die Prozessnummer %1 gibt es nicht."_s.arg(pid)};
        const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, DWORD(pid));
        if (!process) {
            if (GetLastError() == ERROR_ACCESS_DENIED)
                return {false, u"Der Prozess %1 darf nicht beendet werden: Es fehlen die Rechte."_s.arg(pid)};
            return {false, u"Der Prozess %1 läuft nicht mehr."_s.arg(pid)};
        }
        const bool ended = TerminateProcess(process, 0) != 0;
        CloseHandle(process);
        if (ended)
            return {true, {}};
        return {false, u"Der Prozess %1 konnte nicht beendet werden."_s.arg(pid)};
    }

    qint64 ownProcessId() const override { return qint64(GetCurrentProcessId()); }
};

} // namespace

std::unique_ptr<ProcessTable> makeSystemProcessTable() {
    return std::make_unique<ToolhelpProcessTable>();
}

} // namespace quenfor
