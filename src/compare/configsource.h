#pragma once

#include "document/documentfile.h"

#include <QString>
#include <QStringList>

namespace quenfor {

// A configuration file read for comparing: the lines as the editor reads them.
struct ConfigSource {
    QString path;      // as the user named it; shown in every place the file is mentioned
    QStringList lines; // the document's lines (CR LF or CR end a line)
    // config.sup: the CAD system reads it first, and what it sets no later file can change.
    bool locking = false;
};

struct ConfigSourceRead {
    bool ok = false;
    QString error; // German, for the user
    ConfigSource source;
};

// True for a file the CAD system reads as config.sup: its name ends in ".sup", in any case.
bool isLockingFileName(const QString& path);

// Reads the file as the editor opens it (code page, BOM, CR LF, CR or LF alone) and refuses one
// that holds NUL bytes: that is no configuration file, and comparing it would only mislead.
ConfigSourceRead readConfigSource(const QString& path, const EncodingChoice& encoding);

// The same check for lines read elsewhere (standard input): the German refusal, or empty.
QString binaryDataError(const QString& shownName, const QStringList& lines);

} // namespace quenfor
