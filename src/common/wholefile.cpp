#include "common/wholefile.h"

#include "common/regularfile.h"

#include <QFile>

namespace quenfor {

QByteArray readWholeFile(const QString& path, FileOpen* outcome) {
    QFile file;
    const FileOpen opened = openRegularFile(file, path);
    if (outcome)
        *outcome = opened;
    if (opened != FileOpen::Opened)
        return {};
    // readAll also copes with files that report size 0, such as those under /proc.
    return file.readAll();
}

} // namespace quenfor
