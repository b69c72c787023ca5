#pragma once

#include "document/textencoding.h"

#include <QString>
#include <QStringList>

namespace quenfor {

inline constexpr char16_t kDoitFileName[] = u"doit.pro";

// The path of doit.pro in folder.
QString doitPath(const QString& folder);

// The question before an existing doit.pro is replaced.
QString doitOverwriteQuestion(const QString& path);

struct DoitWriteResult {
    bool ok = false;
    QString path;
    QString error; // German; the previous doit.pro is then untouched
};

// Writes the lines to doit.pro in folder, encoded and with CR LF, replacing the file atomically.
// A line with a character the encoding cannot hold is refused before anything is written: the
// CAD system would look for a file name with "?" in it.
DoitWriteResult writeDoitFile(const QString& folder, const QStringList& lines, const TextEncoding& encoding);

} // namespace quenfor
