// Names that are no valid UTF-8 keep every byte through decoding and encoding, so a delete hits
// exactly the file that was listed.
#include "common/rawfilenames.h"

#include <QRandomGenerator>
#include <QSet>

#include <gtest/gtest.h>

namespace quenfor {
namespace {

TEST(RawFileNames, EveryByteStringSurvivesAndStaysDistinct) {
    const QList<QByteArray> fixed = {
        "teil.prt.1",
        "Geh\xE4use.prt.1",
        "Geh\xC3\xA4use.prt.1",
        "inv\xEF\xBF\xBD.prt.1",
        "\xC0\x80",
        "\xED\xA0\x80",
        "\xF0\x9F\x98\x80.drw",
        "\xF4\x90\x80\x80",
        "a\xC3",
        "\xE2\x82",
        "\xFF\xFE",
        "\xDC\x80",
    };
    QRandomGenerator random(4711);
    QList<QByteArray> all = fixed;
    const QByteArray alphabet("a.1\x80\xBF\xC2\xC3\xA4\xE2\x82\xAC\xED\xA0\xF0\x9F\xF4\xFF");
    for (int i = 0; i < 20000; ++i) {
        QByteArray name;
        const int length = random.bounded(1, 9);
        for (int k = 0; k < length; ++k)
            name += alphabet.at(random.bounded(int(alphabet.size())));
        all.append(name);
    }
    QHash<QString, QByteArray> seen;
    for (const QByteArray& bytes : all) {
        const QString name = decodeFileName(bytes);
        ASSERT_EQ(encodeFileName(name), bytes) << bytes.toHex().toStdString();
        const auto it = seen.constFind(name);
        ASSERT_TRUE(it == seen.constEnd() || *it == bytes)
            << "two names fall together: " << bytes.toHex().toStdString();
        seen.insert(name, bytes);
    }
}

TEST(RawFileNames, ValidNamesDecodeAsUsualAndKeptBytesReadAsLatin1) {
    EXPECT_EQ(decodeFileName("Geh\xC3\xA4use.prt.1"), QStringLiteral("Gehäuse.prt.1"));
    EXPECT_EQ(decodeFileName("\xF0\x9F\x98\x80"), QString::fromUtf8("\xF0\x9F\x98\x80"));
    const QString latin1 = decodeFileName("Geh\xE4use.prt.1");
    EXPECT_NE(latin1, QStringLiteral("Gehäuse.prt.1"));
    EXPECT_EQ(readableFileName(latin1), QStringLiteral("Gehäuse.prt.1"));
    EXPECT_EQ(readableFileName(QString::fromUtf8("\xF0\x9F\x98\x80")), QString::fromUtf8("\xF0\x9F\x98\x80"));
}

} // namespace
} // namespace quenfor
