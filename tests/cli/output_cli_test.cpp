// What the tool prints is what scripts use: output that could not be written, or a file that
// must not be replaced, ends with exit status 1 and a German reason, never with success.
#include "clitest.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class OutputTest : public CliTestBase {
protected:
    // Runs with standard output going to a file that is full, or closed.
    CliRun runWithOutput(const QStringList& args, bool closed) const {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"XDG_CONFIG_HOME"_s, path(u"config-home"_s));
        p.setProcessEnvironment(env);
        if (closed)
            p.setChildProcessModifier([] { ::close(STDOUT_FILENO); });
        else
            p.setStandardOutputFile(u"/dev/full"_s);
        p.start(QStringLiteral(QUENFOR_CLI_PATH), args);
        p.closeWriteChannel();
        p.waitForFinished(60000);
        return {p.exitCode(), {}, QString::fromUtf8(p.readAllStandardError())};
    }
};

TEST_F(OutputTest, OutputThatCannotBeWrittenFailsTheRun) {
    const QString file = write(u"config.pro"_s, "Display SHADE\r\n! Kommentar\r\n");
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"teile"_s));
    write(u"teile/welle.prt.1"_s, "alt");
    write(u"teile/welle.prt.2"_s, "neu");
    const QList<QStringList> commands = {
        {u"lower"_s, file}, {u"kinds"_s, file}, {u"--help"_s}, {u"purge"_s, u"-n"_s, path(u"teile"_s)}};
    for (const bool closed : {false, true}) {
        for (const QStringList& args : commands) {
            SCOPED_TRACE((args.join(u' ') + (closed ? u" >&-"_s : u" >/dev/full"_s)).toStdString());
            const CliRun run = runWithOutput(args, closed);
            EXPECT_EQ(run.status, 1);
            EXPECT_TRUE(run.err.contains(u"Die Ausgabe konnte nicht vollständig geschrieben werden"_s))
                << run.err.toStdString();
        }
    }
    EXPECT_TRUE(QFileInfo::exists(path(u"teile/welle.prt.1"_s))) << "a dry run deleted a file";
}

// With standard output closed, the first file the tool opens would get its number: the output
// file must still get exactly the result and nothing else.
TEST_F(OutputTest, ClosedOutputNeverLandsInAFile) {
    const QString file = write(u"config.pro"_s, "Display SHADE\r\n");
    const CliRun run = runWithOutput({u"lower"_s, u"-o"_s, path(u"neu.pro"_s), file}, true);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(read(path(u"neu.pro"_s)), "display shade\r\n");
    EXPECT_EQ(read(file), "Display SHADE\r\n");
}

TEST_F(OutputTest, AFifoIsNoFileToWriteInto) {
    const QString file = write(u"config.pro"_s, "Display SHADE\r\n");
    const QString fifo = path(u"pipe.pro"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0644), 0);
    for (const QStringList& args :
         {QStringList{u"lower"_s, u"-o"_s, fifo, file}, QStringList{u"lower"_s, u"-i"_s, fifo}}) {
        SCOPED_TRACE(args.join(u' ').toStdString());
        const CliRun result = run(args);
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.err.contains(u"keine gewöhnliche Datei"_s)) << result.err.toStdString();
        struct stat info {};
        ASSERT_EQ(::lstat(QFile::encodeName(fifo).constData(), &info), 0);
        EXPECT_TRUE(S_ISFIFO(info.st_mode));
    }
}

// Two in-place edits of one file at the same time: either both take effect, one after the other,
// or the later one refuses because the file changed under it. One edit silently lost is the fault.
TEST_F(OutputTest, ConcurrentInPlaceEditsNeverLoseOne) {
    QByteArray text;
    for (int i = 0; i < 40000; ++i)
        text += "Option_" + QByteArray::number(i) + " WERT\r\n\r\n";
    const QString file = path(u"config.pro"_s);
    int refusals = 0;
    for (int round = 0; round < 8; ++round) {
        write(u"config.pro"_s, text);
        QProcess lower;
        QProcess blank;
        lower.start(QStringLiteral(QUENFOR_CLI_PATH), {u"lower"_s, u"-i"_s, file});
        blank.start(QStringLiteral(QUENFOR_CLI_PATH), {u"blank"_s, u"-i"_s, file});
        ASSERT_TRUE(lower.waitForFinished(60000) && blank.waitForFinished(60000));
        const QByteArray result = read(file);
        const bool lowered = !result.contains("Option_");
        const bool noBlanks = !result.contains("\r\n\r\n");
        for (QProcess* p : {&lower, &blank}) {
            if (p->exitCode() != 0) {
                ++refusals;
                EXPECT_TRUE(QString::fromUtf8(p->readAllStandardError()).contains(u"anderen Programm geändert"_s));
            }
        }
        if (lower.exitCode() == 0 && blank.exitCode() == 0)
            EXPECT_TRUE(lowered && noBlanks) << "round " << round << ": one edit was lost";
        else
            EXPECT_TRUE(lowered != noBlanks) << "round " << round << ": the refused edit still took effect";
    }
    RecordProperty("refusals", refusals);
}

} // namespace
