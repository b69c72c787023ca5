#include "desktools/viewerconsole.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

struct Command {
    QStringList words;
    ConsoleAction action;
    QString schemeWord;
};

// The table after "save" and the file path, in the order the blocks are tried.
const std::array<Command, 24>& commandTable() {
    static const std::array<Command, 24> table{{
        {{u"dos"_s}, ConsoleAction::Terminal, {}},
        {{u"print"_s}, ConsoleAction::Print, {}},
        {{u"list"_s}, ConsoleAction::List, {}},
        {{u"del"_s}, ConsoleAction::Delete, {}},
        {{u"X"_s, u"x"_s, u"EXIT"_s, u"exit"_s}, ConsoleAction::Exit, {}},
        {{u"Q"_s, u"q"_s, u"QUIT"_s, u"quit"_s}, ConsoleAction::Quit, {}},
        {{u"autor"_s}, ConsoleAction::Author, {}},
        {{u"viewer"_s}, ConsoleAction::WebPage, {}},
        {{u"schwarz"_s, u"black"_s}, ConsoleAction::Colour, u"schwarz"_s},
        {{u"weiss"_s, u"white"_s}, ConsoleAction::Colour, u"weiss"_s},
        {{u"gelb"_s, u"yellow"_s}, ConsoleAction::Colour, u"gelb"_s},
        {{u"rosa"_s, u"pink"_s}, ConsoleAction::Colour, u"rosa"_s},
        {{u"blau"_s, u"blue"_s}, ConsoleAction::Colour, u"blau"_s},
        {{u"grün"_s, u"green"_s}, ConsoleAction::Colour, u"gruen"_s},
        {{u"idir"_s}, ConsoleAction::InstallFolder, {}},
        {{u"reset"_s}, ConsoleAction::Reset, {}},
        {{u"type"_s}, ConsoleAction::Types, {}},
        {{u"netsend"_s}, ConsoleAction::Messenger, {}},
        {{u"?"_s, u"help"_s}, ConsoleAction::Help, {}},
        {{u"info"_s}, ConsoleAction::Info, {}},
        {{u"date"_s}, ConsoleAction::Date, {}},
        {{u"ver"_s, u"version"_s}, ConsoleAction::Version, {}},
        {{u"copy"_s}, ConsoleAction::Copy, {}},
        {{u"paste"_s}, ConsoleAction::Paste, {}},
    }};
    return table;
}

} // namespace

QList<ConsoleStep> consoleSteps(const QString& input, const std::function<bool(const QString&)>& isExistingFile) {
    QList<ConsoleStep> steps;
    if (input.isEmpty())
        return steps;
    if (input == u"save"_s)
        steps.append({ConsoleAction::Save, {}});
    // A file called like a command is loaded and the command runs as well.
    if (isExistingFile && isExistingFile(input))
        steps.append({ConsoleAction::OpenFile, {}});
    for (const Command& command : commandTable()) {
        if (command.words.contains(input))
            steps.append({command.action, command.schemeWord});
    }
    return steps;
}

QString consoleHelpLine() {
    return u"<Dateipfad> autor black copy date dos exit help idir info list paste print reset type del viewer ver "
           u"version white x"_s;
}

QString viewerVersion() {
    return u"1.7"_s;
}

QString installFolderText(const QString& programFolder) {
    return u"Installationsverzeichnis: "_s + programFolder;
}

} // namespace quenfor
