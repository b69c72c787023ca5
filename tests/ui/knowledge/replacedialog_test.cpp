// The replace window as its user drives it: the designed examples with the count it shows, and
// its two texts kept across a close.
#include "panelsandbox.h"

#include "document/configdocument.h"
#include "ui/knowledge/replacedialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace quenfor;

class ReplaceDialogTest : public QObject {
    Q_OBJECT

private:
    template <typename T> static T* child(const ReplaceDialog& dialog, const QString& name) {
        auto* widget = dialog.findChild<T*>(name);
        if (!widget)
            qFatal("missing control %s", qPrintable(name));
        return widget;
    }

private slots:
    void opensWithTheDefaultTexts() {
        ConfigDocument doc;
        ReplaceDialog dialog(&doc);
        QCOMPARE(dialog.windowTitle(), u"Ersetzen"_s);
        QCOMPARE(child<QLabel>(dialog, u"Label1"_s)->text(), u"find:"_s);
        QCOMPARE(child<QLabel>(dialog, u"Label2"_s)->text(), u"replace:"_s);
        QCOMPARE(child<QPushButton>(dialog, u"cmd_ersetzen"_s)->text(), u"ersetzen"_s);
        QCOMPARE(child<QLineEdit>(dialog, u"txt_finde"_s)->text(), u"Suchbegriff eingeben"_s);
        QCOMPARE(child<QLineEdit>(dialog, u"txt_replace"_s)->text(), u"Ersatzbegriff eingeben"_s);
        QVERIFY(child<QLabel>(dialog, u"lbl_anzahl"_s)->text().isEmpty());
    }

    void replaces_data() {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("find");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QString>("count");
        QTest::newRow("paths") << QStringList{u"pro_format_dir C:\\3d\\Format"_s, u"display shade"_s} << u"c:\\3d"_s
                               << u"D:\\cad"_s << QStringList{u"pro_format_dir D:\\cad\\Format"_s, u"display shade"_s}
                               << u"1"_s;
        QTest::newRow("first only") << QStringList{u"a x a"_s} << u"a"_s << u"b"_s << QStringList{u"b x a"_s} << u"1"_s;
        QTest::newRow("at the end") << QStringList{u"search_path C:\\alt"_s, u"x alt"_s} << u"ALT"_s << u"neu"_s
                                    << QStringList{u"search_path C:\\neu"_s, u"x neu"_s} << u"2"_s;
        QTest::newRow("no match") << QStringList{u"a"_s, QString()} << u"zz"_s << u"y"_s
                                  << QStringList{u"a"_s, QString()} << u"0"_s;
        QTest::newRow("empty find") << QStringList{u"display shade"_s, QString(), u"tol_mode nominal"_s} << QString()
                                    << u"! "_s << QStringList{u"! display shade"_s, QString(), u"! tol_mode nominal"_s}
                                    << u"2"_s;
    }

    void replaces() {
        QFETCH(QStringList, lines);
        QFETCH(QString, find);
        QFETCH(QString, replacement);
        QFETCH(QStringList, expected);
        QFETCH(QString, count);
        ConfigDocument doc;
        doc.appendLines(lines);
        ReplaceDialog dialog(&doc);
        auto* countLabel = child<QLabel>(dialog, u"lbl_anzahl"_s);
        auto* word = child<QLabel>(dialog, u"lbl_text"_s);
        child<QLineEdit>(dialog, u"txt_finde"_s)->setText(find);
        child<QLineEdit>(dialog, u"txt_replace"_s)->setText(replacement);

        QTest::mouseClick(child<QPushButton>(dialog, u"cmd_ersetzen"_s), Qt::LeftButton);
        QCOMPARE(doc.lines(), expected);
        QCOMPARE(countLabel->text(), count);
        QCOMPARE(word->text(), u"ersetzt"_s);
    }

    void enterRunsAndEveryRunCountsAnew() {
        ConfigDocument doc;
        doc.appendLines({u"a 1"_s, u"a 2"_s});
        ReplaceDialog dialog(&doc);
        dialog.show();
        auto* find = child<QLineEdit>(dialog, u"txt_finde"_s);
        find->setText(u"a"_s);
        child<QLineEdit>(dialog, u"txt_replace"_s)->setText(u"b"_s);
        QTest::keyClick(find, Qt::Key_Return);
        QCOMPARE(doc.lines(), (QStringList{u"b 1"_s, u"b 2"_s}));
        QCOMPARE(child<QLabel>(dialog, u"lbl_anzahl"_s)->text(), u"2"_s);
        QVERIFY(dialog.isVisible());
        // The second run finds nothing left to replace.
        QTest::keyClick(find, Qt::Key_Return);
        QCOMPARE(child<QLabel>(dialog, u"lbl_anzahl"_s)->text(), u"0"_s);
    }

    void closingKeepsTheTextsForTheNextOpening() {
        ConfigDocument doc;
        {
            ReplaceDialog dialog(&doc);
            dialog.show();
            child<QLineEdit>(dialog, u"txt_finde"_s)->setText(u"C:\\3d"_s);
            child<QLineEdit>(dialog, u"txt_replace"_s)->setText(u"D:\\cad"_s);
            QTest::mouseClick(child<QPushButton>(dialog, u"cmd_exit"_s), Qt::LeftButton);
            QVERIFY(!dialog.isVisible());
        }
        ReplaceDialog again(&doc);
        QCOMPARE(child<QLineEdit>(again, u"txt_finde"_s)->text(), u"C:\\3d"_s);
        QCOMPARE(child<QLineEdit>(again, u"txt_replace"_s)->text(), u"D:\\cad"_s);
        // Escape closes as well and stores what was typed.
        again.show();
        child<QLineEdit>(again, u"txt_finde"_s)->setText(u"x"_s);
        QTest::keyClick(&again, Qt::Key_Escape);
        QCOMPARE(child<QLineEdit>(ReplaceDialog(&doc), u"txt_finde"_s)->text(), u"x"_s);
    }

    void aDocumentThatIsGoneIsLeftAlone() {
        auto* doc = new ConfigDocument;
        ReplaceDialog dialog(doc);
        delete doc;
        QCOMPARE(dialog.replace(), 0);
        QCOMPARE(child<QLabel>(dialog, u"lbl_anzahl"_s)->text(), u"0"_s);
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ReplaceDialogTest>(argc, argv);
}

#include "replacedialog_test.moc"
