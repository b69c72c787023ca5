// The process killer's window over a process table of the test's own: no real process is touched.
#include "ui/desktools/shooterwindow.h"

#include "desktools/processhunt.h"
#include "desktools/shootersettings.h"
#include "panelsandbox.h"
#include "settings/settingsstore.h"
#include "ui/desktools/windowtitle.h"
#include "ui/widgets/dialogs.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class FakeProcessTable : public ProcessTable {
public:
    QList<ProcessEntry> processes{{u"notepad.exe"_s, 10}, {u"explorer.exe"_s, 11}, {u"Notepad.exe"_s, 12},
                                  {u"notes.exe"_s, 13},   {u"note.exe"_s, 99},     {u"blocked.exe"_s, 14}};
    QList<qint64> terminated;

    QList<ProcessEntry> listProcesses() override { return processes; }
    TerminateResult terminateProcess(qint64 pid) override {
        terminated.append(pid);
        if (pid == 14)
            return {false, u"Der Prozess 14 darf nicht beendet werden: Es fehlen die Rechte."_s};
        return {true, {}};
    }
    qint64 ownProcessId() const override { return 99; }
};

} // namespace

class ShooterWindowTest : public QObject {
    Q_OBJECT

private:
    FakeProcessTable* m_table = nullptr;

    std::unique_ptr<ShooterWindow> makeWindow() {
        auto table = std::make_unique<FakeProcessTable>();
        m_table = table.get();
        return std::make_unique<ShooterWindow>(nullptr, std::move(table));
    }

    static QString text(QWidget& window, const QString& label) { return child<QLabel>(window, label)->text(); }

private slots:
    void init() {
        SettingsStore(u"shooter"_s).remove();
        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{}; });
        Dialogs::takeShownTexts();
    }

    void opensFoldedWithTheStoredPrefix() {
        auto window = makeWindow();
        QCOMPARE(child<QLineEdit>(*window, u"txt_kill"_s)->text(), u"mDkCeP"_s);
        QVERIFY(child<QPushButton>(*window, u"cmd_kill"_s)->isEnabled());
        QVERIFY(!child<QPushButton>(*window, u"cmd_stopkill"_s)->isEnabled());
        QVERIFY(!window->isListOpen());
        QVERIFY(child<QToolButton>(*window, u"Image_Klapp"_s)->isVisibleTo(window.get()));
        QCOMPARE(text(*window, u"lbl_counter"_s), u"0"_s);
        QCOMPARE(text(*window, u"lbl_killcounter"_s), u"0"_s);

        saveHuntPrefix(u"note"_s);
        auto second = makeWindow();
        QCOMPARE(child<QLineEdit>(*second, u"txt_kill"_s)->text(), u"note"_s);
    }

    void anEmptyPrefixIsRefusedWithAMessage() {
        auto window = makeWindow();
        child<QLineEdit>(*window, u"txt_kill"_s)->clear();
        child<QPushButton>(*window, u"cmd_kill"_s)->click();
        QCOMPARE(Dialogs::takeShownTexts(), QStringList{ProcessHunt::emptyPrefixMessage()});
        QVERIFY(!window->isHunting());
        QVERIFY(child<QPushButton>(*window, u"cmd_kill"_s)->isEnabled());
        QTest::qWait(3 * ProcessHunt::kIntervalMs);
        QVERIFY(m_table->terminated.isEmpty());
    }

    void theHuntEndsTheMatchesUntilStopped() {
        auto window = makeWindow();
        child<QLineEdit>(*window, u"txt_kill"_s)->setText(u"note"_s);
        child<QPushButton>(*window, u"cmd_kill"_s)->click();
        QVERIFY(window->isHunting());
        QVERIFY(!child<QPushButton>(*window, u"cmd_kill"_s)->isEnabled());
        QVERIFY(child<QPushButton>(*window, u"cmd_stopkill"_s)->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(text(*window, u"lbl_counter"_s).toInt() >= 2, 5000);
        child<QPushButton>(*window, u"cmd_stopkill"_s)->click();
        QVERIFY(!window->isHunting());
        QVERIFY(child<QPushButton>(*window, u"cmd_kill"_s)->isEnabled());
        QVERIFY(!child<QPushButton>(*window, u"cmd_stopkill"_s)->isEnabled());

        const int scans = text(*window, u"lbl_counter"_s).toInt();
        // notepad.exe and notes.exe on every scan; never Notepad.exe, never the own note.exe.
        QCOMPARE(text(*window, u"lbl_killcounter"_s), QString::number(2 * scans));
        QCOMPARE(m_table->terminated.size(), 2 * scans);
        for (const qint64 pid : std::as_const(m_table->terminated))
            QVERIFY2(pid == 10 || pid == 13, qPrintable(QString::number(pid)));
        QTest::qWait(3 * ProcessHunt::kIntervalMs);
        QCOMPARE(text(*window, u"lbl_counter"_s).toInt(), scans);
    }

    void aProcessThatCannotBeEndedIsTold() {
        auto window = makeWindow();
        child<QLineEdit>(*window, u"txt_kill"_s)->setText(u"blocked"_s);
        window->startHunt();
        QTRY_COMPARE_WITH_TIMEOUT(text(*window, u"lblstatus"_s),
                                  u"blocked.exe: Der Prozess 14 darf nicht beendet werden: Es fehlen die Rechte."_s,
                                  5000);
        window->stopHunt();
        QCOMPARE(text(*window, u"lbl_killcounter"_s), u"0"_s);
    }

    void editingThePrefixStopsTheHunt() {
        auto window = makeWindow();
        window->show();
        auto* prefix = child<QLineEdit>(*window, u"txt_kill"_s);
        prefix->setText(u"explorer"_s);
        window->startHunt();
        QVERIFY(window->isHunting());
        QTest::keyClick(prefix, Qt::Key_X);
        QVERIFY(!window->isHunting());
        QVERIFY(child<QPushButton>(*window, u"cmd_kill"_s)->isEnabled());
        QVERIFY(!child<QPushButton>(*window, u"cmd_stopkill"_s)->isEnabled());
    }

    void theListFoldsOpenAndShut() {
        auto window = makeWindow();
        window->show();
        child<QToolButton>(*window, u"Image_Klapp"_s)->click();
        QVERIFY(window->isListOpen());
        QVERIFY(!child<QToolButton>(*window, u"Image_Klapp"_s)->isVisible());
        auto* list = child<QListWidget>(*window, u"List1"_s);
        QStringList names;
        for (int i = 0; i < list->count(); ++i)
            names.append(list->item(i)->text());
        QCOMPARE(names, (QStringList{u"blocked.exe"_s, u"explorer.exe"_s, u"note.exe"_s, u"notepad.exe"_s,
                                     u"Notepad.exe"_s, u"notes.exe"_s}));

        m_table->processes.append({u"calc.exe"_s, 20});
        child<QPushButton>(*window, u"cmd_refresh"_s)->click();
        QCOMPARE(list->item(1)->text(), u"calc.exe"_s);

        // Without a desktop that names windows the label says so.
        list->setCurrentRow(1);
        if (!windowTitleOfProcess(20).desktopTells)
            QCOMPARE(text(*window, u"lbl_FensterName"_s), QString::fromUtf16(kNoWindowTitles));
        QCOMPARE(text(*window, u"lblstatus"_s), u"calc.exe, Prozessnummer 20"_s);

        const QString shots = qEnvironmentVariable("QUENFOR_SCREENSHOT_DIR");
        if (!shots.isEmpty())
            QVERIFY(window->grab().save(shots + u"/frmShooter_open.png"_s));
        const int openHeight = window->height();
        child<QToolButton>(*window, u"Image_ZU"_s)->click();
        QVERIFY(!window->isListOpen());
        QVERIFY(child<QToolButton>(*window, u"Image_Klapp"_s)->isVisible());
        QVERIFY(window->height() < openHeight);
        if (!shots.isEmpty())
            QVERIFY(window->grab().save(shots + u"/frmShooter_folded.png"_s));
    }

    void closingStoresThePrefixAndStopsTheHunt() {
        auto window = makeWindow();
        child<QLineEdit>(*window, u"txt_kill"_s)->setText(u"explorer"_s);
        window->startHunt();
        window->close();
        QVERIFY(!window->isHunting());
        QCOMPARE(SettingsStore(u"shooter"_s).value(u"Optionen"_s, u"txt_kill"_s, {}), u"explorer"_s);
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ShooterWindowTest>(argc, argv);
}

#include "shooterwindow_test.moc"
