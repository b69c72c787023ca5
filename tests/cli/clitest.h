#pragma once

// Runs the real quenfor-cli binary on files in a temporary folder, as administrators' scripts do.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

struct CliRun {
    int status = -1;
    QByteArray out;
    QString err;
};

class CliTestBase : public ::testing::Test {
protected:
    QTemporaryDir dir;

    QString path(const QString& name) const { return dir.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const {
        QFile f(path(name));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return f.fileName();
    }

    static QByteArray read(const QString& file) {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    // No stored setting (Codepage) may change a result, so each run gets an empty config home.
    CliRun run(const QStringList& args, const QByteArray& input = {},
               const QString& locale = QStringLiteral("C.UTF-8")) const {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config-home")));
        env.insert(QStringLiteral("LC_ALL"), locale);
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(QUENFOR_CLI_PATH), args);
        p.write(input);
        p.closeWriteChannel();
        p.waitForFinished(60000);
        return {p.exitCode(), p.readAllStandardOutput(), QString::fromUtf8(p.readAllStandardError())};
    }
};
