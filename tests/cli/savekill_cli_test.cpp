// A save that is killed at any moment must leave the file either as it was or as it was meant to
// become: administrators run quenfor-cli -i from scripts that may be stopped at any time.
#include "clitest.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>

#include <csignal>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QByteArray bigConfig() {
    QByteArray text;
    text.reserve(4 * 1024 * 1024);
    for (int i = 0; i < 60000; ++i) {
        text += "Option_" + QByteArray::number((i * 7919) % 60000) + " C:\\Projekte\\Baugruppe_" +
                QByteArray::number(i) + "\\Teile ";
        text += (i % 3 == 0) ? "YES\r\n" : "\xe4nderung\r\n"; // code page bytes must survive too
    }
    return text;
}

QByteArray hashOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

class SaveKillTest : public CliTestBase {};

TEST_F(SaveKillTest, KilledInPlaceSaveLeavesOldOrNewFileNeverAMix) {
    const QByteArray oldBytes = bigConfig();
    const QString reference = write(u"reference.pro"_s, oldBytes);
    const CliRun complete = run({u"lower"_s, u"-i"_s, reference});
    ASSERT_EQ(complete.status, 0) << complete.err.toStdString();
    const QByteArray newBytes = read(reference);
    ASSERT_NE(newBytes, oldBytes);
    const QByteArray oldHash = hashOf(oldBytes);
    const QByteArray newHash = hashOf(newBytes);

    // How long a whole run takes here, so the kills spread over reading, work and writing. The
    // shortest of three: a slow first run (cold caches) would put most kills after the end.
    const QString target = path(u"config.pro"_s);
    qint64 fullRunMs = std::numeric_limits<qint64>::max();
    for (int round = 0; round < 3; ++round) {
        write(u"config.pro"_s, oldBytes);
        QElapsedTimer clock;
        clock.start();
        ASSERT_EQ(run({u"lower"_s, u"-i"_s, target}).status, 0);
        fullRunMs = qMin(fullRunMs, qMax<qint64>(clock.elapsed(), 20));
    }

    QRandomGenerator random(QRandomGenerator::global()->generate());
    int killed = 0;
    int sawOld = 0;
    int sawNew = 0;
    // Under the load of a parallel test run a save can take far longer than when it was timed;
    // then every kill lands before the rename. The window widens until some saves get through.
    double windowMs = double(fullRunMs) * 1.2;
    for (int attempt = 0; (killed < 25 || sawOld == 0 || sawNew == 0) && attempt < 400; ++attempt) {
        write(u"config.pro"_s, oldBytes);
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"XDG_CONFIG_HOME"_s, path(u"config-home"_s));
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(QUENFOR_CLI_PATH), {u"lower"_s, u"-i"_s, target});
        ASSERT_TRUE(process.waitForStarted());
        QThread::usleep(random.bounded(quint32(windowMs * 1000)));
        if (process.state() == QProcess::Running) {
            ::kill(pid_t(process.processId()), SIGKILL);
            ++killed;
        }
        process.waitForFinished(60000);

        const QByteArray hash = hashOf(read(target));
        ASSERT_TRUE(hash == oldHash || hash == newHash) << "attempt " << attempt << ": the file is neither old nor new";
        (hash == oldHash ? sawOld : sawNew) += 1;
        if (sawNew == 0)
            windowMs = qMin(windowMs * 1.25, 60000.0);
        // A killed save may leave its temporary file behind; it is never the file itself.
        for (const QString& name : QDir(dir.path()).entryList({u"config.pro?*"_s}, QDir::Files))
            QFile::remove(path(name));
    }
    EXPECT_GE(killed, 25);
    // Kills both before and after the rename: otherwise the timing did not cover the save.
    EXPECT_GT(sawOld, 0);
    EXPECT_GT(sawNew, 0);
}

} // namespace
