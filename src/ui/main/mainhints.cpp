#include "ui/main/mainhints.h"

#include "knowledge/mapkeytools.h"
#include "ui/widgets/statushints.h"

#include <QHash>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QHash<QString, QString>& hintTable() {
    static const QHash<QString, QString> table = {
        {u"cmd_Color"_s, u"Ruft ein Formular zur Farbauswahl auf"_s},
        {u"cmd_RegDelTree"_s,
         u"Mit diesem Schalter können Sie das Programm wieder in den Ursprungszustand zurückversetzen."_s},
        {u"chk_erklaerbaer"_s,
         u"Hier kann eingestellt werden ob der ErklärBär immer eingeblendet werden soll wenn man eine Zeile anklickt"_s},
        {u"cmd_blanklines"_s,
         u"Löschen von Leerzeilen also alle Zeilen die keinen Inhalt (auch kein Space-Zeichen!) enthalten."_s},
        {u"img_Leerzeilen"_s,
         u"Löschen von Leerzeilen also alle Zeilen die keinen Inhalt (auch kein Space-Zeichen!) enthalten."_s},
        {u"cmd_browser"_s,
         u"Pfade mit einem kleinen Browser finden und als Textstring in die Zwischenablage kopieren"_s},
        {u"cmd_copy"_s, u"Kopieren in die Zwischenablage"_s},
        {u"copy"_s, u"Kopieren in die Zwischenablage"_s},
        {u"cmd_cut"_s, u"markierte Zeile(n) Auschneiden"_s},
        {u"cut"_s, u"markierte Zeile Auschneiden"_s},
        {u"cmd_delAll"_s, u"Löschen der gesamten Liste"_s},
        {u"cmd_delete"_s, u"Löschen von markierten Zeilen"_s},
        {u"cmd_last"_s, u"Ruft die Datei auf, die zuletzt mit quenfor editiert wurde"_s},
        {u"cmd_paste"_s, u"Einfügen in die Zwischenablage"_s},
        {u"paste"_s, u"Einfügen in die Zwischenablage"_s},
        {u"cmd_quit"_s, u"Kontextmenü ausblenden. Dies geschieht auch wenn einfach in die Liste geklickt wird."_s},
        {u"cmd_refresh"_s, u"Markierungen aufheben"_s},
        {u"cmd_Textedi"_s, u"wechselt zur Bearbeitung in einen Texteditor"_s},
        {u"cmd_exit_sp"_s, u"blendet dieses Feld aus"_s},
        {u"img_comment"_s, u"Eine Kommentarzeile hinzufügen"_s},
        {u"img_grossklein"_s, u"ändert alle Großbuchstaben in Kleinbuchstaben"_s},
        {u"img_alphabet"_s, u"ordnet alle Optionen alphabetisch absteigend"_s},
        {u"img_doppelte"_s,
         u"doppelte Optionen entfernen. Es werden dabei nicht sich widersprechende Optionen entfernt."_s},
        {u"imgPurge"_s, u"Ruft das Formular Dr.Fegel zum Löschen alter Dateien auf"_s},
        {u"Label1"_s, u"Speicher-Ort der aktuellen Datei. Ist kein Pfad mit Laufwerksbuchstabe angegeben so wird im "
                      "Programmverzeichnis gespeichert."_s},
        {u"lblnumber"_s, u"Anzeige der Zeilennummer"_s},
        {u"lblstatus"_s, u"Statuszeile für die Anzeige von Betriebsaktivitäten des Programms"_s},
        {u"ontop"_s, u"Die markierte Zeile nach ganz oben verschieben"_s},
        {u"cmd_searchprogen"_s, u"Ruft den search.pro-Generator auf der eine automatisierte Erstellung der Datei "
                                "search.pro ermöglicht."_s},
        {u"Image10"_s, u"Zeigt Informationen über das Programm an"_s},
        {u"Image8"_s, u"Löscht die markierten Zeilen und hinterläßt leere Zeilen"_s},
        {u"Image9"_s, u"Fügt eine neue Zeile ein. Ist keine Zeile markiert wird an das Ende angefügt, sonst oberhalb "
                      "der markierten Zeile."_s},
        {u"img_save"_s, u"Speichern"_s},
        {u"img_up"_s, u"Die markierte Zeile eine Zeile nach oben verschieben"_s},
        {u"img_favocheck"_s, u"Ruft den Favoriten-Konstruktor auf"_s},
        {u"img_dmapkeys"_s, QString::fromUtf16(kDuplicateMapkeysHint)},
        {u"cmd_listmapkeys"_s, QString::fromUtf16(kListMapkeysHint)},
        {u"img_zoom_all"_s, u"Das Programm auf seine Standardgröße zoomen"_s},
        {u"img_vorschlag"_s,
         u"Linke Maustaste: Vorschlagsliste einfügen. Rechte Maustaste: Ghost-Optionen hinzufügen"_s},
        {u"img_kathi"_s, u"Sortiert die Optionen der Liste nach Themen"_s},
        {u"cmd_undo"_s, u"Rückgängig: nimmt die letzte Änderung der Liste zurück (Strg+Z)"_s},
        {u"cmd_redo"_s, u"Wiederholen: stellt die zuletzt zurückgenommene Änderung wieder her (Strg+Y)"_s},
        {u"Text1"_s, u"Eingabezeile: Zeigt den aktuellen Text der angewählten Zeile an. Texte die in diese Zeile "
                     "eingegeben werden müssen mit >Enter< bestätigt werden um Sie in der Liste zu plazieren."_s},
        {u"List1"_s, u"Tipp: mit der rechten Maustaste gelangen Sie in das Kontextmenü in dem Sie schnell viele "
                     "Befehle ausführen können"_s},
    };
    return table;
}

} // namespace

QString mainWindowHint(const QString& objectName) {
    return hintTable().value(objectName);
}

void registerMainWindowHints(QWidget* root, StatusHints& hints) {
    const auto widgets = root->findChildren<QWidget*>();
    for (QWidget* w : widgets) {
        const QString hint = mainWindowHint(w->objectName());
        if (!hint.isEmpty())
            hints.add(w, hint);
    }
}

} // namespace quenfor
