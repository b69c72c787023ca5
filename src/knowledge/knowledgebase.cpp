#include "knowledge/knowledgebase.h"

#include "common/safefilewrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kBlockLines = 6;

struct ByteLine {
    qsizetype start;
    qsizetype length;
};

// Line ranges by the reader's rule, without decoding: a lookup only decodes what it shows.
std::vector<ByteLine> byteLines(const QByteArray& bytes, qsizetype from) {
    std::vector<ByteLine> lines;
    const char* data = bytes.constData();
    const qsizetype size = bytes.size();
    qsizetype start = from;
    while (start < size) {
        const void* cr = std::memchr(data + start, '\r', size_t(size - start));
        if (!cr) {
            lines.push_back({start, size - start});
            break;
        }
        const qsizetype at = static_cast<const char*>(cr) - data;
        lines.push_back({start, at - start});
        start = at + 1;
        if (start < size && data[start] == '\n')
            ++start;
    }
    return lines;
}

bool startsWithBytes(const QByteArray& bytes, const ByteLine& line, const QByteArray& prefix) {
    return line.length >= prefix.size() &&
           std::memcmp(bytes.constData() + line.start, prefix.constData(), size_t(prefix.size())) == 0;
}

} // namespace

QString optionNameOf(QStringView entryLine) {
    QString name = entryLine.toString();
    while (name.contains(u"  "))
        name.replace(u"  "_s, u" "_s);
    const qsizetype blank = name.indexOf(u' ');
    return blank < 0 ? name : name.left(blank);
}

KnowledgeLookup lookupKnowledgeBase(const QString& path, QStringView optionName, const EncodingChoice& choice) {
    KnowledgeLookup result;
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return result;
    result.fileFound = true;
    if (!file.open(QIODevice::ReadOnly)) {
        result.error =
            u"Die Datei %1 kann nicht gelesen werden: %2"_s.arg(QDir::toNativeSeparators(path), file.errorString());
        return result;
    }
    const QByteArray bytes = file.readAll();

    const TextEncoding encoding = encodingOf(bytes, choice);
    const bool mark = bytes.startsWith(kUtf8Mark);
    QString error;
    const auto codec = LineCodec::create(encoding, &error);
    if (!codec) {
        result.error = error;
        return result;
    }
    QByteArray name;
    qsizetype unrepresentable = 0;
    codec->encodeAppend(optionName, name, unrepresentable);
    if (unrepresentable > 0)
        return result; // a name the file cannot even hold matches nothing

    const bool skipMark = mark && encoding.kind == TextEncoding::Kind::Utf8;
    const std::vector<ByteLine> lines = byteLines(bytes, skipMark ? 3 : 0);
    auto decode = [&](const ByteLine& line) { return codec->decode(bytes.constData() + line.start, line.length); };

    size_t i = 0;
    while (i < lines.size()) {
        const ByteLine& line = lines[i++];
        if (!startsWithBytes(bytes, line, name))
            continue;
        QStringList block{decode(line)};
        size_t last = i - 1;
        for (int k = 1; k < kBlockLines; ++k) {
            if (i < lines.size())
                last = i++;
            block.append(decode(lines[last]));
        }
        if (i < lines.size())
            ++i; // read, but never tested
        result.blocks.append(block);
    }
    return result;
}

AppendResult appendKnowledgeRecord(const QString& path, const QString& entryLine, const QString& explanation,
                                   const EncodingChoice& choice) {
    AppendResult result;
    QByteArray existing;
    TextEncoding encoding = TextEncoding::codepageNamed(choice.codepage);
    const std::optional<FileStamp> readAs = fileStampOf(path);
    if (QFileInfo::exists(path)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            result.error =
                u"Die Datei %1 kann nicht gelesen werden: %2"_s.arg(QDir::toNativeSeparators(path), file.errorString());
            return result;
        }
        existing = file.readAll();
        encoding = encodingOf(existing, choice);
    }
    QString error;
    const auto codec = LineCodec::create(encoding, &error);
    if (!codec) {
        result.error = error;
        return result;
    }
    QString text = explanation;
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\n', u"\r\n"_s);
    const QString record = entryLine + u'\r' + text + u'\r' + u"***\r\n"_s;
    QByteArray bytes = existing;
    qsizetype unrepresentable = 0;
    codec->encodeAppend(record, bytes, unrepresentable);

    SafeFileWrite out(path);
    if (readAs)
        out.expectUnchanged(*readAs);
    if (!out.open() || !out.write(bytes.constData(), bytes.size()) || !out.commit()) {
        result.error = u"Die Erklärung konnte nicht in %1 gespeichert werden: %2"_s.arg(QDir::toNativeSeparators(path),
                                                                                        out.reason());
        return result;
    }
    result.ok = true;
    return result;
}

} // namespace quenfor
