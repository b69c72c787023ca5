#include "desktools/shellstart.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace quenfor {

bool startTerminal(const QString& folder) {
    // Debian's alternatives name the user's choice x-terminal-emulator; other systems lack it.
    const QStringList terminals{u"x-terminal-emulator"_s, u"gnome-terminal"_s, u"konsole"_s, u"xfce4-terminal"_s,
                                u"mate-terminal"_s,       u"lxterminal"_s,     u"xterm"_s};
    for (const QString& terminal : terminals) {
        const QString program = QStandardPaths::findExecutable(terminal);
        if (!program.isEmpty() && QProcess::startDetached(program, {}, folder))
            return true;
    }
    return false;
}

} // namespace quenfor
