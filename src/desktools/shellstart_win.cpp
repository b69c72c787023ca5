#include "desktools/shellstart.h"

#include <QProcess>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// A console window of its own that appears without taking the focus from the program.
void showWithoutFocus(QProcess::CreateProcessArguments* arguments) {
    arguments->flags |= CREATE_NEW_CONSOLE;
    arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
    arguments->startupInfo->wShowWindow = SW_SHOWNOACTIVATE;
}

bool startCmd(const QString& nativeArguments, const QString& folder) {
    QProcess process;
    process.setProgram(u"cmd.exe"_s);
    // Given as they are, so that the quotes and the carriage return of the line reach cmd unchanged.
    process.setNativeArguments(nativeArguments);
    process.setWorkingDirectory(folder);
    process.setCreateProcessArgumentsModifier(showWithoutFocus);
    return process.startDetached();
}

} // namespace

bool startTerminal(const QString& folder) {
    return startCmd(QString(), folder);
}

} // namespace quenfor
