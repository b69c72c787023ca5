#include "common/mounttable.h"

#include <QFile>

namespace quenfor {

namespace {

bool isOctalDigit(char c) {
    return c >= '0' && c <= '7';
}

// The kernel writes " ", tab, newline and "\" in a field as "\" followed by three octal digits.
QString unescapedField(QByteArrayView field) {
    QByteArray bytes;
    bytes.reserve(field.size());
    for (qsizetype index = 0; index < field.size(); ++index) {
        if (field[index] == '\\' && index + 3 < field.size() && isOctalDigit(field[index + 1]) &&
            isOctalDigit(field[index + 2]) && isOctalDigit(field[index + 3])) {
            const int value = (field[index + 1] - '0') * 64 + (field[index + 2] - '0') * 8 + (field[index + 3] - '0');
            bytes.append(static_cast<char>(value));
            index += 3;
        } else {
            bytes.append(field[index]);
        }
    }
    return QFile::decodeName(bytes);
}

QList<QByteArrayView> fieldsOf(QByteArrayView line) {
    QList<QByteArrayView> fields;
    qsizetype start = -1;
    for (qsizetype index = 0; index <= line.size(); ++index) {
        const bool blank = index == line.size() || line[index] == ' ' || line[index] == '\t' || line[index] == '\r';
        if (blank && start >= 0) {
            fields.append(line.sliced(start, index - start));
            start = -1;
        } else if (!blank && start < 0) {
            start = index;
        }
    }
    return fields;
}

} // namespace

QList<MountEntry> parseMountTable(QByteArrayView text) {
    QList<MountEntry> entries;
    qsizetype lineStart = 0;
    while (lineStart < text.size()) {
        qsizetype lineEnd = text.indexOf('\n', lineStart);
        if (lineEnd < 0)
            lineEnd = text.size();
        const QList<QByteArrayView> fields = fieldsOf(text.sliced(lineStart, lineEnd - lineStart));
        if (fields.size() >= 3)
            entries.append({unescapedField(fields[0]), unescapedField(fields[1]), unescapedField(fields[2])});
        lineStart = lineEnd + 1;
    }
    return entries;
}

} // namespace quenfor
