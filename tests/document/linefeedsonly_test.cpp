// Files whose lines end in LF alone are told apart while reading, for the hint after opening.
#include "document/configdocument.h"
#include "document/documentfile.h"
#include "document/documentstorage.h"
#include "testsupport.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// The reader takes files in pieces of 1 MiB; these cases put the first LF or CR behind the first.
constexpr qsizetype kPiece = 1 << 20;

TEST(LineFeedsOnly, IsToldWhileReading) {
    const QByteArray filler(kPiece + 10, 'x');
    const struct {
        const char* label;
        QByteArray bytes;
        bool lineFeedsOnly;
    } cases[] = {
        {"LF only", "a\nb\nc\n", true},
        {"LF only without a last end", "a\nb", true},
        {"one LF", "\n", true},
        {"CR LF", "a\r\nb\r\n", false},
        {"lone CR", "a\rb\r", false},
        {"CR LF and a stray LF", "a\r\nb\nc\r\n", false},
        {"LF then a CR at the end", "a\nb\nc\r", false},
        {"no line end", "abc", false},
        {"empty", "", false},
        {"first LF in the second piece", filler + "\nb\n", true},
        {"CR in the second piece after LFs", "a\nb\n" + filler + "\r\n", false},
        {"CR in the first piece, LF in the second", "a\r" + filler + "\n", false},
    };
    QTemporaryDir dir;
    for (const auto& c : cases) {
        const QString path = dir.filePath(u"datei.pro"_s);
        ASSERT_TRUE(test::writeBytes(path, c.bytes));
        const ReadResult fromFile = readDocumentFile(path, {});
        ASSERT_TRUE(fromFile.ok) << c.label;
        EXPECT_EQ(fromFile.lineFeedsOnly, c.lineFeedsOnly) << c.label;
        EXPECT_EQ(readDocumentBytes(c.bytes, {}).lineFeedsOnly, c.lineFeedsOnly) << c.label;

        // Opening names the repair tool as a hint beside the status.
        ConfigDocument doc;
        const StorageResult opened = openDocument(doc, path, {});
        ASSERT_TRUE(opened.ok) << c.label;
        EXPECT_EQ(opened.hint, c.lineFeedsOnly ? QString::fromUtf16(kLineFeedsOnlyHint) : QString()) << c.label;
    }
}

} // namespace
