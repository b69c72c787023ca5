#include "cadfiles/drawingmodellist.h"

#include "common/regularfile.h"
#include "document/documentfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The text header is about 700 bytes and the first table of contents follows it; both are read
// in small steps, and anything that has not ended its header by the limit is no drawing.
constexpr qint64 kHeadStep = 4 * 1024;
constexpr qint64 kHeadLimit = 64 * 1024;
// A table of contents line is 81 bytes in every release seen; longer ones are damage.
constexpr qint64 kMaxEntryLength = 1024;
// Limits against damaged numbers: the model list of a drawing is a few dozen bytes, a table of
// contents a few KiB, and a chain of tables a handful.
constexpr qint64 kSectionLimit = 1024 * 1024;
constexpr qint64 kTocLimit = 4 * 1024 * 1024;
constexpr int kTocHops = 256;

constexpr QByteArrayView kHeaderEnd = "\n#-END_OF_UGC_HEADER\n";
constexpr QByteArrayView kTocStart = "#UGC_TOC ";
constexpr QByteArrayView kSectionStart = "#Dwg_Models\n";
constexpr QByteArrayView kSectionName = "Dwg_Models";
constexpr QByteArrayView kNextToc = "NEXT_TOC_ENTRY";
// The key with its terminating NUL, so "model_names_x" would not match.
constexpr QByteArrayView kModelNamesKey("model_names\0", 12);
// The binary encoding around the list: a list begins with F8 and its number of items, and the
// record closes with F1.
constexpr unsigned char kListStart = 0xF8;
constexpr unsigned char kRecordEnd = 0xF1;

// Up to size bytes from offset; fewer at the end of the device, none when it cannot seek.
QByteArray readAt(QIODevice& device, qint64 offset, qint64 size) {
    if (offset < 0 || size <= 0 || offset >= device.size() || !device.seek(offset))
        return {};
    size = std::min(size, device.size() - offset);
    QByteArray bytes(size, Qt::Uninitialized);
    qint64 got = 0;
    while (got < size) {
        const qint64 n = device.read(bytes.data() + got, size - got);
        if (n <= 0)
            break;
        got += n;
    }
    bytes.truncate(got);
    return bytes;
}

// The blank-separated fields of a table of contents line, its "#" padding and line end removed.
// Names may hold "#" themselves ("ModelView#0"), so only the padding at the end goes.
QList<QByteArrayView> fieldsOf(QByteArrayView line) {
    if (const qsizetype end = line.indexOf('\n'); end >= 0)
        line = line.first(end);
    while (!line.isEmpty() && line.back() == '#')
        line.chop(1);
    QList<QByteArrayView> fields;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= line.size(); ++i) {
        if (i == line.size() || line[i] == ' ') {
            if (i > start)
                fields.append(line.sliced(start, i - start));
            start = i + 1;
        }
    }
    return fields;
}

std::optional<qint64> number(QByteArrayView field, int base) {
    bool ok = false;
    const qint64 value = field.toByteArray().toLongLong(&ok, base);
    if (!ok || value < 0)
        return std::nullopt;
    return value;
}

struct Section {
    qint64 offset = 0;
    qint64 length = 0;
};

struct Head {
    qint64 dataStart = 0; // where the offsets of the tables of contents count from
    qint64 firstToc = 0;
};

// Finds the end of the text header and the first table of contents, which follows the release
// line right after it.
std::optional<Head> readHead(QIODevice& device) {
    QByteArray head;
    const QByteArray tocLine = "\n" + kTocStart.toByteArray();
    while (head.size() < kHeadLimit) {
        const QByteArray more = readAt(device, head.size(), kHeadStep);
        if (more.isEmpty())
            return std::nullopt;
        head += more;
        const qsizetype end = head.indexOf(kHeaderEnd);
        if (end < 0)
            continue;
        const qsizetype dataStart = end + kHeaderEnd.size();
        const qsizetype toc = head.indexOf(tocLine, dataStart - 1);
        if (toc >= 0)
            return Head{dataStart, toc + 1};
    }
    return std::nullopt;
}

// Follows the chain of tables of contents from the first one to the entry of the model list.
std::optional<Section> findModelSection(QIODevice& device, const Head& head) {
    const qint64 dataStart = head.dataStart;
    qint64 tocAt = head.firstToc;
    QSet<qint64> visited;
    for (int hop = 0; hop < kTocHops && !visited.contains(tocAt); ++hop) {
        visited.insert(tocAt);
        const QByteArray headLine = readAt(device, tocAt, kMaxEntryLength);
        const qsizetype lineEnd = headLine.indexOf('\n');
        if (!headLine.startsWith(kTocStart) || lineEnd < 0)
            return std::nullopt;
        // "#UGC_TOC 2 8 81 17": format, number of entries, bytes per entry line, ...
        const QList<QByteArrayView> header = fieldsOf(headLine);
        if (header.size() < 4)
            return std::nullopt;
        const auto count = number(header[2], 10);
        const auto entryLength = number(header[3], 10);
        if (!count || !entryLength || *entryLength < 2 || *entryLength > kMaxEntryLength)
            return std::nullopt;
        const qint64 tocBytes = std::min(*count * *entryLength, kTocLimit);
        const QByteArray entries = readAt(device, tocAt + lineEnd + 1, tocBytes);

        std::optional<qint64> next;
        for (qint64 start = 0; start + *entryLength <= entries.size(); start += *entryLength) {
            const QList<QByteArrayView> entry = fieldsOf(QByteArrayView(entries).sliced(start, *entryLength));
            if (entry.size() < 3)
                continue;
            const auto offset = number(entry[1], 16);
            const auto length = number(entry[2], 16);
            if (!offset || !length)
                continue;
            if (entry[0] == kSectionName)
                return Section{dataStart + *offset, *length};
            if (entry[0] == kNextToc && *offset > 0)
                next = dataStart + *offset;
        }
        if (!next)
            return std::nullopt;
        tocAt = *next;
    }
    return std::nullopt;
}

// The names after "model_names": F8, the number of names, each name ended by NUL, then F1.
// Anything else is damage or a layout not known here; then no name is claimed at all.
QList<QByteArray> namesOfSection(QByteArrayView section) {
    const qsizetype key = section.indexOf(kModelNamesKey);
    if (key < 0)
        return {};
    qsizetype at = key + kModelNamesKey.size();
    if (at + 2 > section.size() || static_cast<unsigned char>(section[at]) != kListStart)
        return {};
    const int count = static_cast<unsigned char>(section[at + 1]);
    if (count >= 0x80) // a longer count would need a wider encoding than the one known here
        return {};
    at += 2;
    QList<QByteArray> names;
    for (int i = 0; i < count; ++i) {
        const qsizetype end = section.indexOf('\0', at);
        if (end <= at)
            return {};
        const QByteArrayView name = section.sliced(at, end - at);
        for (const char c : name) {
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
                return {};
        }
        names.append(name.toByteArray());
        at = end + 1;
    }
    if (at >= section.size() || static_cast<unsigned char>(section[at]) != kRecordEnd)
        return {};
    return names;
}

} // namespace

QStringList readDrawingModelList(QIODevice& device, const QString& codepage) {
    if (!device.isOpen() || device.isSequential())
        return {};
    const std::optional<Head> head = readHead(device);
    if (!head)
        return {};
    const std::optional<Section> section = findModelSection(device, *head);
    if (!section)
        return {};
    const QByteArray bytes = readAt(device, section->offset, std::min(section->length, kSectionLimit));
    if (!bytes.startsWith(kSectionStart))
        return {}; // a packed section, or an offset that points elsewhere
    QStringList names;
    const EncodingChoice choice{codepage, false};
    for (const QByteArray& name : namesOfSection(bytes))
        names.append(decodeText(name, choice));
    return names;
}

QStringList readDrawingModelList(const QString& path, const QString& codepage) {
    QFile file;
    if (openRegularFile(file, path) != FileOpen::Opened)
        return {};
    return readDrawingModelList(file, codepage);
}

DrawingCheck checkDrawingWithModelList(const QString& path, const QString& codepage) {
    DrawingCheck check = checkDrawing(path, codepage);
    if (check.read == DrawingRead::Read || check.read == DrawingRead::ShortHeader)
        check.listedModels = readDrawingModelList(path, codepage);
    return check;
}

QString drawingModelListText(const QStringList& names) {
    if (names.isEmpty())
        return {};
    return QCoreApplication::translate("DrawingModel", "Modelle laut Zeichnung: %1").arg(names.join(u", "_s));
}

} // namespace quenfor
