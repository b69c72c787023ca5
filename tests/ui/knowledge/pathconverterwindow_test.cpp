// The path converter as its user drives it, over a fed mount table: both conversions, the message
// instead of an error, the clipboard and the path kept across a close.
#include "panelsandbox.h"

#include "ui/knowledge/pathconverterwindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

PathConverters fedConverters() {
    return PathConverters::withMounts(parseMountTable("/dev/sda1 / ext4 rw 0 0\n"
                                                      "//fileserver/cad /mnt/cad cifs rw 0 0\n"));
}

} // namespace

class PathConverterWindowTest : public QObject {
    Q_OBJECT

private:
    static void click(const PathConverterWindow& window, const QString& button) {
        QTest::mouseClick(child<QPushButton>(window, button), Qt::LeftButton);
    }

private slots:
    // Which paths convert and why others stay is the conversion's own business; the window shows
    // the result, or the path unchanged with the reason.
    void buttonsConvertOrShowWhyThePathStays() {
        PathConverterWindow window(nullptr, fedConverters());
        auto* result = child<QLineEdit>(window, u"txt_ergebnis"_s);
        auto* message = child<QLabel>(window, u"lbl_meldung"_s);
        QVERIFY(!child<QPushButton>(window, u"cmd_kopieren"_s)->isEnabled());

        window.setPath(u"/mnt/cad/parts/bracket.prt.3"_s);
        click(window, u"cmd_netzwerk"_s);
        QCOMPARE(result->text(), u"//fileserver/cad/parts/bracket.prt.3"_s);
        QVERIFY(message->text().isEmpty());
        window.setPath(u"\\\\FileServer\\cad\\parts"_s);
        click(window, u"cmd_laufwerk"_s);
        QCOMPARE(result->text(), u"/mnt/cad/parts"_s);

        window.setPath(u"/home/cad/teile"_s);
        click(window, u"cmd_netzwerk"_s);
        QCOMPARE(result->text(), u"/home/cad/teile"_s);
        QVERIFY(message->text().startsWith(u"Der Pfad \"/home/cad/teile\" liegt auf keinem Netzlaufwerk"_s));
        window.setPath(QString());
        click(window, u"cmd_laufwerk"_s);
        QCOMPARE(message->text(), u"Bitte geben Sie zuerst einen Pfad ein."_s);
        QVERIFY(!child<QPushButton>(window, u"cmd_kopieren"_s)->isEnabled());
    }

    void enterChoosesTheDirectionAndTheResultIsCopied() {
        PathConverterWindow window(nullptr, fedConverters());
        window.show();
        auto* path = child<QLineEdit>(window, u"txt_pfad"_s);
        path->setText(u"\"//fileserver/cad/a b\""_s);
        QTest::keyClick(path, Qt::Key_Return);
        QCOMPARE(window.result(), u"/mnt/cad/a b"_s);
        QVERIFY(window.isVisible());
        path->setText(u"/mnt/cad/x"_s);
        QTest::keyClick(path, Qt::Key_Return);
        QCOMPARE(window.result(), u"//fileserver/cad/x"_s);

        QGuiApplication::clipboard()->clear();
        click(window, u"cmd_kopieren"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"//fileserver/cad/x"_s);
        QCOMPARE(child<QLabel>(window, u"lbl_meldung"_s)->text(), u"Das Ergebnis steht in der Zwischenablage."_s);
    }

    void shortAndLongNamesWhereTheSystemKeepsThem() {
        PathConverters converters = fedConverters();
        converters.shortNames = true;
        converters.toShort = [](const QString& path) {
            return path == u"/a/Langer Name"_s ? u"/a/LANGER~1"_s : QString();
        };
        converters.toLong = [](const QString& path) {
            return path == u"/a/LANGER~1"_s ? u"/a/Langer Name"_s : QString();
        };
        PathConverterWindow window(nullptr, converters);
        window.show();
        QVERIFY(!child<QLabel>(window, u"lbl_kurzlang"_s)->isVisible());
        window.setPath(u"/a/Langer Name"_s);
        click(window, u"cmd_kurz"_s);
        QCOMPARE(window.result(), u"/a/LANGER~1"_s);
        window.setPath(window.result());
        click(window, u"cmd_lang"_s);
        QCOMPARE(window.result(), u"/a/Langer Name"_s);
    }

    void withoutShortNamesTheFormsAreGreyedWithTheReason() {
        PathConverters converters = fedConverters();
        converters.shortNames = false;
        PathConverterWindow window(nullptr, converters);
        window.show();
        for (const QString& name : {u"cmd_kurz"_s, u"cmd_lang"_s}) {
            auto* button = child<QPushButton>(window, name);
            QVERIFY(!button->isEnabled());
            QCOMPARE(button->toolTip(), shortNamesUnavailableText());
        }
        auto* note = child<QLabel>(window, u"lbl_kurzlang"_s);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), shortNamesUnavailableText());
    }

    void theLastPathIsKeptUnderPfadolin() {
        {
            PathConverterWindow window(nullptr, fedConverters());
            window.show();
            window.setPath(u"/mnt/cad/zuletzt"_s);
            click(window, u"cmd_exit"_s);
            QVERIFY(!window.isVisible());
        }
        PathConverterWindow again(nullptr, fedConverters());
        QCOMPARE(again.path(), u"/mnt/cad/zuletzt"_s);
        QCOMPARE(SettingsStore(u"Pfadolin"_s).value(u"Optionen"_s, u"txt_pfad"_s, QString()), u"/mnt/cad/zuletzt"_s);
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<PathConverterWindowTest>(argc, argv);
}

#include "pathconverterwindow_test.moc"
