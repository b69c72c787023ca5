#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// Lets GoogleTest show QString values readably in failure messages.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& lines, std::ostream* out) {
    *out << '[';
    for (qsizetype i = 0; i < lines.size(); ++i)
        *out << (i ? ", \"" : "\"") << lines[i].toStdString() << '"';
    *out << ']';
}
