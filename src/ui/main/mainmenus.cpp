#include "ui/main/mainmenus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

struct Entry {
    const char16_t* objectName;
    const char16_t* caption;
};

struct MenuDefinition {
    const char16_t* objectName;
    const char16_t* caption;
    std::initializer_list<Entry> entries;
};

const MenuDefinition kMenus[] = {
    {u"mnuDatei",
     u"&Datei",
     {{u"mnuNeu", u"Neu"},
      {u"mnuOeffnen", u"Öffnen"},
      {u"mnuSpeichern", u"Speichern"},
      {u"mnuSpeichernAls", u"Speichern als..."},
      {u"mnuDrucken", u"Drucken"},
      {u"mnuVergleichen", u"Vergleichen…"},
      {u"mnuConfigSup", u"config.sup wählen…"},
      {u"mnuConfigSupAus", u"config.sup abwählen"},
      {u"mnuPurge", u"Purge"},
      {u"mnuExit", u"EXIT"}}},
    {u"mnuOption",
     u"&Optionen",
     {{u"mnuDoppelteMapkeys", u"doppelte Mapkeys suchen"},
      {u"mnuVorschlag", u"config.pro Vorschlag einfügen"},
      {u"mnuSearchPro", u"search.pro Generator"},
      {u"mnuFavoriten", u"Favoriten Konstruktor"},
      {u"mnuKategorien", u"nach Kategorien sortieren"},
      {u"mnuMapkeysAuflisten", u"Mapkeys auflisten"}}},
    {u"mnuWerkzeugs",
     u"&Werkzeuge",
     {{u"mnuLeerzeilen", u"Leerzeilen löschen"},
      {u"mnuDoppelte", u"doppelte Einträge löschen"},
      {u"mnuAlphabet", u"alphabetisch sortieren"},
      {u"mnuGrossKlein", u"Großbuchstaben umwandeln in Kleinbuchstaben"},
      {u"mnuReparieren", u"fragmentierten Unix Text reparieren"},
      {u"mnuAllesLoeschen", u"Alles löschen"},
      {u"mnuErsetzen", u"Ersetzen"},
      {u"mnuSuchen", u"Suchen"},
      {u"mnuHilfedatei", u"Hilfedatei öffnen"},
      {u"mnuModellInZeichnung", u"Ist das Modell auch in der Zeichnung ?"},
      {u"mnuMapkeyGenerator", u"Mapkey-Generator"},
      {u"mnuDrFegel", u"Dr.Fegel"},
      {u"mnuFarbBox", u"Pro/E Farb-Box"}}},
    {u"mnuAllgemein",
     u"&Allgemein",
     {{u"mnuArbeitszeit", u"Arbeitzeitplaner"},
      {u"mnuAscii", u"ASCII Codes"},
      {u"mnuNetSend", u"net send"},
      {u"mnuPictureViewer", u"Picture Viewer"},
      {u"mnuPfadUmwandlung", u"Pfad-Umwandlung"},
      {u"mnuShooter", u"Shooter"},
      {u"mnuInterpolation", u"lineare Interpolation"},
      {u"mnuDateiBrowser", u"Datei Browser"},
      {u"mnuFarben", u"Farben einstellen"},
      {u"mnuScreenShot", u"ScreenShot"},
      {u"mnuTextEditor", u"Text Editor"}}},
    {u"mnuInfo", u"&Info", {{u"mnuUeber", u"Über+Q+U+E+N+F+O+R+"}, {u"mnuTempVerzeichnis", u"Temp. Verzeichnis"}}},
};

// Lets a disabled entry be highlighted, so hovering it can tell why it does nothing.
class HoverDisabledStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        if (hint == SH_Menu_AllowActiveAndDisabled)
            return 1;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

} // namespace

MainMenus buildMainMenus(QMenuBar* bar) {
    MainMenus menus;
    auto* style = new HoverDisabledStyle();
    style->setParent(bar);
    for (const MenuDefinition& def : kMenus) {
        QMenu* menu = bar->addMenu(QString::fromUtf16(def.caption));
        menu->setObjectName(QString::fromUtf16(def.objectName));
        menu->setStyle(style);
        if (menu->objectName() == u"mnuOption")
            menus.optionMenu = menu;
        for (const Entry& entry : def.entries) {
            QAction* action = menu->addAction(QString::fromUtf16(entry.caption));
            action->setObjectName(QString::fromUtf16(entry.objectName));
            menus.actions.insert(action->objectName(), action);
        }
    }
    return menus;
}

} // namespace quenfor
