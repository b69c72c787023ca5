#pragma once

#include "document/documentfile.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace quenfor {

class ConfigDocument;

// Where the next search hit lies. Searching goes forward and, past the last line, starts again at
// the top, as users know it from text editors; `wrapped` tells that it did.
struct LineHit {
    int index = -1; // -1: no line contains the text
    bool wrapped = false;
};

// The next line after `after` that contains `text` (`after` = -1 starts at the first line). Past
// the end the search continues at the top up to and including `after` itself, so a document with
// a single hit finds it again. An empty text finds nothing.
LineHit findNextLine(const QStringList& lines, const QString& text, int after,
                     Qt::CaseSensitivity cs = Qt::CaseInsensitive);

// The indexes of every line that contains `text`, in order; none for an empty text.
QList<int> findAllLines(const QStringList& lines, const QString& text, Qt::CaseSensitivity cs = Qt::CaseInsensitive);

// Makes `index` the only selected line and the marked line, and asks the view to show it.
void selectAndShowLine(ConfigDocument& doc, int index);

// Selects, marks and shows the first line that contains `text`; returns its index, or -1 and
// leaves the document as it was. Mapkey names are case-sensitive, so callers looking for a
// mapkey pass Qt::CaseSensitive.
int selectFirstLineContaining(ConfigDocument& doc, const QString& text, Qt::CaseSensitivity cs = Qt::CaseInsensitive);

// The program's own message when the knowledge base file is missing.
inline constexpr char16_t kKnowledgeBaseMissing[] =
    u"Die Konfigurations-Datei nicht gefunden ! Kopieren Sie die Dateien config_opts.txt, dtl_opts.txt, "
    u"pcf_opts.txt in das selbe Verzeichnis wie quenfor.exe.";

struct KnowledgeHit {
    int lineNumber = 0; // counted from 1, as an editor shows the file
    QString text;
};

struct KnowledgeSearch {
    bool ok = false;
    QString error;     // German, for the user, when the file could not be read
    QStringList lines; // the whole file, so a window can show the lines after a hit
    QList<KnowledgeHit> hits;
};

// Reads the knowledge base file with the document reader (its line ends and code page) and
// collects every line that contains `text`, case-insensitively.
KnowledgeSearch searchKnowledgeBase(const QString& path, const QString& text, const EncodingChoice& choice = {});

} // namespace quenfor
