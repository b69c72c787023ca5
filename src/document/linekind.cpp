#include "document/linekind.h"

using namespace Qt::StringLiterals;

namespace quenfor {

bool startsWithMapkey(QStringView line) {
    return line.startsWith(u"mapkey");
}

bool isContinuationLine(QStringView line) {
    return line.startsWith(u"mapkey(continued) ");
}

bool isCommentLine(QStringView line) {
    return line.startsWith(u'!');
}

bool isFavoriteLine(QStringView line) {
    return line.startsWith(u"browser_favorite") || line.startsWith(u"BROWSER_FAVORITE");
}

bool isBlankLine(QStringView line) {
    for (QChar c : line) {
        if (c != u' ')
            return false;
    }
    return true;
}

LineKind classifyLine(QStringView line) {
    if (isContinuationLine(line))
        return LineKind::Continuation;
    if (startsWithMapkey(line))
        return LineKind::Mapkey;
    if (isCommentLine(line))
        return LineKind::Comment;
    if (isFavoriteLine(line))
        return LineKind::Favorite;
    if (isBlankLine(line))
        return LineKind::Blank;
    return LineKind::Option;
}

QString lineKindName(LineKind kind) {
    switch (kind) {
    case LineKind::Mapkey:
        return u"mapkey"_s;
    case LineKind::Continuation:
        return u"continuation"_s;
    case LineKind::Comment:
        return u"comment"_s;
    case LineKind::Favorite:
        return u"favorite"_s;
    case LineKind::Option:
        return u"option"_s;
    case LineKind::Blank:
        return u"blank"_s;
    }
    return {};
}

} // namespace quenfor
