#include "desktools/skribbcommands.h"

#include "common/fileexists.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

SkribbCommand skribbCommand(const QString& text) {
    if (text == u"help" || text == u"info")
        return SkribbCommand::Help;
    if (text == u"DOS" || text == u"dos")
        return SkribbCommand::Terminal;
    if (text == u"X" || text == u"x" || text == u"EXIT" || text == u"exit")
        return SkribbCommand::EndProgram;
    if (text == u"autor")
        return SkribbCommand::Author;
    return SkribbCommand::None;
}

QString skribbAuthorText() {
    return u"Skribb, der Text-Editor von quenfor %1 – geschrieben vom quenfor-Team für CAD-Administratoren"_s.arg(
        QStringLiteral(QUENFOR_VERSION));
}

QString skribbAboutText() {
    return u"Skribb – der Text-Editor von quenfor %1\n\n"
           "Bearbeitet einen Text, öffnet und speichert Textdateien, druckt, erklärt die Zeile unter dem Cursor "
           "anhand von config_opts.txt und übersetzt den Text Zeile für Zeile über einen Übersetzungsdienst.\n\n"
           "In der Statuszeile: help oder info (Hilfeseite), dos (Eingabeaufforderung), x oder exit (Programm "
           "beenden), autor.\n\n"
           "Beim Schließen kann der Text als neue Zeilen in die Liste des Hauptfensters übernommen werden."_s.arg(
               QStringLiteral(QUENFOR_VERSION));
}

HelpPage helpPageOf(const QString& page) {
    HelpPage help;
    const QUrl url(page, QUrl::StrictMode);
    // A one-letter scheme is a Windows drive ("C:\\hilfe.html"), not a web address.
    if (url.isValid() && url.scheme().size() > 1 && !url.isLocalFile()) {
        help.url = url;
        help.address = page;
        return help;
    }
    const QString path = url.isLocalFile() ? url.toLocalFile() : page;
    help.address = QDir::toNativeSeparators(path);
    if (!fileExists(path)) {
        help.problem = u"Die Hilfeseite %1 gibt es nicht."_s.arg(help.address);
        return help;
    }
    help.url = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    return help;
}

QString helpPageFailure(const QString& address) {
    return u"Die Hilfeseite %1 konnte nicht geöffnet werden."_s.arg(address);
}

} // namespace quenfor
