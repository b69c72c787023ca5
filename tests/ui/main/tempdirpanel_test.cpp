// The frame where a user repairs an unusable temporary folder: it must flag a missing folder while
// typing, refuse unusable folders with the exact texts, and hand on only a checked folder.
#include "panelsandbox.h"

#include "settings/mainsettings.h"
#include "ui/main/tempdirpanel.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

class TempDirPanelTest : public QObject {
    Q_OBJECT

private slots:
    void typingColoursMissingFoldersRed() {
        QTemporaryDir work;
        TempDirPanel panel;
        auto* entry = panel.findChild<QLineEdit*>(u"txt_tempdir"_s);
        QVERIFY(entry);
        const QColor red(255, 0, 0);
        const QColor normal = panel.palette().color(QPalette::Text);
        QVERIFY(normal != red);

        QTest::keyClicks(entry, work.path() + u"/x"_s);
        QCOMPARE(entry->palette().color(QPalette::Text), red);
        QTest::keyClick(entry, Qt::Key_Backspace);
        QCOMPARE(entry->palette().color(QPalette::Text), normal);
        QTest::keyClick(entry, Qt::Key_Backspace);
        QCOMPARE(entry->palette().color(QPalette::Text), normal);
        panel.setText(QString());
        QCOMPARE(entry->palette().color(QPalette::Text), red);
    }

    void enterChecksTheFolder_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<QString>("message");
        const QString advice = u" Bitte geben Sie ein gültiges Verzeichnis mit Schreibrechten an !"_s;
        QTest::newRow("usable") << u""_s << false << QString();
        QTest::newRow("missing") << u"fehlt"_s << false << u"Das angegebene Verzeichnis existiert nicht !"_s + advice;
        QTest::newRow("read-only") << u"nurlesen"_s << true
                                   << u"Das angegebene Verzeichnis hat keine Schreibrechte !"_s + advice;
    }

    void enterChecksTheFolder() {
        QFETCH(QString, name);
        QFETCH(bool, readOnly);
        QFETCH(QString, message);
        if (readOnly && geteuid() == 0)
            QSKIP("root writes into read-only folders, so the refusal cannot be seen");
        QTemporaryDir work;
        const QString text = name.isEmpty() ? work.path() : work.path() + u'/' + name;
        if (readOnly) {
            QVERIFY(QDir().mkdir(text));
            QVERIFY(QFile::setPermissions(text, QFile::ReadOwner | QFile::ExeOwner));
        }
        const QString folder = text + QDir::separator();
        const QString before = settingValue(Setting::TxtTempdir);
        TempDirPanel panel;
        auto* entry = panel.findChild<QLineEdit*>(u"txt_tempdir"_s);
        auto* check = panel.findChild<QLabel*>(u"lbl_TempDirCheck"_s);
        QSignalSpy changed(&panel, &TempDirPanel::tempDirChanged);

        QTest::keyClick(entry, Qt::Key_Return); // an empty entry is not checked
        QVERIFY(check->text().isEmpty());
        panel.setText(text);
        QTest::keyClick(entry, Qt::Key_Return);
        if (readOnly)
            QFile::setPermissions(text, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QCOMPARE(entry->text(), folder);
        if (message.isEmpty()) {
            QCOMPARE(changed.count(), 1);
            QCOMPARE(changed.at(0).at(0).toString(), folder);
            QCOMPARE(check->text(), u"temp Dir: "_s + folder);
            QCOMPARE(settingValue(Setting::TxtTempdir), folder);
        } else {
            QCOMPARE(check->text(), message);
            QCOMPARE(changed.count(), 0);
            QCOMPARE(settingValue(Setting::TxtTempdir), before);
        }
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<TempDirPanelTest>(argc, argv);
}

#include "tempdirpanel_test.moc"
