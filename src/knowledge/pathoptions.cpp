#include "knowledge/pathoptions.h"

#include "common/fileexists.h"
#include "document/configdocument.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr auto kFolder = ExistenceTest::Folder;
constexpr auto kFile = ExistenceTest::File;
constexpr auto kNone = ExistenceTest::None;

SettingsStore store() {
    return SettingsStore(QString::fromUtf16(kPathOptionsApplication));
}

QString section() {
    return QString::fromUtf16(kPathOptionsSection);
}

// The defaults are values for the CAD system on the users' Windows seats, not paths for this
// program, so they stay in their Windows form on every platform.
QList<PathOption> buildTable() {
    return {
        {u"pro_colormap_path"_s, u"Textcolor"_s, u"cmdcolor"_s, u"C:\\3d"_s, kFolder,
         u"pro_colormap_path <Vollständiger Pfadname> Bestimmt den Verzeichnispfad für eine Farbzuordnungsdatei "
         u"(.map), die von der Festplatte geladen werden soll. Nennen Sie das Verzeichnis, in dem die .map-Datei "
         u"liegt, nicht die Datei selbst."_s},
        {u"company_name"_s, u"Textcompname"_s, u"cmdCompName"_s, u"quenfor"_s, kNone,
         u"company_name Ihr Firmenname : Diese Option wird mit der Export-Option iges_out_mit_d_28000 verwendet. "
         u"Der Name steht dann im Kopf der exportierten IGES-Datei, damit der Empfänger weiß, woher die Daten "
         u"stammen."_s},
        {u"pro_editor_command"_s, u"Texteditor"_s, u"cmdeditor"_s, u"C:\\Winnt\\Notepad.exe"_s, kFile,
         u"pro_editor_command Befehl : Damit können Sie einen anderen Editor als den Systemeditor verwenden. Geben "
         u"Sie den vollständigen Pfad des Programms an; Pro/E öffnet damit Relationen, Programme und andere Texte "
         u"zum Bearbeiten."_s},
        {u"pro_format_dir"_s, u"TextFormat"_s, u"cmdformat"_s, u"C:\\3d\\Format"_s, kFolder,
         u"pro_format_dir <Verzeichnisname> Legt das Vorgabeverzeichnis für Ihre Zeichnungsformat-Bibliothek fest. "
         u"Beim Anlegen einer Zeichnung und beim Austauschen eines Formats bietet Pro/E die Formate aus diesem "
         u"Verzeichnis an."_s},
        {u"pro_group_dir"_s, u"Textudf"_s, u"cmdgroup"_s, u"C:\\3d\\udf"_s, kFolder,
         u"pro_group_dir <Verzeichnisname> Legt das Standardverzeichnis für Ihre anwenderspezifische KE-Bibliothek "
         u"fest. Dort sucht Pro/E die UDF-Dateien (*.gph), wenn Sie ein anwenderdefiniertes KE einfügen."_s},
        {u"pro_catalog_dir"_s, u"Textkatalog"_s, u"cmdkatalog"_s, u"C:\\3d\\katalog"_s, kFolder,
         u"pro_catalog_dir <Vollständiger Pfadname>  Bestimmt den Pfad des Katalogverzeichnisses, in dem sich das "
         u"Katalogmenü und die Namen der anderen Katalogdateien befinden (beispielsweise Schrauben). Aus diesen "
         u"Katalogen bauen Sie Normteile in Baugruppen ein."_s},
        {u"plot_file_dir"_s, u"TextPlot"_s, u"cmdplot"_s, u"C:\\3d\\plot"_s, kFolder,
         u"plot_file_dir Verzeichnisname: Hiermit geben Sie das Verzeichnis an, in das Plotdateien geschrieben "
         u"werden sollen. Ohne diese Option landen die Plotdateien im Arbeitsverzeichnis."_s},
        {u"pro_plot_config_dir"_s, u"Textplotkonf"_s, u"cmdplotter"_s, u"C:\\3d\\plotter"_s, kFolder,
         u"pro_plot_config_dir <Verzeichnisname> Stellt das Verzeichnis Ihrer benutzerdefinierten "
         u"Plotterkonfigurationsdatei ein. Die .pcf-Dateien dieses Verzeichnisses stehen beim Drucken als Plotter "
         u"zur Auswahl."_s},
        {u"pro_material_dir"_s, u"Textmaterial"_s, u"cmdMaterial"_s, u"C:\\3d\\material"_s, kFolder,
         u"pro_material_dir <Verzeichnisname> Legt das Standardverzeichnis für Ihre Teile-Materialbibliothek fest. "
         u"Beim Zuweisen eines Materials zeigt Pro/E die Materialdateien (*.mtl) dieses Verzeichnisses."_s},
        {u"pro_symbol_dir"_s, u"TextSymbol"_s, u"cmdSymbol"_s, u"C:\\3d\\symbole"_s, kFolder,
         u"pro_symbol_dir <Verzeichnisname> Legt das Standardverzeichnis fest, in dem benutzerdefinierte "
         u"Symbolbibliothek gespeichert werden, wobei zu dem angegebenen Verzeichnis automatisch ein Pfad angelegt "
         u"wird. Beim Einfügen eines Zeichnungssymbols (*.sym) sucht Pro/E zuerst dort."_s},
        {u"pro_dtl_setup_dir"_s, u"TextDtl"_s, u"cmdDtl"_s, u"C:\\3d\\dtlsetup"_s, kFolder,
         u"pro_dtl_setup_dir <Verzeichnisname>: Legt das Verzeichnis für die Zeichnungs-Voreinstellungsdateien "
         u"fest. Pro/E bietet die .dtl-Dateien dieses Verzeichnisses an, wenn Sie Zeichnungsoptionen laden."_s},
        {u"start_model_dir"_s, u"TextStart"_s, u"cmdStart"_s, u"C:\\3d\\start"_s, kFolder,
         u"start_model_dir Pfadname :Bestimmt den vollständigen Pfad zum Verzeichnis, in dem die Startteile und "
         u"-baugruppen gespeichert sind. Beim Anlegen eines neuen Modells werden die Startmodelle aus diesem "
         u"Verzeichnis angeboten."_s},
        {u"pro_crosshatch_dir"_s, u"Textcross"_s, u"cmdcross"_s, u"C:\\3d\\schraffur"_s, kFolder,
         u"pro_crosshatch_dir Verzeichnisname Legt das Standardverzeichnis für Ihre Schraffur-Bibliothek fest. Dort "
         u"speichert und sucht Pro/E die Schraffurmuster (*.xch) für Schnitte in Zeichnungen."_s},
        {u"search_path_file"_s, u"Textsearchpath"_s, u"cmdsearchpath"_s, u"C:\\3d\\search.pro"_s, kFile,
         u"Es wird empfohlen, den vollständigen Pfad statt eines relativen anzugeben, um Probleme zu vermeiden, "
         u"falls Sie Arbeitsverzeichnisse wechseln oder die gleiche Konfigurationsdatei in einem anderen "
         u"Startverzeichnis verwenden. search_path_file <Vollständiger Pfadname> nennt die Datei search.pro, deren "
         u"Zeilen die Verzeichnisse des Suchpfads aufzählen. Dort sucht Pro/E Modelle, die nicht im "
         u"Arbeitsverzeichnis liegen."_s},
        {u"symbol_instance_palette_file"_s, u"Textsymbolpal"_s, u"cmdsymbolpal"_s, u"C:\\3d\\symbole.drw"_s, kFile,
         u"symbol_instance_palette_file Pfadname: Gibt den Speicherort der Symbolvarianten-Palettendatei an. Die "
         u"Palette ist eine Zeichnung mit häufig gebrauchten Symbolen, aus der Sie Symbole mit wenigen Klicks "
         u"einfügen."_s},
        {u"system_colors_file"_s, u"Textsyscolfile"_s, u"cmdsyscol"_s, u"C:\\3d\\syscol.scl"_s, kFile,
         u"system_colors_file <Vollständiger Pfadname>: Angeben der System-Farbdatei. Die .scl-Datei legt die Farben "
         u"der Oberfläche fest, etwa für Hintergrund, Kanten und Hervorhebung."_s},
        {u"texture_search_path"_s, u"Texttextures"_s, u"cmdtextures"_s, u"C:\\3d\\textures"_s, kFolder,
         u"texture_search_path <Gültiger Pfad> Hängt dem Suchpfad für Texturen ein Verzeichnis an. Dort sucht Pro/E "
         u"die Bilddateien für Aussehen und fotorealistische Darstellung."_s},
        {u"tolerance_table_dir"_s, u"Texttol"_s, u"cmdtol"_s, u"C:\\3d\\tol"_s, kFolder,
         u"tolerance_table_dir Pfad : Stellt das Vorgabe-Verzeichnis für benutzerdefinierte Toleranztabellen ein. "
         u"Die Tabellen für Passungen und Allgemeintoleranzen werden beim Bemaßen aus diesem Verzeichnis geladen."_s},
        {u"trail_dir"_s, u"TextTrail"_s, u"cmdtrail"_s, u"C:\\3d\\Trail"_s, kFolder,
         u"trail_dir Verzeichnisname : Weist Pro/E an, seine Trail-Datei im angegebenen Verzeichnis anstatt im "
         u"Startverzeichnis anzulegen. So bleiben die Arbeitsverzeichnisse frei von trail.txt-Dateien, und alle "
         u"Protokolle liegen an einem Ort."_s},
        {u"mdl_tree_cfg_file"_s, u"Textmdltree"_s, u"cmdtree"_s, u"C:\\3d\\tree.cfg"_s, kFile,
         u"mdl_tree_cfg_file path to filename: Gibt die Modellbaum-Konfigurationsdatei an, die beim Starten von "
         u"Pro/E geladen wird. Sie legt fest, welche Spalten und Einträge der Modellbaum zeigt."_s},
        {u"drawing_setup_file"_s, u"TextDinDTL"_s, u"cmdDinDTL"_s, u"C:\\3d\\din.dtl"_s, kFile,
         u"drawing_setup_file dateiname.dtl : Gibt den Namen der Datei an, die Standard-Zeichnungsparameter "
         u"enthält. Ihre Einstellungen gelten für jede neue Zeichnung, bis sie in der Zeichnung geändert werden."_s},
        {u"template_solidpart"_s, u"TextStartPart"_s, u"cmdStartPart"_s, u"C:\\3d\\StartPart\\start.prt.1"_s, kFile,
         u"template_solidpart <Dateiname incl. Pfad> Bestimmt das Startteil, das Pro/E als Vorlage für jedes neue "
         u"Volumenteil nimmt. Es bringt Bezüge, Einheiten und Parameter mit."_s},
        {u"template_designasm"_s, u"TextStartASM"_s, u"cmdStartASM"_s, u"C:\\3d\\StartPart\\start.asm.1"_s, kFile,
         u"template_designasm vorhandener Dateiname, <Dateiname> Bestimmt den Dateinamen der zugewiesenen "
         u"Baugruppenschablone. Neue Baugruppen übernehmen Bezüge, Einheiten und Parameter aus dieser Vorlage."_s},
    };
}

QList<int> buildInsertAllOrder() {
    const QStringList names = {
        u"pro_colormap_path"_s,   u"company_name"_s,
        u"pro_editor_command"_s,  u"pro_format_dir"_s,
        u"pro_group_dir"_s,       u"pro_catalog_dir"_s,
        u"plot_file_dir"_s,       u"pro_plot_config_dir"_s,
        u"search_path_file"_s,    u"symbol_instance_palette_file"_s,
        u"system_colors_file"_s,  u"texture_search_path"_s,
        u"tolerance_table_dir"_s, u"trail_dir"_s,
        u"mdl_tree_cfg_file"_s,   u"pro_material_dir"_s,
        u"pro_symbol_dir"_s,      u"pro_dtl_setup_dir"_s,
        u"start_model_dir"_s,     u"pro_crosshatch_dir"_s,
        u"drawing_setup_file"_s,  u"template_solidpart"_s,
        u"template_designasm"_s,
    };
    QList<int> order;
    for (const QString& name : names)
        order.append(pathOptionIndex(name));
    return order;
}

} // namespace

const QList<PathOption>& pathOptions() {
    static const QList<PathOption> table = buildTable();
    return table;
}

int pathOptionIndex(const QString& option) {
    const QList<PathOption>& table = pathOptions();
    for (qsizetype i = 0; i < table.size(); ++i) {
        if (table[i].option == option)
            return int(i);
    }
    return -1;
}

const QList<int>& insertAllOrder() {
    static const QList<int> order = buildInsertAllOrder();
    return order;
}

QString settingsKey(const PathOption& option) {
    return option.textBox + u".Text"_s;
}

QStringList loadPathValues() {
    const SettingsStore s = store();
    QStringList values;
    for (const PathOption& option : pathOptions())
        values.append(s.value(section(), settingsKey(option), option.defaultValue));
    return values;
}

bool storePathValue(const PathOption& option, const QString& value) {
    return store().setValue(section(), settingsKey(option), value);
}

bool storePathValues(const QStringList& values) {
    const QList<PathOption>& table = pathOptions();
    Q_ASSERT(values.size() == table.size());
    bool ok = true;
    for (qsizetype i = 0; i < table.size() && i < values.size(); ++i)
        ok = storePathValue(table[i], values[i]) && ok;
    return ok;
}

QString pathStoreLocation() {
    return store().location();
}

QString pathOptionLine(const PathOption& option, const QString& value) {
    return option.option + u' ' + value;
}

bool pathValueExists(const PathOption& option, const QString& value) {
    switch (option.test) {
    case ExistenceTest::Folder:
        return folderExists(value);
    case ExistenceTest::File:
        return fileExists(value);
    case ExistenceTest::None:
        break;
    }
    return true;
}

QString existenceWarning(const PathOption& option, const QString& value) {
    if (pathValueExists(option, value))
        return {};
    const QString kind = option.test == ExistenceTest::Folder ? u"Verzeichnis "_s : u"Datei "_s;
    return kind + value + u" existiert nicht !"_s;
}

PathInsertResult insertPathOption(ConfigDocument& doc, int index, const QString& value) {
    const PathOption& option = pathOptions().at(index);
    PathInsertResult result;
    result.line = pathOptionLine(option, value);
    doc.appendLine(result.line);
    emit doc.scrollRequested(doc.count() - 1);
    result.stored = storePathValue(option, value);
    result.warning = existenceWarning(option, value);
    return result;
}

PathInsertAllResult insertAllPathOptions(ConfigDocument& doc, const QStringList& values) {
    const QList<PathOption>& table = pathOptions();
    Q_ASSERT(values.size() == table.size());
    PathInsertAllResult result;
    for (int index : insertAllOrder())
        result.lines.append(pathOptionLine(table[index], values.value(index)));
    const int first = doc.count();
    doc.appendLines(result.lines);
    emit doc.scrollRequested(first);
    result.stored = storePathValues(values);
    return result;
}

} // namespace quenfor
