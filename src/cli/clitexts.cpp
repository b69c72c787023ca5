#include "cli/clitexts.h"

#include "cli/comparecommands.h"
#include "cli/drwcheckcommand.h"
#include "cli/editcommands.h"
#include "cli/findcommand.h"
#include "cli/interpolatecommand.h"
#include "cli/lintcommand.h"
#include "cli/mapkeycommands.h"
#include "cli/proposalcommands.h"
#include "cli/purgecommands.h"
#include "cli/searchprocommands.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace quenfor::cli {

namespace {

const QString kCommonOptions = u"Gemeinsame Optionen:\n"
                               "  --codepage NAME  Codepage der gelesenen und geschriebenen Dateien\n"
                               "                   (Vorgabe: Einstellung \"Codepage\", sonst windows-1252;\n"
                               "                   erzwingt die Codepage auch für UTF-8-Dateien)\n"
                               "  -i, --in-place   Ergebnis atomar in DATEI zurückschreiben statt auf stdout\n"
                               "  -o DATEI         Ergebnis atomar in DATEI schreiben\n"
                               "  --kb DATEI       Wissensdatei statt der des Datenordners\n"
                               "  --data ORDNER    Ordner der Dateien neben dem Programm\n"_s;

const QHash<QString, QString>& commandTexts() {
    static const QHash<QString, QString> texts = {
        {u"cat"_s,
         u"quenfor-cli cat DATEI\n  Öffnet DATEI und speichert sie wieder, sonst nichts (CR LF nach jeder Zeile).\n"_s},
        {u"blank"_s,
         u"quenfor-cli blank DATEI\n  \"Leerzeilen löschen\": entfernt Zeilen aus Leerzeichen und fasst mehrere\n"
         "  Leerzeichen in einer Zeile zu einem zusammen.\n"_s},
        {u"dedupe"_s,
         u"quenfor-cli dedupe DATEI\n  \"doppelte Einträge löschen\": behält von gleichen Zeilen die erste;\n"
         "  Mapkey-Zeilen und leere Zeilen bleiben immer.\n"_s},
        {u"sort"_s,
         u"quenfor-cli sort DATEI\n  \"alphabetisch sortieren\": Optionen aufsteigend ohne Rücksicht auf Groß- und\n"
         "  Kleinschreibung, danach Mapkeys, Kommentare und Favoriten in alter Reihenfolge.\n"
         "  Die zuerst einsortierte Zeile entfällt dabei; stderr nennt sie.\n"_s},
        {u"lower"_s,
         u"quenfor-cli lower DATEI\n  \"Großbuchstaben umwandeln in Kleinbuchstaben\" (außer Kommentaren und Mapkeys).\n"_s},
        {u"repair"_s, u"quenfor-cli repair DATEI\n  \"fragmentierten Unix Text reparieren\": trennt Text mit "
                      u"LF-Zeilenenden wieder in\n"
                      "  Zeilen. Eine Datei mit CR LF erhält dabei nach jeder Zeile eine Leerzeile.\n"_s},
        {u"categories"_s, u"quenfor-cli categories DATEI\n  \"nach Kategorien sortieren\": Optionszeilen in 31 "
                          u"Abschnitte nach Themen, danach\n"
                          "  alle nicht zugeordneten Zeilen; doppelte Einträge werden dabei gelöscht.\n"_s},
        {u"explain"_s, u"quenfor-cli explain [--kb DATEI] [--data ORDNER] ZEILE\n  Gibt aus, was der Erklär-Bär zu "
                       u"ZEILE als Eingabezeile "
                       "zeigt (Vorgabe:\n  config_opts.txt im Datenordner des Programms).\n"_s},
        {u"kinds"_s, u"quenfor-cli kinds DATEI\n  Gibt für jede Zeile ihre Nummer, einen Tabulator und ihre Art aus\n"
                     "  (mapkey, continuation, comment, favorite, option, blank).\n"_s},
        {u"family"_s,
         u"quenfor-cli family NAME\n  Gibt die Dateifamilie eines Dateinamens aus (config, dtl, pcf, searchpro, scl\n"
         "  oder none), dann Auswahlliste, Optionsliste, Wissensdatei und Speichername.\n"_s},
        {u"split-mapkey"_s,
         u"quenfor-cli split-mapkey ZEILE\n  Teilt eine lange Mapkey-Zeile wie der Umbruch des Fensters und gibt die\n"
         "  Zeilen des Dokuments danach aus.\n"_s},
    };
    return texts;
}

} // namespace

QString overviewHelp() {
    return u"quenfor-cli – die Werkzeuge von quenfor für Skripte\n\n"
           "Aufruf:\n  quenfor-cli BEFEHL [OPTIONEN] [ARGUMENTE]\n  quenfor-cli --help | BEFEHL --help\n"
           "  quenfor-cli --version\n\n"
           "Dokument-Befehle (DATEI oder - für stdin; Ergebnis auf stdout, mit -i oder -o in eine Datei):\n"
           "  cat, blank, dedupe, sort, lower, repair, categories, replace, proposal, ghost, searchpro\n\n"
           "Abfragen (UTF-8, eine Angabe je Zeile):\n"
           "  kinds, family, split-mapkey, explain, mapkeys, mapkey-dups, favorite\n\n"
           "Dateien des CAD-Systems:\n"
           "  purge, clean, drwcheck, find\n\n"
           "Prüfen (Rückgabewert 1 bei Befunden):\n"
           "  lint\n\n"
           "Vergleichen (welche Datei gilt; was sich geändert hat, Rückgabewert 1 bei Unterschieden):\n"
           "  effective, diff\n\n"
           "Rechner:\n"
           "  interpolate\n\n"_s +
           kCommonOptions +
           u"\nRückgabewert: 0 erledigt, 1 nicht möglich (Meldung auf stderr), 2 Aufruf fehlerhaft.\n"_s;
}

QString commandHelp(const QString& command) {
    QString text = commandTexts().value(command);
    if (text.isEmpty())
        text = mapkeyCommandHelp(command);
    if (text.isEmpty())
        text = editCommandHelp(command);
    if (text.isEmpty())
        text = proposalCommandHelp(command);
    if (text.isEmpty())
        text = purgeCommandHelp(command);
    if (text.isEmpty() && command == u"searchpro")
        text = searchProCommandHelp();
    if (text.isEmpty() && command == u"drwcheck")
        text = drwCheckCommandHelp();
    if (text.isEmpty() && command == u"find")
        text = findCommandHelp();
    if (text.isEmpty() && command == u"lint")
        text = lintCommandHelp();
    if (text.isEmpty())
        text = compareCommandHelp(command);
    if (text.isEmpty() && command == u"interpolate")
        text = interpolateCommandHelp();
    if (text.isEmpty())
        return {};
    return text + u'\n' + kCommonOptions;
}

} // namespace quenfor::cli
