#pragma once

// Drawings built like those of current releases: a text header of short lines, then tables of
// contents of 81-byte lines that give each section's offset (counted from the end of the header)
// and length, chained by NEXT_TOC_ENTRY, and the sections, among them "#Dwg_Models" with the
// drawing's list of models.
#include <QByteArray>
#include <QList>

namespace modellistfixture {

struct Section {
    QByteArray name;
    QByteArray bytes; // the whole section as stored, its "#name" line included
};

// The Dwg_Models section as the drawing stores it: F8, the number of names, the names each ended
// by NUL, F1.
inline QByteArray modelSection(const QList<QByteArray>& names) {
    QByteArray bytes = "#Dwg_Models\n";
    bytes += QByteArray("\xE0\x00Models\x00\xE2\xE0\x0Amodel_names\x00\xF8", 25);
    bytes += char(names.size());
    for (const QByteArray& name : names)
        bytes += name + '\0';
    bytes += '\xF1';
    return bytes;
}

// Sections as they surround the model list in real drawings: packed binary and plain records.
inline Section packedSection() {
    QByteArray bytes = "#ND:0:Model_L05_PX:1\n";
    for (int i = 0; i < 700; ++i)
        bytes += char((i * 73 + 11) % 256);
    return {"ND:0:Model_L05_PX:1", bytes};
}

inline Section objectsSection() {
    return {"Dwg_Objects",
            QByteArray("#Dwg_Objects\n\xE0\x00Model_refs\x00\xE2\xE0\x00object_name_ptr\x00\xF8\x01\xF7\x02\xFB", 47)};
}

inline Section modelsSection(const QList<QByteArray>& names) {
    return {"Dwg_Models", modelSection(names)};
}

inline QByteArray padded(QByteArray line, qsizetype length, char fill) {
    while (line.size() < length)
        line += fill;
    return line;
}

// "name offset length length 1977 9 -1 0ee9 4334", padded with "#" to 80 characters and a line end.
inline QByteArray tocEntry(const QByteArray& name, qint64 offset, qint64 length) {
    return padded(name + ' ' + QByteArray::number(offset, 16) + ' ' + QByteArray::number(length, 16) + ' ' +
                      QByteArray::number(length > 12 ? length - 12 : 0, 16) + " 1977 9 -1 0ee9 4334",
                  80, '#') +
           '\n';
}

inline QByteArray tocHead(qsizetype entries) {
    return padded("#UGC_TOC 2 " + QByteArray::number(entries) + " 81 17", 80, '#') + '\n';
}

// The text header; its first line carries the header's length in hex, as real drawings do.
inline QByteArray textHeader(const QByteArray& fileName) {
    QByteArray rest;
    for (const QByteArray& field :
         {QByteArray("VERS 0 0"), QByteArray("HOST"), QByteArray("LINK"), QByteArray("DBID"), QByteArray("REVS 0,"),
          QByteArray("RELL 0,"), QByteArray("UOBJ_ID 1668454467 1164253464 -503234582"), QByteArray("MACH"),
          "CMNM 00c" + fileName})
        rest += padded("#- " + field, 69, ' ') + "\\\n";
    rest += "#-END_OF_UGC_HEADER\n";
    const QByteArray first = "#UGC:2 DRAWING 1977 1560 803 1 1 15 3800 2022024 ";
    const qsizetype total = first.size() + 8 + 3 + rest.size();
    return first + QByteArray::number(total, 16).rightJustified(8, '0') + " \\\n" + rest;
}

// A whole drawing: the sections of the first list under the first table of contents, those of
// the second list (when there are any) under a second table at the end, reached by NEXT_TOC_ENTRY.
inline QByteArray currentDrawing(const QList<Section>& first, const QList<Section>& second = {},
                                 const QByteArray& fileName = "gehaeuse.drw") {
    QByteArray data = "#Creo  TM  7.0  (c) 2022 quenfor test drawing  7.0.8.0\n";
    const qsizetype firstEntries = first.size() + (second.isEmpty() ? 0 : 1);
    qint64 offset = data.size() + 81 * (firstEntries + 1);
    QByteArray toc = tocHead(firstEntries);
    QByteArray body;
    for (const Section& s : first) {
        toc += tocEntry(s.name, offset + body.size(), s.bytes.size());
        body += s.bytes + "#\n";
    }
    if (!second.isEmpty()) {
        const qint64 secondAt = offset + body.size();
        QByteArray secondBody;
        const qint64 secondData = secondAt + 81 * (second.size() + 1);
        QByteArray secondToc = tocHead(second.size());
        for (const Section& s : second) {
            secondToc += tocEntry(s.name, secondData + secondBody.size(), s.bytes.size());
            secondBody += s.bytes + "#\n";
        }
        toc += tocEntry("NEXT_TOC_ENTRY", secondAt, secondToc.size());
        body += secondToc + secondBody;
    }
    return textHeader(fileName) + data + toc + body + "#END_OF_UGC\n";
}

} // namespace modellistfixture
