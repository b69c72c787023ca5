#pragma once

#include <QString>
#include <QUrl>

namespace quenfor {

// The commands typed into the text editor's status line, compared exactly as listed:
// "help"/"info", "DOS"/"dos", "X"/"x"/"EXIT"/"exit", "autor". Any other text does nothing.
enum class SkribbCommand { None, Help, Terminal, EndProgram, Author };

SkribbCommand skribbCommand(const QString& text);

// What "autor" shows in the status line.
QString skribbAuthorText();
// What the information button shows.
QString skribbAboutText();

// The help page of "help" and "info": a web address as it stands, anything else a file.
struct HelpPage {
    QUrl url;
    QString address; // shown in the status line
    QString problem; // German, when the page cannot be shown
};
HelpPage helpPageOf(const QString& page);
QString helpPageFailure(const QString& address);

inline constexpr char16_t kTerminalFailed[] = u"Es konnte keine Eingabeaufforderung gestartet werden.";

} // namespace quenfor
