#pragma once

// Shared helpers of the lint tests: the shipped data folder, files written as administrators'
// editors write them, and findings reduced to where and what.
#include "../common/qstringprinting.h"
#include "lint/linter.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

namespace linttest {

inline QString shippedData() {
    return QStringLiteral(QUENFOR_DATA_FOLDER);
}

inline quenfor::LintOptions shippedOptions() {
    quenfor::LintOptions options;
    options.dataFolder = shippedData();
    return options;
}

// Where a finding is and of what kind; the message is tested where its words matter.
struct Spot {
    int line = 0;
    quenfor::FindingKind kind = quenfor::FindingKind::LongLine;
    bool operator==(const Spot&) const = default;
};

inline void PrintTo(const Spot& s, std::ostream* out) {
    *out << "{line " << s.line << ", kind " << int(s.kind) << '}';
}

inline QList<Spot> spotsOf(const QList<quenfor::LintFinding>& findings) {
    QList<Spot> spots;
    for (const quenfor::LintFinding& f : findings)
        spots.append({f.line, f.kind});
    return spots;
}

// The number (from 1) of the line that is exactly `text`; fails the test when there is none, so
// a fixture can be edited without counting lines by hand.
inline int lineOf(const QStringList& lines, const QString& text) {
    const qsizetype index = lines.indexOf(text);
    EXPECT_GE(index, 0) << text.toStdString();
    return int(index + 1);
}

// The bytes of lines as Windows editors save them: windows-1252 and CR LF.
inline QByteArray windowsBytes(const QStringList& lines) {
    QByteArray bytes;
    for (const QString& line : lines)
        bytes += line.toLatin1() + "\r\n";
    return bytes;
}

inline QString writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
    return path;
}

} // namespace linttest
