#pragma once

#include "../common/qstringprinting.h"
#include "document/clipboard.h"
#include "document/configdocument.h"

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <ostream>

// Byte arrays show as their size and the hex of their start.
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << bytes.size() << " bytes: " << bytes.left(200).toHex(' ').toStdString();
}

namespace quenfor::test {

// A clipboard that only remembers what it was given.
class FakeClipboard : public Clipboard {
public:
    QString text() const override { return m_text; }
    void setText(const QString& text) override { m_text = text; }

private:
    QString m_text;
};

// Lines written compactly for tables: "a||c" is {"a", "", "c"}; "" is no line at all.
inline QStringList rows(QStringView text) {
    return text.isEmpty() ? QStringList() : text.toString().split(u'|');
}

// A document with the given lines, mark and selection, as a user would leave it by clicking.
inline void setUp(ConfigDocument& doc, const QStringList& lines, int marked = -1, const QList<int>& selected = {}) {
    doc.replaceAll(lines);
    doc.setMarked(marked);
    for (int row : selected)
        doc.setSelected(row, true);
}

inline QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

inline bool writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QString fixturePath(const char* name) {
    return QStringLiteral(QUENFOR_TEST_DATA_DIR "/document/") + QString::fromUtf8(name);
}

} // namespace quenfor::test
