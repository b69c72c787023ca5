// The messenger's command line and the rules of its remembered recipients.
#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#include "desktools/netsend.h"
#include "desktools/netsendsettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

TEST(NetSendCommand, UnsignedAndSignedAsArguments) {
    const NetSendCommand plain = netSendCommand({u"pc12"_s, u"Hallo"_s, false, u"meier"_s});
    EXPECT_EQ(plain.program, u"net"_s);
    EXPECT_EQ(plain.arguments, (QStringList{u"send"_s, u"pc12"_s, u"Hallo\r"_s}));
    EXPECT_EQ(netSendCommand({u"pc12"_s, u"Hallo"_s, true, u"meier"_s}).arguments,
              (QStringList{u"send"_s, u"pc12"_s, u"Hallo\r- meier -"_s}));
}

// The user's text is an argument, never shell input: a message $(touch x) must create nothing.
TEST(NetSendCommand, UserTextNeverRunsAsACommand) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString marker = dir.filePath(u"x"_s);
    const NetSendMessage message{u"pc12; touch "_s + marker, u"$(touch "_s + marker + u") `touch "_s + marker + u"`"_s,
                                 true, u"\"; touch "_s + marker};
    NetSendCommand command = netSendCommand(message);
    EXPECT_EQ(command.arguments.size(), 3);
    // Run through a program that is surely there and prints nothing: its arguments stay text.
    command.program = u"true"_s;
    EXPECT_EQ(startNetSend(command), SendStart::Started);
    command.program = u"quenfor-kein-solcher-befehl"_s;
    EXPECT_EQ(startNetSend(command), SendStart::NoProgram);
    QThread::msleep(300);
    EXPECT_FALSE(QFile::exists(marker));
}

TEST(Recipients, ListIsTheNonEmptyLinesOfTheText) {
    EXPECT_EQ(recipientsOf(u"pc12\r\n\r\nmeier\r\n"_s), (QStringList{u"pc12"_s, u"meier"_s}));
    EXPECT_EQ(recipientsOf(u"a\nb\rc"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(recipientsOf(u"Text2"_s), QStringList{u"Text2"_s});
    EXPECT_TRUE(recipientsOf(QString()).isEmpty());
    EXPECT_EQ(recipientsText({u"a"_s, u"b"_s}), u"a\r\nb\r\n"_s);
}

TEST(Recipients, RememberAppendsANewNameWithItsLineEnd) {
    EXPECT_EQ(rememberRecipient(QString(), u"pc12"_s), u"pc12\r\n"_s);
    EXPECT_EQ(rememberRecipient(u"pc12\r\n"_s, u" meier "_s), u"pc12\r\nmeier\r\n"_s);
    // The first default text has no line end of its own.
    EXPECT_EQ(rememberRecipient(u"Text2"_s, u"pc12"_s), u"Text2\r\npc12\r\n"_s);
    EXPECT_EQ(rememberRecipient(u"pc12\r\n"_s, u"PC12"_s), u"pc12\r\n"_s);
    EXPECT_EQ(rememberRecipient(u"pc12\r\n"_s, u"  "_s), u"pc12\r\n"_s);
}

TEST(Recipients, DeletingTheOnlyRecipientLeavesNothing) {
    const QString text = withoutRecipient(recipientsOf(u"pc12\r\n"_s), 0);
    EXPECT_EQ(text, QString());
    EXPECT_TRUE(recipientsOf(text).isEmpty());
    EXPECT_EQ(withoutRecipient({u"a"_s, u"b"_s, u"c"_s}, 1), u"a\r\nc\r\n"_s);
    EXPECT_EQ(withoutRecipient({u"a"_s}, 5), u"a\r\n"_s);
    EXPECT_EQ(withoutRecipient({u"a"_s}, -1), u"a\r\n"_s);
}

class NetSendSettingsTest : public StoreSandbox {};

TEST_F(NetSendSettingsTest, DefaultsAreTheControlNamesAndTheTextKeepsItsLineEnds) {
    const NetSendSettings first = loadNetSendSettings();
    EXPECT_EQ(first.recipient, u"myfriend"_s);
    EXPECT_EQ(first.message, u"Text1"_s);
    EXPECT_EQ(first.recipients, u"Text2"_s);
    ASSERT_TRUE(storeNetSendSettings({u"pc12"_s, u"Hallo \"du\"; 100%"_s, u"pc12\r\nmeier\r\n"_s}));
    const NetSendSettings stored = loadNetSendSettings();
    EXPECT_EQ(stored.recipient, u"pc12"_s);
    EXPECT_EQ(stored.message, u"Hallo \"du\"; 100%"_s);
    EXPECT_EQ(stored.recipients, u"pc12\r\nmeier\r\n"_s);
    EXPECT_TRUE(QFile::exists(iniFile(u"Rufpost"_s)));
}
