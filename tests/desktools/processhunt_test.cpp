// The process killer's hunt: prefix matching, the own process, the empty prefix, the timing of
// the ticks, and the real process table with helper processes the test starts itself.
#include "desktools/processhunt.h"
#include "desktools/processtable.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// A table the test fills; it records every terminate and can be made slow.
class FakeProcessTable : public ProcessTable {
public:
    QList<ProcessEntry> processes;
    QList<qint64> terminated;
    QList<qint64> refusing; // these report missing rights
    int scanMs = 0;
    QList<QPair<qint64, qint64>> scanTimes; // start and end of each scan, ms since `clock`
    QElapsedTimer clock;

    QList<ProcessEntry> listProcesses() override {
        const qint64 start = clock.elapsed();
        if (scanMs > 0)
            QThread::msleep(scanMs);
        scanTimes.append({start, clock.elapsed()});
        return processes;
    }
    TerminateResult terminateProcess(qint64 pid) override {
        terminated.append(pid);
        if (refusing.contains(pid))
            return {false, u"Der Prozess %1 darf nicht beendet werden: Es fehlen die Rechte."_s.arg(pid)};
        return {true, {}};
    }
    qint64 ownProcessId() const override { return 42; }
};

// A copy of the sleep program under a name no other process has.
QString copySleeper(const QTemporaryDir& dir, const QString& name) {
    const QString path = dir.filePath(name);
    if (!QFile::copy(u"/bin/sleep"_s, path))
        return {};
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

} // namespace

class ProcessHuntTest : public QObject {
    Q_OBJECT

private slots:
    void prefixMatching_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("matches");
        QTest::newRow("notepad") << u"notepad.exe"_s << u"note"_s << true;
        QTest::newRow("notes") << u"notes.exe"_s << u"note"_s << true;
        QTest::newRow("upper case name") << u"Notepad.exe"_s << u"note"_s << false;
        QTest::newRow("name shorter than prefix") << u"not"_s << u"note"_s << false;
        QTest::newRow("inside, not at the start") << u"keynote"_s << u"note"_s << false;
        QTest::newRow("umlaut") << u"Übung.exe"_s << u"Üb"_s << true;
        QTest::newRow("empty prefix") << u"anything"_s << QString() << true;
    }
    void prefixMatching() {
        QFETCH(QString, name);
        QFETCH(QString, prefix);
        QFETCH(bool, matches);
        QCOMPARE(matchesHuntPrefix(name, prefix), matches);
    }

    void programNames_data() {
        QTest::addColumn<QString>("reported");
        QTest::addColumn<bool>("backslash");
        QTest::addColumn<QString>("name");
        QTest::newRow("unix path") << u"/usr/bin/sleep"_s << false << u"sleep"_s;
        QTest::newRow("windows path") << u"C:\\Windows\\notepad.exe"_s << true << u"notepad.exe"_s;
        QTest::newRow("backslash in a unix name") << u"/opt/a\\b"_s << false << u"a\\b"_s;
        QTest::newRow("cut at NUL") << QString::fromUtf16(u"calc.exe\0old junk", 17) << true << u"calc.exe"_s;
        QTest::newRow("260 at most") << (u"/x/"_s + QString(300, u'a')) << false << QString(260, u'a');
    }
    void programNames() {
        QFETCH(QString, reported);
        QFETCH(bool, backslash);
        QFETCH(QString, name);
        QCOMPARE(programNameFromPath(reported, backslash), name);
    }

    void aScanEndsEveryMatchButNeverItsOwnProcess() {
        FakeProcessTable table;
        table.processes = {{u"notepad.exe"_s, 10}, {u"Notepad.exe"_s, 11},  {u"notes.exe"_s, 12},
                           {u"note.exe"_s, 42},    {u"explorer.exe"_s, 13}, {u"notepad.exe"_s, 14}};
        table.refusing = {14};
        ProcessHunt hunt(table);
        QCOMPARE(hunt.start(u"note"_s), QString());
        const HuntTick tick = hunt.scanOnce();
        hunt.stop();
        QCOMPARE(table.terminated, (QList<qint64>{10, 12, 14}));
        QCOMPARE(tick.ended, 2);
        QCOMPARE(tick.failures,
                 QStringList{u"notepad.exe: Der Prozess 14 darf nicht beendet werden: Es fehlen die Rechte."_s});
        QCOMPARE(hunt.kills(), 2);
        QCOMPARE(hunt.scans(), 1);
    }

    void anEmptyPrefixIsRefused() {
        FakeProcessTable table;
        ProcessHunt hunt(table);
        QCOMPARE(hunt.start(QString()), ProcessHunt::emptyPrefixMessage());
        QVERIFY(!hunt.isRunning());
        QTest::qWait(3 * ProcessHunt::kIntervalMs);
        QVERIFY(table.scanTimes.isEmpty());
    }

    void aListenerMayStopTheHunt() {
        FakeProcessTable table;
        ProcessHunt hunt(table);
        connect(&hunt, &ProcessHunt::scanned, &hunt, [&hunt] { hunt.stop(); });
        hunt.start(u"x"_s);
        QTRY_COMPARE_WITH_TIMEOUT(hunt.scans(), 1, 5000);
        QTest::qWait(3 * ProcessHunt::kIntervalMs);
        QCOMPARE(hunt.scans(), 1);
        QVERIFY(!hunt.findChild<QTimer*>(u"Timer1"_s)->isActive());
    }

    void aSlowScanDelaysTheNextInsteadOfPilingUp() {
        FakeProcessTable table;
        table.scanMs = 250;
        table.clock.start();
        ProcessHunt hunt(table);
        QElapsedTimer running;
        running.start();
        hunt.start(u"x"_s);
        QTest::qWait(1500);
        hunt.stop();
        const qint64 elapsed = running.elapsed();
        QVERIFY(table.scanTimes.size() >= 2);
        // Every scan waits the whole interval after the previous one has ended.
        for (qsizetype i = 1; i < table.scanTimes.size(); ++i) {
            const qint64 pause = table.scanTimes[i].first - table.scanTimes[i - 1].second;
            QVERIFY2(pause >= ProcessHunt::kIntervalMs - 5, qPrintable(u"pause %1 ms"_s.arg(pause)));
        }
        // A timer that piles up would have managed one scan per 250 ms.
        QVERIFY(table.scanTimes.size() <= elapsed / (250 + ProcessHunt::kIntervalMs) + 1);
    }

    void theSystemTableListsAndEndsOnlyTheHelper() {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString unique = u"qfsleeper_%1"_s.arg(QRandomGenerator::global()->generate(), 8, 16, QChar(u'0'));
        // Same letters, other case: must survive the hunt.
        const QString other = u"Q"_s + unique.mid(1);
        const QString huntedPath = copySleeper(dir, unique);
        const QString otherPath = copySleeper(dir, other);
        if (huntedPath.isEmpty() || otherPath.isEmpty())
            QSKIP("/bin/sleep cannot be copied");
        QProcess hunted;
        QProcess survivor;
        hunted.start(huntedPath, {u"60"_s});
        survivor.start(otherPath, {u"60"_s});
        QVERIFY(hunted.waitForStarted());
        QVERIFY(survivor.waitForStarted());
        const qint64 huntedPid = hunted.processId();

        auto table = makeSystemProcessTable();
        const QList<ProcessEntry> before = table->listProcesses();
        const auto pidOf = [&before](const QString& name) {
            QList<qint64> pids;
            for (const ProcessEntry& entry : before) {
                if (entry.name == name)
                    pids.append(entry.pid);
            }
            return pids;
        };
        QCOMPARE(pidOf(unique), QList<qint64>{huntedPid});
        QCOMPARE(pidOf(other), QList<qint64>{survivor.processId()});
        QVERIFY(pidOf(QFileInfo(QCoreApplication::applicationFilePath()).fileName()).contains(table->ownProcessId()));

        ProcessHunt hunt(*table);
        QCOMPARE(hunt.start(unique), QString());
        const HuntTick tick = hunt.scanOnce();
        hunt.stop();
        QCOMPARE(tick.ended, 1);
        QVERIFY(tick.failures.isEmpty());
        QVERIFY(hunted.waitForFinished(5000));
        QCOMPARE(hunted.exitStatus(), QProcess::CrashExit);
        QCOMPARE(survivor.state(), QProcess::Running);

        // Gone and reaped: asking again is told, not counted.
        const TerminateResult again = table->terminateProcess(huntedPid);
        QVERIFY(!again.ended);
        QCOMPARE(again.error, u"Der Prozess %1 läuft nicht mehr."_s.arg(huntedPid));

        survivor.kill();
        survivor.waitForFinished(5000);
    }
};

QTEST_GUILESS_MAIN(ProcessHuntTest)
#include "processhunt_test.moc"
