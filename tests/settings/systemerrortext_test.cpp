#include "settings/systemerrortext.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

struct FormatCase {
    int code;
    QString systemMessage;
    QString expected;
};

TEST(SystemErrorText, FallsBackToTheHexadecimalCode) {
    const FormatCase cases[] = {
        {2, u"Das System kann die Datei nicht finden."_s, u"Das System kann die Datei nicht finden."_s},
        {0, u"Der Vorgang wurde erfolgreich beendet."_s, u"Der Vorgang wurde erfolgreich beendet."_s},
        {0, QString(), QString()},
        {0x3e6, QString(), u"Unbekannter Windows-Fehler: &H3E6"_s},
        {10, QString(), u"Unbekannter Windows-Fehler: &HA"_s},
        {-2147024891, QString(), u"Unbekannter Windows-Fehler: &H80070005"_s},
    };
    for (const FormatCase& c : cases) {
        EXPECT_EQ(formatSystemErrorText(c.code, c.systemMessage), c.expected) << c.code;
    }
}

#ifndef Q_OS_WIN
TEST(SystemErrorText, KnownCodeGivesTheSystemMessage) {
    EXPECT_EQ(systemErrorText(ENOENT), QString::fromLocal8Bit(std::strerror(ENOENT)));
    EXPECT_EQ(systemErrorText(EACCES), QString::fromLocal8Bit(std::strerror(EACCES)));
}
#endif

TEST(SystemErrorText, UnknownCodeIsNotTakenForAMessage) {
    // No system has a message for these; the C library's made-up "Unknown error" must not pass.
    EXPECT_EQ(systemErrorText(987654), u"Unbekannter Windows-Fehler: &HF1206"_s);
    EXPECT_EQ(systemErrorText(-5), u"Unbekannter Windows-Fehler: &HFFFFFFFB"_s);
}

} // namespace
} // namespace quenfor
