#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace quenfor {

// What the picture viewer's console does for a command.
enum class ConsoleAction {
    Save,          // "save"
    OpenFile,      // a path of an existing file
    Terminal,      // "dos"
    Print,         // "print"
    List,          // "list"
    Delete,        // "del"
    Exit,          // "X", "x", "EXIT", "exit"
    Quit,          // "Q", "q", "QUIT", "quit"
    Author,        // "autor"
    WebPage,       // "viewer"
    Colour,        // a colour word
    InstallFolder, // "idir"
    Reset,         // "reset"
    Types,         // "type"
    Messenger,     // "netsend"
    Help,          // "?", "help"
    Info,          // "info"
    Date,          // "date"
    Version,       // "ver", "version"
    Copy,          // "copy"
    Paste,         // "paste"
};

struct ConsoleStep {
    ConsoleAction action;
    QString schemeWord; // Colour: the word stored for the scheme ("gruen" for "grün" and "green")

    friend bool operator==(const ConsoleStep&, const ConsoleStep&) = default;
};

// Every block of the command table that the input matches, in the table's order; the comparison
// is exact and case-sensitive. isExistingFile decides whether the input names a file to load.
// Any other input gives nothing.
QList<ConsoleStep> consoleSteps(const QString& input, const std::function<bool(const QString&)>& isExistingFile);

// The one-line overview of "?" and "help".
QString consoleHelpLine();
// The answer to "ver" and "version".
QString viewerVersion();
// The answer to "idir".
QString installFolderText(const QString& programFolder);

} // namespace quenfor
