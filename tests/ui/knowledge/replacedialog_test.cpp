// The replace window as its user drives it: the count it shows, and its two texts kept across a
// close.
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

private slots:
    // Which lines change is the replace run's own business; here: the button runs it on the
    // document and the window shows the count.
    void buttonReplacesAndShowsTheCount() {
        ConfigDocument doc;
        doc.appendLines({u"pro_format_dir C:\\3d\\Format"_s, u"display shade"_s});
        ReplaceDialog dialog(&doc);
        child<QLineEdit>(dialog, u"txt_finde"_s)->setText(u"c:\\3d"_s);
        child<QLineEdit>(dialog, u"txt_replace"_s)->setText(u"D:\\cad"_s);
        QTest::mouseClick(child<QPushButton>(dialog, u"cmd_ersetzen"_s), Qt::LeftButton);
        QCOMPARE(doc.lines(), (QStringList{u"pro_format_dir D:\\cad\\Format"_s, u"display shade"_s}));
        QCOMPARE(child<QLabel>(dialog, u"lbl_anzahl"_s)->text(), u"1"_s);
        QCOMPARE(child<QLabel>(dialog, u"lbl_text"_s)->text(), u"ersetzt"_s);
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
