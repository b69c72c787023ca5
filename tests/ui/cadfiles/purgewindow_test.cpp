#include "ui/cadfiles/purgewindow.h"

#include "cadfiles/purgesettings.h"
#include "panelsandbox.h"
#include "settings/settingsstore.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/statushints.h"

#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace quenfor;

class PurgeWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir* m_dir = nullptr;

    QString path(const QString& name) const { return QDir::toNativeSeparators(m_dir->filePath(name)); }

    void touch(const QString& name) {
        QDir().mkpath(QFileInfo(m_dir->filePath(name)).absolutePath());
        QFile file(m_dir->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    static QString statusOf(PurgeWindow& window) { return window.findChild<QLabel*>(u"lblStatus"_s)->text(); }

    static void click(PurgeWindow& window, const QString& button) {
        auto* b = window.findChild<QPushButton*>(button);
        QVERIFY2(b, qPrintable(button));
        b->click();
    }

    static void waitForRun(PurgeWindow& window) { QTRY_VERIFY_WITH_TIMEOUT(!window.isRunning(), 10000); }

private slots:
    void init() {
        m_dir = new QTemporaryDir;
        for (const QString& name :
             {u"w/p.prt.1"_s, u"w/p.prt.2"_s, u"w/p.prt.10"_s, u"w/q.asm.1"_s, u"w/x.log"_s, u"w/trail.txt.3"_s,
              u"w/sub/s.drw.9"_s, u"w/sub/s.drw.10"_s, u"w/sub/y.inf"_s, u"other/o.prt.1"_s, u"other/o.prt.2"_s})
            touch(name);
        PurgeSettings{path(u"w"_s), u"*.bomx*;*.log*"_s}.save();
        Dialogs::setHandler({});
        Dialogs::takeShownTexts();
    }

    void cleanup() {
        Dialogs::setHandler({});
        delete m_dir;
    }

    void opensOnTheStoredFolderAndAnalyses() {
        PurgeWindow window;
        QCOMPARE(window.windowTitle(), u"Dr.Fegel"_s);
        QCOMPARE(window.currentFolder(), path(u"w"_s));
        QCOMPARE(window.purgeList(), (QStringList{path(u"w/p.prt.1"_s), path(u"w/p.prt.2"_s)}));
        // The stored list is cut into 3-character pieces: "bomx" comes back as "bom" and ".lo".
        auto* extensions = window.findChild<QListWidget*>(u"Lstend"_s);
        QCOMPARE(extensions->count(), 2);
        QCOMPARE(extensions->item(0)->text(), u"bom"_s);
        QCOMPARE(extensions->item(1)->text(), u".lo"_s);
        auto* hints = window.findChild<StatusHints*>();
        QCOMPARE(hints->hintOf(window.findChild<QPushButton*>(u"cmd_delsel"_s)),
                 u"löscht nur die ausgewählten Dateien"_s);
        QCOMPARE(hints->hintOf(window.findChild<QPushButton*>(u"Command2"_s)),
                 u"purged alle Unterverzeichnisse abwärts der gewählten Position"_s);
    }

    void changingTheFolderKeepsTheAnalysis() {
        PurgeWindow window;
        window.setCurrentFolder(path(u"other"_s));
        QCOMPARE(window.purgeList(), (QStringList{path(u"w/p.prt.1"_s), path(u"w/p.prt.2"_s)}));
        // Purge all deletes what the last analysis listed, wherever it lies.
        click(window, u"cmd_delAll"_s);
        waitForRun(window);
        QVERIFY(!QFile::exists(path(u"w/p.prt.1"_s)));
        QVERIFY(!QFile::exists(path(u"w/p.prt.2"_s)));
        QVERIFY(QFile::exists(path(u"w/p.prt.10"_s)));
        QVERIFY(QFile::exists(path(u"other/o.prt.1"_s)));
        QCOMPARE(statusOf(window), u"2 gelöscht"_s);
        click(window, u"Command1"_s);
        QCOMPARE(window.purgeList(), QStringList{path(u"other/o.prt.1"_s)});
    }

    void purgeSelectedDeletesOnlyTheSelection() {
        PurgeWindow window;
        auto* list = window.findChild<QListView*>(u"List4"_s);
        list->selectionModel()->select(list->model()->index(1, 0), QItemSelectionModel::Select);
        click(window, u"cmd_delsel"_s);
        waitForRun(window);
        QVERIFY(QFile::exists(path(u"w/p.prt.1"_s)));
        QVERIFY(!QFile::exists(path(u"w/p.prt.2"_s)));
    }

    void cleanUsesTheTextBoxAndCountsTheListedFiles() {
        PurgeWindow window;
        auto* patterns = window.findChild<QLineEdit*>(u"txt_cleaningOptions"_s);
        QCOMPARE(patterns->text(), u"*.bomx*;*.log*"_s);
        QTest::keyClicks(patterns, u";*.txt*"_s);
        click(window, u"cmd_clean"_s);
        waitForRun(window);
        QCOMPARE(statusOf(window), u"2 gelöscht"_s);
        QVERIFY(!QFile::exists(path(u"w/x.log"_s)));
        QVERIFY(!QFile::exists(path(u"w/trail.txt.3"_s)));
        QVERIFY(QFile::exists(path(u"w/sub/y.inf"_s)));
    }

    void cancelledCleanCountsOnlyWhatItDeleted() {
        for (int i = 0; i < 5; ++i)
            touch(u"w/run%1.log"_s.arg(i));
        PurgeWindow window;
        click(window, u"cmd_clean"_s);
        // Cancelled before its first slice ran: nothing is gone, and the status must say so.
        click(window, u"cmd_cancel"_s);
        waitForRun(window);
        QCOMPARE(statusOf(window), u"Abgebrochen: 0 gelöscht, 6 nicht bearbeitet"_s);
        QVERIFY(QFile::exists(path(u"w/x.log"_s)));
        QVERIFY(QFile::exists(path(u"w/run4.log"_s)));
    }

    void optionsFrameBuildsThePatternList() {
        PurgeWindow window;
        click(window, u"cmd_what"_s);
        QVERIFY(window.findChild<QGroupBox*>(u"Frame2"_s)->isVisibleTo(&window));
        auto* extensions = window.findChild<QListWidget*>(u"Lstend"_s);
        extensions->item(1)->setSelected(true);
        click(window, u"cmd_weg"_s);
        window.findChild<QLineEdit*>(u"add"_s)->setText(u"inf"_s);
        click(window, u"cmd_add"_s);
        click(window, u"cmd_ok"_s);
        QCOMPARE(window.findChild<QLineEdit*>(u"txt_cleaningOptions"_s)->text(), u"*.bom*;*.inf*"_s);
        QVERIFY(!window.findChild<QGroupBox*>(u"Frame2"_s)->isVisibleTo(&window));
        click(window, u"cmd_reset"_s);
        QCOMPARE(window.findChild<QLineEdit*>(u"txt_cleaningOptions"_s)->text(),
                 u"*.bom*;*.inf*;*.m_p*;*.log*;*.ptd*;*.idx*;*.pls*;*.crc*;*.out*;*.tst*;*.err*;*.lst*;*.als*"_s);
        window.close();
        QCOMPARE(PurgeSettings::load().folder, path(u"w"_s));
        QVERIFY(PurgeSettings::load().cleaningPatterns.startsWith(u"*.bom*;*.inf*;*.m_p*"_s));
    }

    void recursivePurgeAsksPerFolderAndReturnsToTheStart() {
        PurgeWindow window;
        window.findChild<QCheckBox*>(u"chkpurge"_s)->setChecked(true);
        Dialogs::setHandler([](const Dialogs::Request& request) {
            // OK for the start folder, Cancel for its subfolder.
            return Dialogs::Reply{request.text.endsWith(u"sub"_s) ? Dialogs::Answer::Cancel : Dialogs::Answer::Ok, {}};
        });
        QSignalSpy finished(&window, &PurgeWindow::runFinished);
        click(window, u"Command2"_s);
        QVERIFY(finished.wait(10000));
        QCOMPARE(Dialogs::takeShownTexts(), (QStringList{path(u"w"_s), path(u"w/sub"_s)}));
        QVERIFY(!QFile::exists(path(u"w/p.prt.2"_s)));
        QVERIFY(QFile::exists(path(u"w/sub/s.drw.9"_s)));
        QCOMPARE(window.currentFolder(), path(u"w"_s));
        QVERIFY2(statusOf(window).startsWith(u"2 gelöscht"_s), qPrintable(statusOf(window)));
    }

    void recursiveCleanCanBeCancelled() {
        PurgeWindow window;
        window.findChild<QCheckBox*>(u"chkclean"_s)->setChecked(true);
        // Cancelling from inside the first question stops the run before anything is deleted.
        Dialogs::setHandler([&window](const Dialogs::Request&) {
            window.findChild<QPushButton*>(u"cmd_cancel"_s)->click();
            return Dialogs::Reply{Dialogs::Answer::Cancel, {}};
        });
        click(window, u"Command3"_s);
        waitForRun(window);
        QVERIFY(statusOf(window).startsWith(u"Abgebrochen"_s));
        QVERIFY(QFile::exists(path(u"w/x.log"_s)));
        QVERIFY(QFile::exists(path(u"w/sub/y.inf"_s)));
    }

    void looksRight() {
        PurgeWindow window;
        window.show();
        window.findChild<QPushButton*>(u"cmd_what"_s)->click();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QString shot = qEnvironmentVariable("QUENFOR_SCREENSHOT_DIR");
        if (!shot.isEmpty())
            QVERIFY(window.grab().save(shot + u"/frmPurge.png"_s));
        QVERIFY(window.findChild<QPushButton*>(u"Command2"_s)->width() >=
                window.findChild<QPushButton*>(u"Command2"_s)->sizeHint().width());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<PurgeWindowTest>(argc, argv);
}

#include "purgewindow_test.moc"
