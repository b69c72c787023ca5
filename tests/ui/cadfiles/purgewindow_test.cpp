#include "ui/cadfiles/purgewindow.h"

#include "cadfiles/purgesettings.h"
#include "panelsandbox.h"
#include "settings/settingsstore.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
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

    static QStringList cleanList(PurgeWindow& window) {
        const QAbstractItemModel* model = window.findChild<QListView*>(u"File2"_s)->model();
        QStringList names;
        for (int row = 0; row < model->rowCount(); ++row)
            names.append(model->index(row, 0).data().toString());
        return names;
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
        QCOMPARE(window.currentFolder(), path(u"w"_s));
        QCOMPARE(window.purgeList(), (QStringList{path(u"w/p.prt.1"_s), path(u"w/p.prt.2"_s)}));
        // The stored list is cut into 3-character pieces: "bomx" comes back as "bom" and ".lo".
        auto* extensions = window.findChild<QListWidget*>(u"Lstend"_s);
        QCOMPARE(extensions->count(), 2);
        QCOMPARE(extensions->item(0)->text(), u"bom"_s);
        QCOMPARE(extensions->item(1)->text(), u".lo"_s);
    }

    void anUnreadableDriveIsToldAndTheShownOneStays() {
        PurgeWindow window;
        auto* drives = window.findChild<QComboBox*>(u"Drive1"_s);
        const int shown = drives->currentIndex();
        drives->addItem(path(u"kein Laufwerk"_s));
        drives->setCurrentIndex(drives->count() - 1);
        emit drives->activated(drives->count() - 1);
        QCOMPARE(statusOf(window), u"Laufwerk nicht verfügbar !"_s);
        QCOMPARE(drives->currentIndex(), shown);
        QCOMPARE(window.currentFolder(), path(u"w"_s));
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

    void cleanListFollowsThePatternsOnlyOnLoadAndOk() {
        PurgeWindow window;
        auto* patterns = window.findChild<QLineEdit*>(u"txt_cleaningOptions"_s);
        QCOMPARE(patterns->text(), u"*.bomx*;*.log*"_s);
        QCOMPARE(cleanList(window), QStringList{u"x.log"_s});
        QTest::keyClick(patterns, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(patterns, u"*"_s);
        QCOMPARE(patterns->text(), u"*"_s);
        // Typing changes neither the list nor what a clean deletes, and the user is told so.
        QCOMPARE(cleanList(window), QStringList{u"x.log"_s});
        QVERIFY2(statusOf(window).contains(u"nächsten Öffnen"_s), qPrintable(statusOf(window)));
        window.setCurrentFolder(path(u"w/sub"_s));
        QCOMPARE(cleanList(window), QStringList());
        window.setCurrentFolder(path(u"w"_s));
        click(window, u"cmd_clean"_s);
        waitForRun(window);
        QCOMPARE(statusOf(window), u"1 gelöscht"_s);
        QVERIFY(!QFile::exists(path(u"w/x.log"_s)));
        for (const QString& name : {u"w/p.prt.1"_s, u"w/p.prt.10"_s, u"w/q.asm.1"_s, u"w/trail.txt.3"_s})
            QVERIFY2(QFile::exists(path(name)), qPrintable(name));
        // The clean of the tree takes the same patterns.
        click(window, u"Command3"_s);
        waitForRun(window);
        QVERIFY(QFile::exists(path(u"w/sub/y.inf"_s)));
        QVERIFY(QFile::exists(path(u"w/sub/s.drw.9"_s)));
        // OK in the options frame applies its list of extensions.
        click(window, u"cmd_what"_s);
        window.findChild<QLineEdit*>(u"add"_s)->setText(u"inf"_s);
        click(window, u"cmd_add"_s);
        click(window, u"cmd_ok"_s);
        QCOMPARE(patterns->text(), u"*.bom*;*..lo*;*.inf*"_s);
        window.setCurrentFolder(path(u"w/sub"_s));
        QCOMPARE(cleanList(window), QStringList{u"y.inf"_s});
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

    // Every control is inside the window, shows its whole caption and overlaps no other; the lists
    // have room for a few lines. Checked with the options frame open, the fullest state.
    void looksRight() {
        PurgeWindow window;
        window.show();
        click(window, u"cmd_what"_s);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QString shot = qEnvironmentVariable("QUENFOR_SCREENSHOT_DIR");
        if (!shot.isEmpty())
            QVERIFY(window.grab().save(shot + u"/frmPurge.png"_s));

        QList<QWidget*> controls;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                                        qobject_cast<QAbstractItemView*>(widget) || qobject_cast<QComboBox*>(widget)))
                controls.append(widget);
        }
        QVERIFY(controls.size() >= 20);
        const auto area = [&window](const QWidget* widget) {
            return QRect(widget->mapTo(&window, QPoint(0, 0)), widget->size());
        };
        const int line = window.fontMetrics().lineSpacing();
        for (const QWidget* control : std::as_const(controls)) {
            const QString name = control->objectName();
            QVERIFY2(window.rect().contains(area(control)), qPrintable(name));
            if (qobject_cast<const QAbstractButton*>(control)) {
                QVERIFY2(control->width() >= control->sizeHint().width(), qPrintable(name));
                QVERIFY2(control->height() >= control->sizeHint().height(), qPrintable(name));
            }
            if (qobject_cast<const QAbstractItemView*>(control))
                QVERIFY2(control->height() >= 3 * line, qPrintable(name));
            for (const QWidget* other : std::as_const(controls)) {
                if (other == control || control->isAncestorOf(other) || other->isAncestorOf(control))
                    continue;
                QVERIFY2(!area(control).intersects(area(other)), qPrintable(name + u" / "_s + other->objectName()));
            }
        }
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<PurgeWindowTest>(argc, argv);
}

#include "purgewindow_test.moc"
