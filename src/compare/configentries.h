#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace quenfor {

enum class EntryKind { Option, Mapkey };

// One setting of a configuration file as the CAD system reads it: an option line, or a mapkey
// with its continuation lines joined. Comments, blank lines and stray continuations set nothing.
// Name and value point into the lines read (no copy of a few hundred thousand values).
struct ConfigEntry {
    EntryKind kind = EntryKind::Option;
    // Identity: the option name in lower case (the CAD system ignores its case); for a mapkey
    // "mapkey " followed by its key sequence, which stays as written. Points into the line, or
    // into `ownKey` where it differs from what is written.
    QStringView key;
    QStringView name;  // as written: the option name, or the mapkey's key sequence
    QStringView value; // the rest of the line without the blanks around it; a mapkey's macro
    QString macro;     // a mapkey's macro joined from continuation lines; null while it is one line
    QString ownKey;    // the key of a mapkey, or of a name written with capitals
    int line = 0;      // document line the entry starts on, from 1
};

// The settings of a document's lines in file order. A line that holds LF line ends (a file from
// Unix) is read piece by piece, as the CAD system reads it; its pieces keep the line's number.
// The entries point into `lines`, which must outlive them.
std::vector<ConfigEntry> configEntriesOf(const QStringList& lines);

// The value as the CAD system compares it: without regard to case, a run of blanks as one blank.
QString comparableValue(QStringView value);

// Whether two values of a setting (as read, without blanks around them) mean the same: options
// as comparableValue makes them, a mapkey's macro exactly (it types text, whose case matters).
bool sameSettingValue(EntryKind kind, QStringView a, QStringView b);

} // namespace quenfor
