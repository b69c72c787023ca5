#pragma once

#include <QList>
#include <QStringView>

namespace quenfor {

// The shipped fact tables hold one record a line, fields separated by tabs, the option's name
// first. Calls `use` with the fields of every line that has a name and at least `minFields`
// fields; a line end "\r\n" counts as "\n".
template <typename Use> void forEachTableRow(QStringView text, qsizetype minFields, Use&& use) {
    for (QStringView line : text.split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        const QList<QStringView> fields = line.split(u'\t');
        if (fields.size() >= minFields && !fields[0].isEmpty())
            use(fields);
    }
}

} // namespace quenfor
