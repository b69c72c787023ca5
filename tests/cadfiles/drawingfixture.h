#pragma once

// Drawings built like those of older releases: a long first header line of numeric fields with
// the first model's name at character 725, then the binary body of the drawing.
#include "cadfiles/drawingmodel.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

namespace drawingfixture {

// A first line of lineLength characters (at least 724 plus the field) holding field at 725.
inline QByteArray headerLine(const QByteArray& field, qsizetype lineLength = 1024) {
    QByteArray line = "#UGC:2 DRAWING 1210 0 703 1 1 15 2000 2001050 000001a4";
    for (int n = 0; line.size() < quenfor::kModelNamePosition - 1; ++n)
        line += ' ' + QByteArray::number(n * 37 % 1000);
    line.truncate(quenfor::kModelNamePosition - 1);
    line += field;
    while (line.size() < lineLength)
        line += ' ';
    return line;
}

// The rest of a drawing: line ends, NUL and high bytes, as the body of real drawings has.
inline QByteArray drawingBody() {
    QByteArray body = "\n#- VERS 0 0\n";
    for (int i = 0; i < 512; ++i)
        body += char(i * 7 % 256);
    return body;
}

inline QByteArray drawingBytes(const QByteArray& field, qsizetype lineLength = 1024, const QByteArray& lineEnd = "\n") {
    return headerLine(field, lineLength) + lineEnd + drawingBody();
}

inline QString writeFile(const QString& folder, const QString& name, const QByteArray& bytes) {
    const QString path = QDir(folder).filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return {};
    return path;
}

} // namespace drawingfixture
