// Drives Rufpost as a user would: recipients, prepared messages and sending.
#include "desktools/loginname.h"
#include "desktools/netsend.h"
#include "desktools/netsendsettings.h"
#include "panelsandbox.h"
#include "ui/desktools/netsendwindow.h"
#include "ui/widgets/dialogs.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace quenfor;

class NetSendWindowTest : public QObject {
    Q_OBJECT

    QList<QStringList> m_commands;
    SendStart m_start = SendStart::Started;
    QStringList m_asked;
    Dialogs::Answer m_answer = Dialogs::Answer::Yes;

    std::unique_ptr<NetSendWindow> makeWindow() {
        return std::make_unique<NetSendWindow>([this](const NetSendCommand& command) {
            m_commands.append(QStringList{command.program} + command.arguments);
            return m_start;
        });
    }

    static QLineEdit* line(NetSendWindow& window, const QString& name) { return window.findChild<QLineEdit*>(name); }
    static void click(NetSendWindow& window, const QString& name) {
        auto* button = window.findChild<QPushButton*>(name);
        QVERIFY2(button, qPrintable(name));
        button->click();
    }
    static QString status(NetSendWindow& window) { return window.findChild<QLabel*>(u"lblstatus"_s)->text(); }

private slots:
    void init() {
        QVERIFY(storeNetSendSettings({u"myfriend"_s, u"Text1"_s, u"Text2"_s}));
        m_commands.clear();
        m_start = SendStart::Started;
        m_asked.clear();
        m_answer = Dialogs::Answer::Yes;
        Dialogs::setHandler([this](const Dialogs::Request& request) {
            m_asked.append(request.text);
            return Dialogs::Reply{m_answer, {}};
        });
    }

    void cleanup() { Dialogs::setHandler({}); }

    void opensWithTheStoredTextsAndTheLoginName() {
        auto window = makeWindow();
        QCOMPARE(line(*window, u"user"_s)->text(), u"myfriend"_s);
        QCOMPARE(line(*window, u"Text1"_s)->text(), u"Text1"_s);
        QCOMPARE(window->recipients(), QStringList{u"Text2"_s});
        QCOMPARE(window->findChild<QCheckBox*>(u"Check1"_s)->text(), loginName());
    }

    void sendHandsTheExactArgumentsToNet() {
        auto window = makeWindow();
        line(*window, u"user"_s)->setText(u"pc12"_s);
        line(*window, u"Text1"_s)->setText(u"Hallo"_s);
        click(*window, u"Command1"_s);
        window->findChild<QCheckBox*>(u"Check1"_s)->setChecked(true);
        click(*window, u"Command1"_s);
        QCOMPARE(m_commands,
                 (QList<QStringList>{{u"net"_s, u"send"_s, u"pc12"_s, u"Hallo\r"_s},
                                     {u"net"_s, u"send"_s, u"pc12"_s, u"Hallo\r- "_s + loginName() + u" -"_s}}));
        QCOMPARE(status(*window), QString());
        QVERIFY(m_asked.isEmpty());
    }

    void sendSaysWhenNothingCouldBeSent() {
        auto window = makeWindow();
        line(*window, u"user"_s)->clear();
        click(*window, u"Command1"_s);
        QCOMPARE(status(*window), noRecipientText());
        QVERIFY(m_commands.isEmpty());
        m_start = SendStart::Failed;
        line(*window, u"user"_s)->setText(u"pc12"_s);
        click(*window, u"Command1"_s);
        QCOMPARE(status(*window), shellNotStartedText());
        // Without a "net" command (every Linux) the window says so twice, and never looks sent.
        m_start = SendStart::NoProgram;
        click(*window, u"Command1"_s);
        QCOMPARE(status(*window), noNetCommandText());
        QCOMPARE(m_asked, QStringList{noNetCommandText()});
    }

    void rememberDeleteAndClearTheRecipients() {
        auto window = makeWindow();
        click(*window, u"clear"_s);
        QCOMPARE(m_asked, QStringList{u"Wirklich alle Eintäge löschen ?"_s});
        QVERIFY(window->recipients().isEmpty());
        QCOMPARE(window->recipientsText(), QString());

        line(*window, u"user"_s)->setText(u"pc12"_s);
        click(*window, u"cmd_merken"_s);
        QCOMPARE(window->recipients(), QStringList{u"pc12"_s});
        QCOMPARE(window->recipientsText(), u"pc12\r\n"_s);

        // Clicking a remembered recipient makes it the recipient again.
        auto* list = window->findChild<QListWidget*>(u"List1"_s);
        line(*window, u"user"_s)->clear();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        QCOMPARE(line(*window, u"user"_s)->text(), u"pc12"_s);

        // The only recipient deleted leaves the text and the list empty.
        click(*window, u"delete"_s);
        QCOMPARE(window->recipientsText(), QString());
        QVERIFY(window->recipients().isEmpty());

        line(*window, u"user"_s)->setText(u"meier"_s);
        click(*window, u"cmd_merken"_s);
        m_answer = Dialogs::Answer::No;
        click(*window, u"clear"_s);
        QCOMPARE(window->recipients(), QStringList{u"meier"_s});
    }

    void preparedMessagesAndDoubleClicks() {
        auto window = makeWindow();
        QLineEdit* message = line(*window, u"Text1"_s);
        click(*window, u"cmd_kaffee2"_s);
        QCOMPARE(message->text(), u"Ist der Kaffee eigentlich schon fertig ?"_s);
        click(*window, u"cmd_kommen"_s);
        QCOMPARE(message->text(), u"Könntest Du bitte mal vorbeikommen ?"_s);
        QTest::mouseDClick(message, Qt::LeftButton);
        QCOMPARE(message->text(), QString());
        QTest::mouseDClick(window.get(), Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(message->text(), u"Schwing die Hufe, der Kaffee ist fertig !"_s);
    }

    void closingStoresTheTexts() {
        auto window = makeWindow();
        line(*window, u"user"_s)->setText(u"pc12"_s);
        click(*window, u"cmd_merken"_s);
        line(*window, u"Text1"_s)->setText(u"Bis gleich"_s);
        window->close();
        const NetSendSettings stored = loadNetSendSettings();
        QCOMPARE(stored.recipient, u"pc12"_s);
        QCOMPARE(stored.message, u"Bis gleich"_s);
        QCOMPARE(stored.recipients, u"Text2\r\npc12\r\n"_s);
    }

    void looksRight() {
        auto window = makeWindow();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QString shots = qEnvironmentVariable("QUENFOR_SCREENSHOT_DIR");
        if (!shots.isEmpty())
            QVERIFY(window->grab().save(shots + u"/Rufpost.png"_s));
        for (auto* button : window->findChildren<QPushButton*>())
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<NetSendWindowTest>(argc, argv);
}

#include "netsendwindow_test.moc"
