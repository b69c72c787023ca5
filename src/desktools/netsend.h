#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace quenfor {

// The messenger "Rufpost": the command line it runs and the rules of its list of remembered
// recipients. The recipients are kept as one text (Text2), a recipient a line, each line ended by
// CR LF; the list (List1) is always rebuilt from that text.

struct NetSendMessage {
    QString recipient;
    QString text;
    bool sign = false; // followed by the sender's login name
    QString sender;
};

// The program "net" with the arguments "send", the recipient and the text + CR; signed, the CR is
// followed by "- " + sender + " -". Handed over as a list, never through a shell, so nothing the
// user typed ($(...), quotes, ";") can run as a command.
struct NetSendCommand {
    QString program;
    QStringList arguments;
};
NetSendCommand netSendCommand(const NetSendMessage& message);

// What became of a start.
enum class SendStart { Started, NoProgram, Failed };
// Starts the command as it is, with no shell in between.
SendStart startNetSend(const NetSendCommand& command);

// The items of List1: every non-empty line of the text.
QStringList recipientsOf(const QString& text);
// The text of the items, each followed by CR LF.
QString recipientsText(const QStringList& recipients);
// The text with the recipient added at its end. A blank recipient, or one already listed (in any
// case, as the network's names are), leaves the text as it is.
QString rememberRecipient(const QString& text, const QString& recipient);
// The text of all items but the one at index; an index outside the list changes nothing.
QString withoutRecipient(const QStringList& recipients, qsizetype index);

// The question before the whole list is deleted.
QString clearRecipientsQuestion();

// The buttons that put a prepared message into the message line.
struct CannedMessage {
    QString button;  // objectName
    QString caption; // what the button says
    QString text;
};
QList<CannedMessage> cannedMessages();
// What a double-click on the window puts into the message line.
QString windowDoubleClickMessage();

// The window's captions.
inline constexpr char16_t kRecipientCaption[] = u"Empfänger:";
inline constexpr char16_t kMessageCaption[] = u"Nachricht:";
inline constexpr char16_t kRecipientsCaption[] = u"Gemerkte Empfänger:";
inline constexpr char16_t kCannedCaption[] = u"Textbausteine:";
inline constexpr char16_t kSendCaption[] = u"senden";
inline constexpr char16_t kRememberCaption[] = u"merken";
inline constexpr char16_t kDeleteCaption[] = u"löschen";
inline constexpr char16_t kClearCaption[] = u"alle löschen";
// Check1 carries the login name as its caption; the hint says what ticking it does.
inline constexpr char16_t kSignHint[] = u"Nachricht mit dem eigenen Anmeldenamen unterschreiben";

// Shown when the command could not be started at all.
QString shellNotStartedText();
// Shown in the status line and in a message box on a system without a "net" command (Linux).
QString noNetCommandText();
// Shown instead of sending when no recipient is given.
QString noRecipientText();

} // namespace quenfor
