// Every record of the knowledge bases the program ships, looked up the way the Erklär-Bär and
// "quenfor-cli explain" do: each must show its own lines and nothing of a neighbouring record.
#include "../common/qstringprinting.h"
#include "knowledge/explanation.h"
#include "knowledge/knowledgebase.h"
#include "knowledge/optionfacts.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

constexpr int kWindow = 6;

// A record as the file holds it: its non-blank lines in a row.
struct Record {
    QStringList lines;
    QString name() const { return optionNameOf(lines.front()); }
};

QString shippedFile(const char* name) {
    return QStringLiteral(QUENFOR_DATA_FOLDER "/") + QString::fromLatin1(name);
}

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Parted by blank lines, read without the program's reader.
QList<Record> recordsOf(const QString& path) {
    QStringList lines = QString::fromUtf8(readAll(path)).split(QRegularExpression(u"\r\n|\r"_s));
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    QList<Record> records;
    bool open = false;
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty()) {
            open = false;
        } else if (open) {
            records.back().lines.append(line);
        } else {
            records.append({{line}});
            open = true;
        }
    }
    return records;
}

// What the panel must show for `name`: under the heading, one block per record whose first line
// begins with the name, in file order. A block is the record, then blank lines up to the window
// (or, at the end of the file, its last line again), then " ...". Below the blocks: the option's
// default and allowed values where they are known.
::testing::AssertionResult showsOnlyItsRecords(const QString& shown, const QString& name, const QList<Record>& records,
                                               const QStringList& facts) {
    QStringList lines = shown.split(u'\n');
    if (lines.takeFirst() != QString::fromUtf16(kExplanationHeading))
        return ::testing::AssertionFailure() << "keine Überschrift: " << shown.toStdString();
    if (lines.size() < facts.size() || lines.mid(lines.size() - facts.size()) != facts)
        return ::testing::AssertionFailure() << "Vorgabe und Werte fehlen:\n" << shown.toStdString();
    lines.resize(lines.size() - facts.size());
    QList<const Record*> matching;
    for (const Record& r : records) {
        if (r.lines.front().startsWith(name))
            matching.append(&r);
    }
    if (lines.size() != matching.size() * (kWindow + 1))
        return ::testing::AssertionFailure() << matching.size() << " Einträge erwartet, gezeigt:\n"
                                             << shown.toStdString();
    for (qsizetype b = 0; b < matching.size(); ++b) {
        const QStringList block = lines.mid(b * (kWindow + 1), kWindow + 1);
        const QStringList& own = matching[b]->lines;
        if (block.mid(0, own.size()) != own || block.back() != u" ...")
            return ::testing::AssertionFailure()
                   << "Block " << b << " ist nicht der Eintrag " << own.front().toStdString() << ":\n"
                   << shown.toStdString();
        for (const QString& rest : block.mid(own.size(), kWindow - own.size())) {
            if (!rest.isEmpty() && rest != own.back())
                return ::testing::AssertionFailure()
                       << "fremde Zeile \"" << rest.toStdString() << "\" im Block von " << own.front().toStdString();
        }
    }
    return ::testing::AssertionSuccess();
}

QStringList factLinesFor(const QString& knowledgeBase, const QString& name) {
    const OptionFact* fact = optionFactsApplyTo(knowledgeBase) ? OptionFacts::builtIn().find(name) : nullptr;
    return fact ? optionFactLines(*fact) : QStringList();
}

// Every record looked up by its option name, as "quenfor-cli explain NAME" does; mapkey and
// favourite names get their fixed text there, so their records are checked by the lookup alone.
void expectEveryRecordShowsItself(const QString& path, const QList<Record>& records) {
    for (const Record& record : records) {
        const QString name = record.name();
        const Explanation explanation = explainEntryLine(name, path);
        const QStringList facts = factLinesFor(path, name);
        ASSERT_FALSE(explanation.knowledgeBaseMissing);
        ASSERT_TRUE(explanation.error.isEmpty()) << explanation.error.toStdString();
        if (explanation.kind == Explanation::Kind::Option) {
            EXPECT_TRUE(showsOnlyItsRecords(explanation.text, name, records, facts)) << name.toStdString();
            continue;
        }
        EXPECT_EQ(explanation.text, fixedExplanation(explanation.kind));
        QString asShown = QString::fromUtf16(kExplanationHeading);
        for (const QStringList& block : lookupKnowledgeBase(path, name).blocks)
            asShown += u'\n' + block.join(u'\n') + u"\n ..."_s;
        EXPECT_TRUE(showsOnlyItsRecords(asShown, name, records, {})) << name.toStdString();
    }
}

} // namespace

TEST(ShippedKnowledge, EveryRecordShowsItselfAndNothingElse) {
    for (const char* file : {"config_opts.txt", "dtl_opts.txt", "pcf_opts.txt"}) {
        SCOPED_TRACE(file);
        const QString path = shippedFile(file);
        const QList<Record> records = recordsOf(path);
        ASSERT_FALSE(records.isEmpty());
        // The last record, at the very end of the file, is among them.
        expectEveryRecordShowsItself(path, records);

        // The user's own explanations go after the last record: that one still shows only itself,
        // and each added one shows its lines, with "***" repeated to the end of the window.
        QTemporaryDir dir;
        const QString copy = dir.filePath(QString::fromLatin1(file));
        ASSERT_TRUE(QFile::copy(path, copy));
        const QString shippedName = records.front().name();
        ASSERT_TRUE(appendKnowledgeRecord(copy, shippedName + u"  eigener Wert"_s, u"Bei uns so."_s).ok);
        const Explanation both = explainEntryLine(shippedName, copy);
        QList<Record> withOwn = records;
        withOwn.append({{shippedName + u"  eigener Wert"_s, u"Bei uns so."_s, u"***"_s}});
        EXPECT_TRUE(showsOnlyItsRecords(both.text, shippedName, withOwn, factLinesFor(copy, shippedName)));
        EXPECT_TRUE(both.text.contains(u"\nBei uns so.\n***\n***\n***\n***\n ..."_s)) << both.text.toStdString();

        expectEveryRecordShowsItself(copy, withOwn);
    }
}
