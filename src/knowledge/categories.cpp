#include "knowledge/categories.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

const QStringList& CategoryTable::names() {
    static const QStringList list = {
        u"Alles"_s,
        u"Anwendung"_s,
        u"Baugruppe"_s,
        u"Baugruppenprozess"_s,
        u"Benutzeroberfläche"_s,
        u"Blech"_s,
        u"Color"_s,
        u"Confighidden"_s,
        u"Dateien"_s,
        u"Datenaustausch"_s,
        u"Datenverwaltung"_s,
        u"DruckenPlotten"_s,
        u"Elektromechanisch"_s,
        u"FEM"_s,
        u"Fertigung"_s,
        u"Folien"_s,
        u"GussSpritzguss"_s,
        u"KEs"_s,
        u"Konstruktions_manager"_s,
        u"Mechanismus"_s,
        u"Modelldarstellung"_s,
        u"Photorender"_s,
        u"Referenzsteuerung"_s,
        u"Rohrverlegung"_s,
        u"Schweissen"_s,
        u"Simulation"_s,
        u"Skizzierer"_s,
        u"System"_s,
        u"Toleranzen"_s,
        u"Umgebung"_s,
        u"Verschiedenes"_s,
        u"Zeichnung"_s,
    };
    return list;
}

std::optional<CategoryTable> CategoryTable::fromText(const QString& text, QString* error) {
    CategoryTable table;
    table.m_lists.resize(names().size());
    QList<bool> seen(names().size(), false);
    int current = -1;
    const QStringList lines = text.split(u'\n');
    for (QString line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            current = int(names().indexOf(line.mid(1, line.size() - 2)));
            if (current <= 0) {
                if (error)
                    *error = u"Unbekannte Kategorie in der Kategorienliste: %1"_s.arg(line);
                return std::nullopt;
            }
            seen[current] = true;
            continue;
        }
        if (line.isEmpty() || current <= 0)
            continue; // blank lines separate the lists; a header line is never empty
        table.m_lists[current].append(line);
    }
    for (int k = 1; k < names().size(); ++k) {
        if (!seen[k]) {
            if (error)
                *error = u"Die Kategorienliste enthält die Kategorie %1 nicht."_s.arg(names()[k]);
            return std::nullopt;
        }
    }
    return table;
}

const CategoryTable& CategoryTable::builtIn() {
    static const CategoryTable table = [] {
        QFile file(u":/knowledge/categories.txt"_s);
        QString text;
        if (file.open(QIODevice::ReadOnly))
            text = QString::fromUtf8(file.readAll());
        QString error;
        std::optional<CategoryTable> loaded = fromText(text, &error);
        // The list is compiled in and checked by the tests; an empty table keeps a broken build usable.
        if (!loaded) {
            CategoryTable empty;
            empty.m_lists.resize(names().size());
            return empty;
        }
        return *loaded;
    }();
    return table;
}

const QStringList& CategoryTable::strings(int index) const {
    static const QStringList none;
    if (index <= 0 || index >= m_lists.size())
        return none;
    return m_lists[index];
}

} // namespace quenfor
