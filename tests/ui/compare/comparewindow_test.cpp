// "Vergleichen…" from the main window's Datei menu: the open file as A, a chosen B, the
// differences side by side, and German reasons when a file cannot be compared.
#include "compare/configdiff.h"
#include "panelsandbox.h"
#include "ui/compare/comparewindow.h"
#include "ui/compare/difftablemodel.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace quenfor;

class CompareWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<MainWindow> m_main;
    QString m_old;
    QString m_new;

    CompareWindow* window() { return m_main->findChild<CompareWindow*>(u"frmVergleichen"_s); }
    QLineEdit* field(const QString& name) { return window()->findChild<QLineEdit*>(name); }
    QString summary() { return window()->findChild<QLabel*>(u"lbl_ergebnis"_s)->text(); }
    QString cell(int row, int column) {
        const QAbstractItemModel& m = window()->model();
        return m.data(m.index(row, column)).toString();
    }

private slots:
    void init() {
        m_old = m_dir.filePath(u"config.pro"_s);
        m_new = m_dir.filePath(u"neu.pro"_s);
        writeFile(m_old, "! Konstruktion\r\npro_unit_length unit_mm\r\nbell no\r\nsearch_path C:\\ptc\\teile\r\n"
                         "mapkey $F2 @MAPKEY_LABELSpin;\\\r\nmapkey(continued) ~ Command `ProCmdViewSpin`;\r\n");
        writeFile(m_new, "search_path C:\\ptc\\teile\r\nPRO_UNIT_LENGTH unit_inch\r\n"
                         "mapkey $F2 @MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`;\r\ndisplay_grid yes\r\n");
        m_main = std::make_unique<MainWindow>();
        m_main->resize(1000, 700);
        m_main->startUp({m_old});
        m_main->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_main.get()));
        m_main->findChild<QAction*>(u"mnuVergleichen"_s)->trigger();
        QVERIFY(window());
        QVERIFY(QTest::qWaitForWindowExposed(window()));
    }

    void cleanup() {
        m_main.reset();
        Dialogs::setHandler({});
    }

    void theOpenFileIsAAndTheDifferencesStandSideBySide() {
        QCOMPARE(field(u"txt_dateiA"_s)->text(), QDir::toNativeSeparators(m_old));
        QVERIFY(field(u"txt_dateiB"_s)->hasFocus()); // A is there, B is what the user types next

        // B through the file dialog, the comparison by the keyboard.
        Dialogs::setHandler([this](const Dialogs::Request& r) {
            return Dialogs::Reply{r.kind == Dialogs::Kind::OpenFile ? Dialogs::Answer::Ok : Dialogs::Answer::No, m_new};
        });
        window()->findChild<QPushButton*>(u"cmd_dateiB"_s)->click();
        QCOMPARE(field(u"txt_dateiB"_s)->text(), QDir::toNativeSeparators(m_new));
        field(u"txt_dateiB"_s)->setFocus();
        QTest::keyClick(field(u"txt_dateiB"_s), Qt::Key_Return);

        QAbstractItemModelTester tester(&window()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(window()->model().rowCount(), 3);
        QCOMPARE(summary(), u"1 hinzugefügt, 1 entfernt, 1 geändert"_s);
        QCOMPARE(cell(0, DiffTableModel::ChangeColumn), u"entfernt"_s);
        QCOMPARE(cell(0, DiffTableModel::NameColumn), u"bell"_s);
        QCOMPARE(cell(0, DiffTableModel::ValueAColumn), u"no"_s);
        QCOMPARE(cell(0, DiffTableModel::LineAColumn), u"3"_s);
        QCOMPARE(cell(0, DiffTableModel::LineBColumn), QString());
        QCOMPARE(cell(1, DiffTableModel::NameColumn), u"display_grid"_s);
        QCOMPARE(cell(2, DiffTableModel::ChangeColumn), u"geändert"_s);
        QCOMPARE(cell(2, DiffTableModel::ValueAColumn), u"unit_mm"_s);
        QCOMPARE(cell(2, DiffTableModel::ValueBColumn), u"unit_inch"_s);
        // The table takes the focus, so the arrow keys walk the differences.
        QVERIFY(window()->findChild<QTableView*>(u"List_unterschiede"_s)->hasFocus());

        // The same file on both sides: nothing differs.
        field(u"txt_dateiB"_s)->setText(m_old);
        window()->findChild<QPushButton*>(u"cmd_vergleichen"_s)->click();
        QCOMPARE(window()->model().rowCount(), 0);
        QCOMPARE(summary(), u"Keine Unterschiede: beide Dateien setzen dasselbe."_s);
    }

    void filesThatCannotBeComparedAreNamed() {
        field(u"txt_dateiB"_s)->setText(m_dir.filePath(u"fehlt.pro"_s));
        window()->compare();
        QCOMPARE(window()->model().rowCount(), 0);
        QVERIFY2(summary().startsWith(u"Datei B: "_s) && summary().contains(u"existiert nicht"_s),
                 qPrintable(summary()));

        const QString binary = m_dir.filePath(u"teil.prt"_s);
        writeFile(binary, QByteArray("#UGC\0\0\x01", 7));
        field(u"txt_dateiA"_s)->setText(binary);
        field(u"txt_dateiB"_s)->setText(m_new);
        window()->compare();
        QVERIFY2(summary().startsWith(u"Datei A: "_s) && summary().contains(u"Binärdaten"_s), qPrintable(summary()));

        field(u"txt_dateiA"_s)->clear();
        window()->compare();
        QCOMPARE(summary(), u"Bitte Datei A und Datei B angeben."_s);
        QVERIFY(field(u"txt_dateiA"_s)->hasFocus());
    }

    void fitsASmallLaptopScreen() {
        const QSize screen(1366, 768);
        QVERIFY(window()->width() <= screen.width() && window()->height() <= screen.height() - 40);
        QVERIFY(window()->minimumSizeHint().width() <= screen.width());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<CompareWindowTest>(argc, argv);
}

#include "comparewindow_test.moc"
