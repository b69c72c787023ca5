#pragma once

#include "document/documentfile.h"

#include <QString>

namespace quenfor {

// What the Erklär-Bär says about an entry line: a fixed text for mapkeys, continuations, blank
// lines, favourites and comments, the knowledge base's blocks for every other line.
struct Explanation {
    enum class Kind { MapkeyHead, MapkeyContinuation, Blank, Favorite, Comment, Option };
    Kind kind = Kind::Option;
    QString text;                      // what the panel shows; lines separated by "\n"
    bool knowledgeBaseMissing = false; // the window then shows kKnowledgeBaseMissing and unticks
    QString error;                     // a knowledge base that exists but cannot be read
};

// Tested in this order, on the line exactly as it stands (leading blanks make an option line).
Explanation::Kind explanationKindOf(QStringView entryLine);
// The fixed text of a kind; empty for Option.
QString fixedExplanation(Explanation::Kind kind);

Explanation explainEntryLine(const QString& entryLine, const QString& knowledgeBasePath,
                             const EncodingChoice& choice = {});

inline constexpr char16_t kExplanationHeading[] = u"*** Erklärung zur Option: ***";

} // namespace quenfor
