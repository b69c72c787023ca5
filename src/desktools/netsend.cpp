#include "desktools/netsend.h"

#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kLineEnd = u"\r\n"_s;

} // namespace

NetSendCommand netSendCommand(const NetSendMessage& message) {
    // The carriage return ends the message text, as the system's messenger expects it.
    QString text = message.text + u'\r';
    if (message.sign)
        text += u"- "_s + message.sender + u" -"_s;
    return {u"net"_s, {u"send"_s, message.recipient, text}};
}

SendStart startNetSend(const NetSendCommand& command) {
    const QString program = QStandardPaths::findExecutable(command.program);
    if (program.isEmpty())
        return SendStart::NoProgram;
    return QProcess::startDetached(program, command.arguments) ? SendStart::Started : SendStart::Failed;
}

QStringList recipientsOf(const QString& text) {
    // The store or an old version may have left lone CR or LF; every one of them ends a line.
    QString lines = text;
    lines.replace(kLineEnd, u"\n"_s);
    lines.replace(u'\r', u'\n');
    return lines.split(u'\n', Qt::SkipEmptyParts);
}

QString recipientsText(const QStringList& recipients) {
    QString text;
    for (const QString& recipient : recipients)
        text += recipient + kLineEnd;
    return text;
}

QString rememberRecipient(const QString& text, const QString& recipient) {
    const QString name = recipient.trimmed();
    if (name.isEmpty() || recipientsOf(text).contains(name, Qt::CaseInsensitive))
        return text;
    QString result = text;
    // The first default text has no line end; without one the name would run into it.
    if (!result.isEmpty() && !result.endsWith(u'\n') && !result.endsWith(u'\r'))
        result += kLineEnd;
    return result + name + kLineEnd;
}

QString withoutRecipient(const QStringList& recipients, qsizetype index) {
    QStringList rest = recipients;
    if (index >= 0 && index < rest.size())
        rest.removeAt(index);
    return recipientsText(rest);
}

QString clearRecipientsQuestion() {
    return u"Wirklich alle Eintäge löschen ?"_s;
}

QList<CannedMessage> cannedMessages() {
    return {
        {u"cmd_kaffee1"_s, u"Kaffee fertig"_s, u"Der Kaffee ist fertig !"_s},
        {u"cmd_kaffee2"_s, u"Kaffee fertig?"_s, u"Ist der Kaffee eigentlich schon fertig ?"_s},
        {u"cmd_anrufen"_s, u"Anrufen"_s, u"Bitte mal anrufen !"_s},
        {u"cmd_feierabend"_s, u"Feierabend"_s, u"Ich mach jetzt Feierabend !"_s},
        {u"cmd_kommen"_s, u"Vorbeikommen"_s, u"Könntest Du bitte mal vorbeikommen ?"_s},
        {u"cmd_morgen"_s, u"Guten Morgen"_s, u"Guten Morgen ! Ist der Chef schon da ?"_s},
    };
}

QString windowDoubleClickMessage() {
    return u"Schwing die Hufe, der Kaffee ist fertig !"_s;
}

QString shellNotStartedText() {
    return u"Die Nachricht wurde nicht gesendet: die Befehlszeile des Systems lässt sich nicht starten."_s;
}

QString noNetCommandText() {
    return u"Die Nachricht wurde nicht gesendet: Dieses System kennt den Befehl \"net send\" nicht "
           u"(unter Linux gibt es ihn nicht)."_s;
}

QString noRecipientText() {
    return u"Bitte zuerst einen Empfänger eingeben."_s;
}

} // namespace quenfor
