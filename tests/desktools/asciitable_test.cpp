// The ASCII tool must give the code page's real characters and keep its limits: a wrong table
// puts a wrong byte into a configuration file.
#include "../common/qstringprinting.h"
#include "desktools/asciitable.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class AsciiTool : public ::testing::Test {
protected:
    CodePageTable m_table = CodePageTable::load(u"windows-1252"_s);
};

TEST_F(AsciiTool, TableHoldsTheCodePagesCharacters) {
    EXPECT_EQ(m_table.name(), u"windows-1252"_s);
    EXPECT_EQ(m_table.characterOf(65), u"A"_s);
    EXPECT_EQ(m_table.characterOf(128), u"€"_s);
    EXPECT_EQ(m_table.characterOf(228), u"ä"_s);
    EXPECT_EQ(m_table.characterOf(254), u"þ"_s);
    EXPECT_EQ(m_table.characterOf(255), u"ÿ"_s);
    EXPECT_EQ(m_table.characterOf(1), QString(QChar(1)));
    EXPECT_EQ(m_table.characterOf(256), QString());
    EXPECT_EQ(m_table.characterOf(-1), QString());
    EXPECT_EQ(m_table.codeOf(u"€uro"_s), 128);
    EXPECT_EQ(m_table.codeOf(u"ß"_s), 223);
    EXPECT_EQ(m_table.codeOf(QString(QChar(0))), 0);
    EXPECT_EQ(m_table.codeOf(u"Ω"_s), std::nullopt);
    EXPECT_EQ(m_table.codeOf({}), std::nullopt);
    // Every character listed comes back as its own code.
    for (int code = 1; code < 256; ++code) {
        const QString character = m_table.characterOf(code);
        if (!character.isEmpty()) {
            EXPECT_EQ(m_table.codeOf(character), code) << code;
        }
    }
}

TEST_F(AsciiTool, OtherCodePagesAndUnknownNames) {
    const CodePageTable latin2 = CodePageTable::load(u"ISO-8859-2"_s);
    EXPECT_EQ(latin2.characterOf(0xB1), u"ą"_s);
    EXPECT_EQ(latin2.codeOf(u"ą"_s), 0xB1);

    for (const QString& name : {u"keine-codepage"_s, u"UTF-8"_s, u"UTF-16"_s}) {
        SCOPED_TRACE(name.toStdString());
        QString note;
        const CodePageTable fallback = CodePageTable::load(name, &note);
        EXPECT_EQ(fallback.name(), u"windows-1252"_s);
        EXPECT_EQ(fallback.characterOf(128), u"€"_s);
        EXPECT_EQ(
            note,
            u"Die Codepage „%1“ ist keine bekannte Ein-Byte-Codepage; die Tabelle zeigt windows-1252."_s.arg(name));
    }
}

struct CodeCase {
    const char* label;
    QString code;
    int step; // 0: Command2, ±1: cmd_up / cmd_down
    std::optional<QString> character;
    std::optional<QString> codeAfter;
    QString message;
};

TEST_F(AsciiTool, CodeToCharacterKeepsItsLimits) {
    const QString limit = u" Bitte eine Zahl (< 255) eingeben !"_s;
    const CodeCase cases[] = {
        {"254 gives its character", u"254"_s, 0, u"þ"_s, std::nullopt, {}},
        {"255 is refused", u"255"_s, 0, std::nullopt, std::nullopt, limit},
        {"far above", u"100000"_s, 0, std::nullopt, std::nullopt, limit},
        {"zero becomes 1", u"0"_s, 0, QString(QChar(1)), u"1"_s, {}},
        {"negative becomes 1", u"-7"_s, 0, QString(QChar(1)), u"1"_s, {}},
        {"no number", u"A"_s, 0, std::nullopt, std::nullopt, limit},
        {"fraction", u"65,5"_s, 0, std::nullopt, std::nullopt, u"Bitte eine ganze Zahl eingeben."_s},
        {"empty does nothing", u""_s, 0, std::nullopt, std::nullopt, {}},
        {"blanks around", u" 65 "_s, 0, u"A"_s, std::nullopt, {}},
        {"step down from 1 stays 1", u"1"_s, -1, QString(QChar(1)), u"1"_s, {}},
        {"step down", u"66"_s, -1, u"A"_s, u"65"_s, {}},
        {"step up to 254", u"253"_s, 1, u"þ"_s, u"254"_s, {}},
        {"step up at 254 shows 255 and the message", u"254"_s, 1, std::nullopt, u"255"_s, limit},
        {"step on no number", u"x"_s, 1, std::nullopt, std::nullopt, limit},
        {"step on empty does nothing", u""_s, 1, std::nullopt, std::nullopt, {}},
    };
    for (const CodeCase& c : cases) {
        SCOPED_TRACE(c.label);
        const AsciiUpdate update = c.step == 0 ? codeToCharacter(m_table, c.code) : stepCode(m_table, c.code, c.step);
        EXPECT_EQ(update.character, c.character);
        EXPECT_EQ(update.code, c.codeAfter);
        EXPECT_EQ(update.message, c.message);
    }
}

TEST_F(AsciiTool, UnusedCodeSaysSo) {
    // 0x81 is not used by windows-1252 as the decoder knows it, or is a control character.
    const QString character = m_table.characterOf(0x81);
    const AsciiUpdate update = codeToCharacter(m_table, u"129"_s);
    EXPECT_EQ(update.character, character);
    if (character.isEmpty()) {
        EXPECT_EQ(update.message, u"Der Code 129 ist in der Codepage windows-1252 nicht belegt."_s);
    }
}

TEST_F(AsciiTool, CharacterToCodeAndTheFirstCharacter) {
    EXPECT_EQ(characterToCode(m_table, u"Ärger"_s).code, u"196"_s);
    EXPECT_EQ(characterToCode(m_table, {}).code, std::nullopt);
    const AsciiUpdate missing = characterToCode(m_table, u"😀x"_s);
    EXPECT_EQ(missing.code, std::nullopt);
    EXPECT_EQ(missing.message, u"Das Zeichen „😀“ gibt es in der Codepage windows-1252 nicht."_s);

    EXPECT_EQ(firstCharacter(u"abc"_s), u"a"_s);
    EXPECT_EQ(firstCharacter(u"😀x"_s), u"😀"_s);
    EXPECT_EQ(firstCharacter({}), QString());
}

} // namespace
