#include "desktools/viewertexts.h"

#include "desktools/picturetypes.h"
#include "desktools/viewerconsole.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace quenfor {

QString driveNotAvailableText(const QString& drive) {
    return u"Laufwerk %1 ist nicht verfügbar."_s.arg(drive);
}

QString folderMissingText(const QString& folder) {
    return u"Das Verzeichnis %1 gibt es nicht."_s.arg(folder);
}

QString pictureShownText(const QString& path, int width, int height) {
    return u"%1 (%2 × %3 Pixel)"_s.arg(path).arg(width).arg(height);
}

QString listNotOpenedText(const QString& path) {
    return u"Dateiliste wurde in %1 geschrieben; es ist kein Programm zum Öffnen von Textdateien eingerichtet."_s.arg(
        path);
}

QString noClipboardPictureText(const QString& clipboardText) {
    return u"kein Bild:"_s + clipboardText;
}

QString authorText() {
    return u"vistrel %1\nBildbetrachter mit Befehlszeile aus dem quenfor-Werkzeugkasten."_s.arg(viewerVersion());
}

QString viewerInfoText() {
    return u"vistrel %1 zeigt Bilder (bmp, dib, rle, ico, cur, gif, png, tif, jpg). Links Laufwerk, Verzeichnis "
           u"und Datei wählen; große Bilder mit dem Mausrad oder durch Ziehen mit der Maus verschieben.\n"
           u"Unten einen Bildpfad oder einen Befehl eingeben und <ENTER> drücken:\n"
           u"save: Bild als Zwischenablage.bmp speichern · list: Dateiliste in Liste.txt · del: ausgewählte Datei "
           u"löschen · print: drucken · copy, paste: Zwischenablage · date: Änderungsdatum · schwarz, weiss, gelb, "
           u"rosa, blau, grün: Farben · reset · netsend · dos · idir · help · quit · exit"_s.arg(viewerVersion());
}

QString pictureTypesText() {
    QStringList patterns;
    for (const QString& type : pictureTypes())
        patterns.append(u'*' + type);
    return u"Dateiliste zeigt: "_s + patterns.join(u';');
}

QString viewerWebPage() {
    return u"https://doc.qt.io/qt-6/qtimageformats-index.html"_s;
}

QString webPageFailedText(const QString& address) {
    return u"Die Seite %1 lässt sich nicht öffnen: kein Browser eingerichtet."_s.arg(address);
}

} // namespace quenfor
