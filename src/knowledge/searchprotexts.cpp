#include "knowledge/searchprotexts.h"

#include "common/pathsplit.h"
#include "document/configdocument.h"

using namespace Qt::StringLiterals;

namespace quenfor {

QString searchProFileName(const QString& currentFolder) {
    return joinFolderAndName(currentFolder, QStringView(kSearchProName));
}

QString searchProTotalText(qsizetype count) {
    return u"Total:"_s + QString::number(count);
}

QString searchProUnreadableText(const QStringList& unreadable) {
    if (unreadable.isEmpty())
        return {};
    if (unreadable.size() == 1)
        return u"Das Verzeichnis \"%1\" konnte nicht gelesen werden; seine Unterverzeichnisse fehlen in der Liste."_s
            .arg(unreadable.front());
    // A few names are enough to find the cause; the rest would only flood the window.
    constexpr qsizetype kNamed = 3;
    QString text =
        u"%1 Verzeichnisse konnten nicht gelesen werden; ihre Unterverzeichnisse fehlen in der Liste: "_s.arg(
            unreadable.size()) +
        unreadable.mid(0, kNamed).join(u"; "_s);
    if (unreadable.size() > kNamed)
        text += u" …"_s;
    return text;
}

QString searchProHiddenText(const QStringList& hidden) {
    if (hidden.isEmpty())
        return {};
    if (hidden.size() == 1)
        return u"Versteckt und daher nicht in der Liste (mit allen Unterverzeichnissen): \"%1\"."_s.arg(hidden.front());
    constexpr qsizetype kNamed = 3;
    QString text =
        u"%1 versteckte Verzeichnisse sind mit allen Unterverzeichnissen nicht in der Liste: "_s.arg(hidden.size()) +
        hidden.mid(0, kNamed).join(u"; "_s);
    if (hidden.size() > kNamed)
        text += u" …"_s;
    return text;
}

QStringList searchProSaveInfoLines() {
    return {u"choose place for saving in the browser window !"_s, u"in this place you don´t save a file."_s,
            u"you can save the file when you end quenfor."_s};
}

QString SearchProHints::folderList() {
    return u"Hier wählen Sie die Startposition zur Erstellung Ihrer search.pro"_s;
}

QString SearchProHints::generate() {
    return u"Mit diesem Knopf können Sie die Auflistung aller Verzeichnispfade die abwärts des gewählten "
           u"Verzeichnisses sind starten"_s;
}

QString SearchProHints::resultList() {
    return u"In dieser Liste werden die Ergebnisse des Suchvorhangs aufgelistet"_s;
}

QString SearchProHints::transferAll() {
    return u"Mit diesem Knopf können Sie alle Ergebnisse der Liste in die Liste des Hauptprogramms von quenfor "
           u"übernehmen."_s;
}

QString SearchProHints::transferSelection() {
    return u"Mit diesem Knopf können Sie die ausgewählten Ergebnisse der Liste in die Liste des Hauptprogramms "
           u"von quenfor übernehmen."_s;
}

QString SearchProHints::createFile(const QString& folder) {
    return u"Datei search.pro erstellen. Inhalt ist die Liste des search.pro-Generators. Speicherort: "_s + folder;
}

void appendSearchProLines(ConfigDocument& document, const QStringList& lines, bool all) {
    document.appendLines(lines);
    if (all)
        nameUnnamedSearchProDocument(document);
}

void nameUnnamedSearchProDocument(ConfigDocument& document) {
    if (document.fileName().isEmpty())
        document.setFileName(QString::fromUtf16(kSearchProName));
}

} // namespace quenfor
