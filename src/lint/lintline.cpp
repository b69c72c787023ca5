#include "lint/lintline.h"

namespace quenfor {

namespace {

void fillNameAndValue(LintLine& l) {
    if (l.kind != LineKind::Option && l.kind != LineKind::Mapkey && l.kind != LineKind::Favorite)
        return;
    const QStringView text = l.text;
    qsizetype start = 0;
    while (start < text.size() && isOptionBlank(text[start]))
        ++start;
    qsizetype end = start;
    while (end < text.size() && !isOptionBlank(text[end]))
        ++end;
    l.name = text.sliced(start, end - start);
    qsizetype valueStart = end;
    while (valueStart < text.size() && isOptionBlank(text[valueStart]))
        ++valueStart;
    l.value = withoutTrailingBlanks(text.sliced(valueStart));
}

LintLine makeLine(QStringView text, int line, int piece) {
    LintLine l;
    l.text = text;
    l.line = line;
    l.piece = piece;
    l.kind = classifyLine(text);
    fillNameAndValue(l);
    return l;
}

} // namespace

bool namesAnOption(const LintLine& l) {
    if (l.nameId < 0) // a line of tabs and blanks, which the CAD system passes over
        return false;
    if (l.kind == LineKind::Option)
        return true;
    return l.kind == LineKind::Mapkey && l.name != u"mapkey" && l.name != u"mapkey(continued)";
}

QStringView withoutTrailingBlanks(QStringView text) {
    qsizetype end = text.size();
    while (end > 0 && isOptionBlank(text[end - 1]))
        --end;
    return text.first(end);
}

std::vector<LintLine> lintLinesOf(const QStringList& lines) {
    std::vector<LintLine> out;
    out.reserve(size_t(lines.size()));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringView text = lines.at(i);
        const int number = int(i + 1);
        qsizetype lf = text.indexOf(u'\n');
        if (lf < 0) {
            out.push_back(makeLine(text, number, 0));
            continue;
        }
        qsizetype start = 0;
        int piece = 1;
        while (lf >= 0) {
            out.push_back(makeLine(text.sliced(start, lf - start), number, piece++));
            start = lf + 1;
            lf = text.indexOf(u'\n', start);
        }
        // A file that ends in LF leaves nothing after the last one: no empty piece for it.
        if (start < text.size())
            out.push_back(makeLine(text.sliced(start), number, piece));
    }
    return out;
}

} // namespace quenfor
