#include "cli/clitexts.h"

#include "cli/commandtable.h"

#include <QHash>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

const QHash<QString, QString>& commandTexts() {
    static const QHash<QString, QString> texts = {
        {u"cat"_s, u"  Öffnet DATEI und speichert sie wieder, sonst nichts (CR LF nach jeder Zeile).\n"_s},
        {u"blank"_s, u"  \"Leerzeilen löschen\": entfernt Zeilen aus Leerzeichen und fasst mehrere\n"
                     "  Leerzeichen in einer Zeile zu einem zusammen.\n"_s},
        {u"dedupe"_s, u"  \"doppelte Einträge löschen\": behält von gleichen Zeilen die erste;\n"
                      "  Mapkey-Zeilen und leere Zeilen bleiben immer.\n"_s},
        {u"sort"_s, u"  \"alphabetisch sortieren\": Optionen aufsteigend ohne Rücksicht auf Groß- und\n"
                    "  Kleinschreibung, danach Mapkeys, Kommentare und Favoriten in alter Reihenfolge.\n"
                    "  Die zuerst einsortierte Zeile entfällt dabei; stderr nennt sie.\n"_s},
        {u"lower"_s, u"  \"Großbuchstaben umwandeln in Kleinbuchstaben\" (außer Kommentaren und Mapkeys).\n"_s},
        {u"repair"_s, u"  \"fragmentierten Unix Text reparieren\": trennt Text mit "
                      u"LF-Zeilenenden wieder in\n"
                      "  Zeilen. Eine Datei mit CR LF erhält dabei nach jeder Zeile eine Leerzeile.\n"_s},
        {u"categories"_s, u"  \"nach Kategorien sortieren\": Optionszeilen in 31 "
                          u"Abschnitte nach Themen, danach\n"
                          "  alle nicht zugeordneten Zeilen; doppelte Einträge werden dabei gelöscht.\n"_s},
        {u"explain"_s, u"  Gibt aus, was der Erklär-Bär zu "
                       u"ZEILE als Eingabezeile "
                       "zeigt (Vorgabe:\n  config_opts.txt im Datenordner des Programms).\n"_s},
        {u"kinds"_s, u"  Gibt für jede Zeile ihre Nummer, einen Tabulator und ihre Art aus\n"
                     "  (mapkey, continuation, comment, favorite, option, blank).\n"_s},
        {u"family"_s, u"  Gibt die Dateifamilie eines Dateinamens aus (config, dtl, pcf, searchpro, scl\n"
                      "  oder none), dann Auswahlliste, Optionsliste, Wissensdatei und Speichername.\n"_s},
        {u"split-mapkey"_s, u"  Teilt eine lange Mapkey-Zeile wie der Umbruch des Fensters und gibt die\n"
                            "  Zeilen des Dokuments danach aus.\n"_s},
    };
    return texts;
}

} // namespace

QString builtInCommandDetails(QStringView command) {
    return commandTexts().value(command.toString());
}

namespace {

QString groupHeading(CommandGroup group) {
    switch (group) {
    case CommandGroup::Document:
        return u"Dokument-Befehle (DATEI oder - für stdin; Ergebnis auf stdout, mit -i oder -o in eine Datei):"_s;
    case CommandGroup::Query:
        return u"Abfragen (UTF-8, eine Angabe je Zeile):"_s;
    case CommandGroup::CadFiles:
        return u"Dateien des CAD-Systems:"_s;
    case CommandGroup::Lint:
        return u"Prüfen (Rückgabewert 1 bei Befunden):"_s;
    case CommandGroup::Compare:
        return u"Vergleichen (welche Datei gilt; was sich geändert hat, Rückgabewert 1 bei Unterschieden):"_s;
    case CommandGroup::Calculator:
        return u"Rechner:"_s;
    }
    return {};
}

QString commonOptionsHelp() {
    return u"Gemeinsame Optionen:\n"_s + optionLines(commonOptions());
}

} // namespace

QString overviewHelp() {
    QString text = u"quenfor-cli – die Werkzeuge von quenfor für Skripte\n\n"
                   "Aufruf:\n  quenfor-cli BEFEHL [OPTIONEN] [ARGUMENTE]\n  quenfor-cli --help | BEFEHL --help\n"
                   "  quenfor-cli --version\n"_s;
    qsizetype width = 0;
    for (const CommandEntry& entry : commandTable())
        width = std::max(width, entry.name.size());
    std::optional<CommandGroup> group;
    for (const CommandEntry& entry : commandTable()) {
        if (entry.group != group) {
            group = entry.group;
            text += u'\n' + groupHeading(entry.group) + u'\n';
        }
        text += u"  "_s + entry.name.leftJustified(width + 2) + entry.summary + u'\n';
    }
    return text + u'\n' + commonOptionsHelp() +
           u"\nRückgabewert: 0 erledigt, 1 nicht möglich (Meldung auf stderr), 2 Aufruf fehlerhaft.\n"_s;
}

QString commandHelp(const QString& command) {
    const CommandEntry* entry = findCommandEntry(command);
    if (!entry)
        return {};
    QString text = u"quenfor-cli "_s + synopsisOf(*entry) + u'\n' + entry->details();
    if (!entry->options.isEmpty())
        text += u"Optionen:\n"_s + optionLines(entry->options);
    return text + u'\n' + commonOptionsHelp();
}

} // namespace quenfor::cli
