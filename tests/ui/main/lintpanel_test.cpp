// The "Prüfen" view in the real main window: opened from the tool column and the context menu,
// a click on a finding selects its line as a click in the list would.
#include "document/configdocument.h"
#include "lint/linttexts.h"
#include "panelsandbox.h"
#include "ui/main/lintfindingmodel.h"
#include "ui/main/lintpanel.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// A small company config with three faults: a typo (line 3), a value set twice (line 5) and a
// mapkey whose continuation is missing (line 6).
const QByteArray kConfig = "! Konstruktion\r\n"
                           "pro_unit_length unit_mm\r\n"
                           "dispaly shade\r\n"
                           "bell no\r\n"
                           "PRO_UNIT_LENGTH unit_inch\r\n"
                           "mapkey rf @MAPKEY_LABELEinpassen;\\\r\n"
                           "! Ende\r\n";

} // namespace

class LintPanelTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<MainWindow> m_window;

    ConfigDocument& doc() { return *m_window->document(); }
    LintPanel* panel() { return m_window->findChild<LintPanel*>(u"frm_pruefen"_s); }
    QTableView* table() { return m_window->findChild<QTableView*>(u"List_befunde"_s); }
    QString summary() { return m_window->findChild<QLabel*>(u"lbl_befunde"_s)->text(); }

    QList<int> findingLines() {
        QList<int> lines;
        for (const LintFinding& f : panel()->model().findings())
            lines.append(f.line);
        return lines;
    }

    void waitForCheck() { QTRY_VERIFY_WITH_TIMEOUT(panel() && !panel()->isRunning(), 10000); }

    void clickRow(int row) {
        const QRect rect = table()->visualRect(table()->model()->index(row, 1));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, rect.center());
    }

private slots:
    void init() {
        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{Dialogs::Answer::No, {}}; });
        writeFile(m_dir.filePath(u"config.pro"_s), kConfig);
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1000, 700);
        m_window->startUp({m_dir.filePath(u"config.pro"_s)});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void toolButtonListsTheFindings() {
        QVERIFY(!panel()); // made when first asked for
        auto* button = m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s);
        QVERIFY(button);
        button->click();
        waitForCheck();
        QAbstractItemModelTester tester(table()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(findingLines(), (QList<int>{3, 5, 6}));
        QCOMPARE(summary(), u"3 Befunde"_s);
        QCOMPARE(table()->model()->data(table()->model()->index(0, 0)).toInt(), 3);
        QCOMPARE(table()->model()->data(table()->model()->index(0, 1)).toString(),
                 u"Unbekannte Option \"dispaly\" – meinten Sie \"display\"?"_s);
        QVERIFY(m_window->findChild<QDockWidget*>(u"dock_pruefen"_s)->isVisible());
    }

    void clickSelectsTheLineInTheList() {
        m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s)->click();
        waitForCheck();
        clickRow(1); // line 5
        QCOMPARE(doc().marked(), 4);
        QCOMPARE(doc().selectedRows(), QList<int>{4});
        QCOMPARE(m_window->findChild<QLineEdit*>(u"Text1"_s)->text(), u"PRO_UNIT_LENGTH unit_inch"_s);
        QVERIFY(m_window->status().startsWith(u"\"PRO_UNIT_LENGTH\" steht schon in Zeile 2"_s));
        auto* list = m_window->findChild<QListView*>(u"List1"_s);
        QVERIFY(list->selectionModel()->isRowSelected(4, {}));
        clickRow(0);
        QCOMPARE(doc().selectedRows(), QList<int>{2});
    }

    void contextMenuOpensTheView() {
        auto* list = m_window->findChild<QListView*>(u"List1"_s);
        QTest::mouseClick(list->viewport(), Qt::RightButton, {}, QPoint(20, 10));
        auto* menu = m_window->findChild<QWidget*>(u"kontextmenue"_s);
        QVERIFY(menu->isVisible());
        auto* entry = m_window->findChild<QAbstractButton*>(u"cmd_kontext_pruefen"_s);
        QCOMPARE(entry->text(), u"Prüfen"_s);
        QTest::mouseClick(entry, Qt::LeftButton);
        QVERIFY(!menu->isVisible());
        waitForCheck();
        QCOMPARE(findingLines(), (QList<int>{3, 5, 6}));
    }

    void editsMakeTheFindingsOldUntilChecked() {
        m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s)->click();
        waitForCheck();
        doc().setLine(2, u"display shade"_s);
        QVERIFY(summary().endsWith(QString::fromUtf16(kLintStale)));
        QCOMPARE(findingLines(), (QList<int>{3, 5, 6})); // as checked, until the user asks again

        m_window->findChild<QAbstractButton*>(u"cmd_neu_pruefen"_s)->click();
        waitForCheck();
        QCOMPARE(findingLines(), (QList<int>{5, 6}));
        doc().setLine(4, u"pro_unit_length unit_mm"_s);
        doc().setLine(5, u"mapkey rf @MAPKEY_LABELEinpassen;"_s);
        m_window->findChild<QAbstractButton*>(u"cmd_neu_pruefen"_s)->click();
        waitForCheck();
        QCOMPARE(summary(), QString::fromUtf16(kNoFindings));
        QCOMPARE(table()->model()->rowCount(), 0);
    }

    // Opening another file while the view is shown checks the new file at once.
    // Values outside an option's choices are findings; choosing a target release in the settings
    // checks the shown file again against it.
    void valuesAndTheTargetRelease() {
        writeFile(m_dir.filePath(u"neu.pro"_s), "3d_datum_display_fill yes\r\ndisplay shaded\r\n");
        m_window = std::make_unique<MainWindow>();
        m_window->startUp({m_dir.filePath(u"neu.pro"_s)});
        m_window->show();
        m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s)->click();
        waitForCheck();
        QCOMPARE(findingLines(), QList<int>{2});
        QVERIFY(panel()->model().findings().at(0).message.endsWith(u"meinten Sie \"shade\"?"_s));

        m_window->findChild<QAction*>(u"mnuTempVerzeichnis"_s)->trigger();
        auto* release = m_window->findChild<QComboBox*>(u"combo_zielversion"_s);
        const int cp6 = release->findData(u"CP6"_s);
        release->setCurrentIndex(cp6);
        emit release->activated(cp6);
        waitForCheck();
        QCOMPARE(findingLines(), (QList<int>{1, 2}));
        QCOMPARE(panel()->model().findings().at(0).message,
                 u"\"3d_datum_display_fill\" gibt es in Creo Parametric 6.0 nicht"_s);

        release->setCurrentIndex(0);
        emit release->activated(0);
        waitForCheck();
        QCOMPARE(findingLines(), QList<int>{2});
    }

    void anotherFileIsCheckedAtOnce() {
        m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s)->click();
        waitForCheck();
        writeFile(m_dir.filePath(u"din.dtl"_s), "text_height 3.5\r\ndisplay shade\r\n");
        m_window->startUp({m_dir.filePath(u"din.dtl"_s)});
        QCOMPARE(doc().count(), 2);
        waitForCheck();
        QCOMPARE(findingLines(), QList<int>{2});
        QVERIFY(panel()->model().findingAt(0).message.startsWith(u"Unbekannte Zeichnungsoption"_s));
    }

    void searchProIsCheckedForMissingFolders() {
        const QString present = m_dir.filePath(u"da"_s);
        QVERIFY(QDir().mkpath(present));
        const QString searchPro = m_dir.filePath(u"search.pro"_s);
        writeFile(searchPro,
                  (QDir::toNativeSeparators(present) + u"\r\n"_s + m_dir.filePath(u"fehlt"_s) + u"\r\n"_s).toUtf8());
        m_window->startUp({searchPro});
        m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s)->click();
        waitForCheck();
        QCOMPARE(findingLines(), QList<int>{2}); // the second line names the missing folder
        QVERIFY(summary() != u"Keine Befunde."_s);
    }

    void aLongCheckCanBeStopped() {
        QStringList lines;
        for (int i = 0; i < 300000; ++i)
            lines.append(u"dispaly_%1 shade"_s.arg(i % 5000));
        doc().replaceAll(lines);
        m_window->findChild<QAbstractButton*>(u"cmd_pruefen"_s)->click();
        auto* button = m_window->findChild<QAbstractButton*>(u"cmd_neu_pruefen"_s);
        QVERIFY(panel()->isRunning());
        QCOMPARE(button->text(), QString::fromUtf16(kLintCancel));
        button->click();
        waitForCheck();
        QCOMPARE(summary(), QString::fromUtf16(kLintCancelled));
        QCOMPARE(table()->model()->rowCount(), 0);
        QCOMPARE(button->text(), QString::fromUtf16(kLintRecheck));
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<LintPanelTest>(argc, argv);
}

#include "lintpanel_test.moc"
