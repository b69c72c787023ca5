#pragma once

#include <QString>

#include <array>
#include <optional>

namespace quenfor {

// The 256 characters of a single-byte code page (the `Codepage` setting), both ways.
class CodePageTable {
public:
    // The named code page. An unknown name, or one whose single bytes are not characters of their
    // own (UTF-8, multi-byte pages), gives windows-1252 instead and a German note in `note`.
    static CodePageTable load(const QString& name, QString* note = nullptr);

    QString name() const { return m_name; }
    // The character of a code 0 … 255; empty when the page leaves the code unused or it is out
    // of range.
    QString characterOf(int code) const;
    // The code of the first character of `text` (a pair of surrogates is one character); empty
    // when the text is empty or the page lacks the character.
    std::optional<int> codeOf(const QString& text) const;

private:
    QString m_name;
    std::array<char32_t, 256> m_characters{}; // 0 for an unused code (code 0 itself is NUL)
};

// What a button of the ASCII window changes: the new texts of Text1 (the character) and Text2
// (the code), each only when set, and a message to show.
struct AsciiUpdate {
    std::optional<QString> character;
    std::optional<QString> code;
    QString message;
};

// " Bitte eine Zahl (< 255) eingeben !", with its leading blank.
QString codeLimitMessage();

// Command1: the code of Text1's first character.
AsciiUpdate characterToCode(const CodePageTable& table, const QString& character);
// Command2: a code of 0 or less becomes 1; codes below 255 give their character; 255 and more
// (and text that is no number) give the limit message. An empty code does nothing.
AsciiUpdate codeToCharacter(const CodePageTable& table, const QString& code);
// cmd_down / cmd_up: the code one lower or higher, then as Command2.
AsciiUpdate stepCode(const CodePageTable& table, const QString& code, int step);

// Text1 keeps only its first character.
QString firstCharacter(const QString& text);

} // namespace quenfor
