#include "cli/commandtable.h"

#include "cli/clitexts.h"
#include "cli/commands.h"
#include "cli/comparecommands.h"
#include "cli/documentio.h"
#include "cli/drwcheckcommand.h"
#include "cli/editcommands.h"
#include "cli/findcommand.h"
#include "cli/interpolatecommand.h"
#include "cli/lintcommand.h"
#include "cli/mapkeycommands.h"
#include "cli/proposalcommands.h"
#include "cli/purgecommands.h"
#include "cli/searchprocommands.h"
#include "knowledge/optionreleases.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

using Group = CommandGroup;

CommandOption recursiveOption() {
    return {u"-r"_s, u"--recursive"_s, {}, u"auch alle Unterverzeichnisse (verlinkte werden nicht betreten)"_s};
}

CommandOption dryRunOption() {
    return {u"-n"_s, u"--dry-run"_s, {}, u"nichts löschen, nur ausgeben, was gelöscht würde"_s};
}

CommandOption formatOption(const QString& tsvColumns) {
    return {{}, u"--format"_s, u"FORMAT"_s, u"text (Vorgabe) oder tsv: "_s + tsvColumns};
}

QList<CommandEntry> makeTable() {
    return {
        {u"cat"_s,
         Group::Document,
         runDocumentCommand,
         u"öffnen und wieder speichern, sonst nichts"_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"cat"); }},
        {u"blank"_s,
         Group::Document,
         runDocumentCommand,
         u"\"Leerzeilen löschen\""_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"blank"); }},
        {u"dedupe"_s,
         Group::Document,
         runDocumentCommand,
         u"\"doppelte Einträge löschen\""_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"dedupe"); }},
        {u"sort"_s,
         Group::Document,
         runDocumentCommand,
         u"\"alphabetisch sortieren\""_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"sort"); }},
        {u"lower"_s,
         Group::Document,
         runDocumentCommand,
         u"\"Großbuchstaben umwandeln in Kleinbuchstaben\""_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"lower"); }},
        {u"repair"_s,
         Group::Document,
         runDocumentCommand,
         u"\"fragmentierten Unix Text reparieren\""_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"repair"); }},
        {u"categories"_s,
         Group::Document,
         runDocumentCommand,
         u"\"nach Kategorien sortieren\""_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"categories"); }},
        {u"replace"_s,
         Group::Document,
         runReplaceCommand,
         u"\"Ersetzen\" in jeder Zeile"_s,
         u"SUCHTEXT ERSATZ DATEI"_s,
         {},
         [] { return editCommandHelp(u"replace"_s); }},
        {u"proposal"_s,
         Group::Document,
         runProposalCommand,
         u"den config.pro-Vorschlag anhängen"_s,
         u"[DATEI]"_s,
         {},
         [] { return proposalCommandHelp(u"proposal"_s); }},
        {u"ghost"_s,
         Group::Document,
         runGhostCommand,
         u"die drei Ghost-Optionen anhängen"_s,
         u"[DATEI]"_s,
         {},
         [] { return proposalCommandHelp(u"ghost"_s); }},
        {u"searchpro"_s,
         Group::Document,
         runSearchProCommand,
         u"search.pro aus den Verzeichnissen eines Ordners"_s,
         u"ORDNER"_s,
         {},
         [] { return searchProCommandHelp(); }},

        {u"kinds"_s,
         Group::Query,
         runQueryCommand,
         u"die Art jeder Zeile einer Datei"_s,
         u"DATEI"_s,
         {},
         [] { return builtInCommandDetails(u"kinds"); }},
        {u"family"_s,
         Group::Query,
         runQueryCommand,
         u"die Dateifamilie eines Dateinamens"_s,
         u"NAME"_s,
         {},
         [] { return builtInCommandDetails(u"family"); }},
        {u"split-mapkey"_s,
         Group::Query,
         runQueryCommand,
         u"eine lange Mapkey-Zeile umbrechen"_s,
         u"ZEILE"_s,
         {},
         [] { return builtInCommandDetails(u"split-mapkey"); }},
        {u"explain"_s,
         Group::Query,
         runQueryCommand,
         u"was der Erklär-Bär zu einer Zeile zeigt"_s,
         u"[--kb DATEI] [--data ORDNER] ZEILE"_s,
         {},
         [] { return builtInCommandDetails(u"explain"); }},
        {u"mapkeys"_s,
         Group::Query,
         runMapkeysCommand,
         u"die Namen der Mapkey-Liste"_s,
         u"DATEI"_s,
         {},
         [] { return mapkeyCommandHelp(u"mapkeys"_s); }},
        {u"mapkey-dups"_s,
         Group::Query,
         runMapkeyDupsCommand,
         u"die doppelten Mapkeys"_s,
         u"DATEI"_s,
         {},
         [] { return mapkeyCommandHelp(u"mapkey-dups"_s); }},
        {u"favorite"_s,
         Group::Query,
         runFavoriteCommand,
         u"eine Favoritenzeile in Pfad und Namen zerlegen"_s,
         u"ZEILE"_s,
         {},
         [] { return editCommandHelp(u"favorite"_s); }},

        {u"purge"_s,
         Group::CadFiles,
         runPurgeCommand,
         u"\"Dr.Fegel\": alte Versionen löschen"_s,
         u"ORDNER"_s,
         {recursiveOption(), dryRunOption()},
         [] { return purgeCommandHelp(u"purge"_s); }},
        {u"clean"_s,
         Group::CadFiles,
         runCleanCommand,
         u"\"Dr.Fegel\": Nebenprodukte nach Mustern löschen"_s,
         u"ORDNER"_s,
         {recursiveOption(),
          dryRunOption(),
          {{},
           u"--patterns"_s,
           u"MUSTER"_s,
           u"Muster durch \";\" getrennt, z. B. \"*.log*;*.inf*\"; ohne die Option\n"
           "die gespeicherte Liste von Dr.Fegel, sonst die Standardliste"_s}},
         [] { return purgeCommandHelp(u"clean"_s); }},
        {u"drwcheck"_s,
         Group::CadFiles,
         runDrwCheckCommand,
         u"steht das Modell in der Zeichnung?"_s,
         u"[--codepage NAME] PFAD..."_s,
         {},
         [] { return drwCheckCommandHelp(); }},
        {u"find"_s,
         Group::CadFiles,
         runFindCommand,
         u"Dateisuche nach einem Muster"_s,
         u"ORDNER MUSTER"_s,
         {{{}, u"--no-subfolders"_s, {}, u"nur ORDNER selbst durchsuchen"_s},
          {{},
           u"--mask"_s,
           u"N"_s,
           u"Attributmaske (Vorgabe 439): ein Eintrag wird nur gemeldet, wenn jedes\n"
           "seiner Attribute auch in N gesetzt ist. Schreibgeschützt 1, versteckt\n"
           "(Name beginnt mit \".\") 2, Verzeichnis 16, Archiv (normale Datei) 32,\n"
           "normal (weder Datei noch Verzeichnis) 128. 33 = nur Dateien."_s}},
         [] { return findCommandHelp(); }},

        {u"lint"_s,
         Group::Lint,
         runLintCommand,
         u"Konfigurationsdateien prüfen"_s,
         u"DATEI..."_s,
         {{{},
           u"--check-paths"_s,
           {},
           u"search.pro: auch melden, welche Verzeichnisse es nicht gibt (Pfade mit\n"
           "Umgebungsvariablen wie $PRO_DIRECTORY bleiben ungeprüft)"_s},
          {{},
           u"--release"_s,
           u"NAME"_s,
           u"config.pro, config.sup, .dtl: auch melden, welche Optionen die Version\n"
           "NAME nicht kennt oder nur als versteckte (nicht dokumentierte) Option\n"
           "liest. NAME: "_s +
               cadReleaseNames() +
               u"\n(WF4 = Wildfire 4.0, CEP5 = Creo Elements/Pro 5.0, CP6 = Creo Parametric 6.0).\n"
               "Im Fenster gilt dafür die Einstellung \"Zielversion\"."_s}},
         [] { return lintCommandHelp(); }},

        {u"effective"_s,
         Group::Compare,
         runEffectiveCommand,
         u"welcher Wert jeder Option gilt"_s,
         u"DATEI..."_s,
         {formatOption(u"je Zeile einer Datei: Name, Wert, Datei, Zeile, Zustand\n"
                       "(effective, locked, overridden, refused), durch Tabulatoren getrennt"_s)},
         [] { return compareCommandHelp(u"effective"_s); }},
        {u"diff"_s,
         Group::Compare,
         runDiffCommand,
         u"was zwei Dateien verschieden setzen"_s,
         u"DATEI_A DATEI_B"_s,
         {formatOption(u"je Unterschied: added/removed/changed, option/mapkey, Name,\n"
                       "alter Wert, neuer Wert, Zeile in A, Zeile in B, durch Tabulatoren getrennt"_s)},
         [] { return compareCommandHelp(u"diff"_s); }},

        {u"interpolate"_s,
         Group::Calculator,
         runInterpolateCommand,
         u"lineare Interpolation"_s,
         u"X1 Y1 X2 Y2 A"_s,
         {},
         [] { return interpolateCommandHelp(); }},
    };
}

QString optionLabel(const CommandOption& option) {
    QString label = option.shortName;
    if (!option.longName.isEmpty())
        label += (label.isEmpty() ? u""_s : u", "_s) + option.longName;
    if (option.takesValue())
        label += u' ' + option.valueName;
    return label;
}

} // namespace

const QList<CommandEntry>& commandTable() {
    static const QList<CommandEntry> table = makeTable();
    return table;
}

const CommandEntry* findCommandEntry(QStringView name) {
    const QList<CommandEntry>& table = commandTable();
    const auto it = std::find_if(table.begin(), table.end(), [&](const CommandEntry& c) { return c.name == name; });
    return it == table.end() ? nullptr : &*it;
}

const QList<CommandOption>& commonOptions() {
    static const QList<CommandOption> options = {
        {{},
         u"--codepage"_s,
         u"NAME"_s,
         u"Codepage der gelesenen und geschriebenen Dateien\n"
         "(Vorgabe: Einstellung \"Codepage\", sonst windows-1252;\n"
         "erzwingt die Codepage auch für UTF-8-Dateien)"_s},
        {u"-i"_s, u"--in-place"_s, {}, u"Ergebnis atomar in DATEI zurückschreiben statt auf stdout"_s},
        {u"-o"_s, {}, u"DATEI"_s, u"Ergebnis atomar in DATEI schreiben"_s},
        {{}, u"--kb"_s, u"DATEI"_s, u"Wissensdatei statt der des Datenordners"_s},
        {{}, u"--data"_s, u"ORDNER"_s, u"Ordner der Dateien neben dem Programm"_s},
        {u"-h"_s, u"--help"_s, {}, u"diese Hilfe"_s},
        {{}, u"--version"_s, {}, u"Version des Programms"_s},
    };
    return options;
}

QString synopsisOf(const CommandEntry& entry) {
    QString text = entry.name;
    for (const CommandOption& option : entry.options) {
        const QString& name = option.shortName.isEmpty() ? option.longName : option.shortName;
        text += u" ["_s + name + (option.takesValue() ? u' ' + option.valueName : QString()) + u']';
    }
    if (!entry.arguments.isEmpty())
        text += u' ' + entry.arguments;
    return text;
}

QString optionLines(const QList<CommandOption>& options) {
    qsizetype width = 0;
    for (const CommandOption& option : options)
        width = std::max(width, optionLabel(option).size());
    const QString indent(width + 4, u' ');
    QString text;
    for (const CommandOption& option : options) {
        const QStringList lines = option.description.split(u'\n');
        text += u"  "_s + optionLabel(option).leftJustified(width + 2) + lines.front() + u'\n';
        for (qsizetype i = 1; i < lines.size(); ++i)
            text += indent + lines[i] + u'\n';
    }
    return text;
}

int usageOf(const CliStreams& io, QStringView command) {
    const CommandEntry* entry = findCommandEntry(command);
    return usage(io, entry ? synopsisOf(*entry) : command.toString());
}

} // namespace quenfor::cli
