#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace quenfor {

// Reads an HTML page with a real HTML parser (gumbo), as forgiving as a browser: unclosed and
// misnested tags, entities and stray bytes are all taken as a browser takes them.

// The text a browser's innerText gives for the first element with this id: the rendered text
// without tags, runs of blanks and line ends collapsed to one blank (kept inside <pre>), a line
// break for <br> and around blocks, a blank line around paragraphs, a tab between table cells,
// nothing of scripts, styles and hidden elements. nullopt when the page has no such element or
// nests deeper than kMaxHtmlNesting.
std::optional<QString> innerTextOfElement(QByteArrayView utf8Html, const QString& id);

// The parser needs time and memory that grow with the square of the nesting depth; a page nested
// deeper than this is taken as broken before it is parsed. Real pages stay far below it.
inline constexpr int kMaxHtmlNesting = 1000;

// A quick estimate of the deepest nesting of elements, from the tags alone; elements that close
// themselves (void elements, "/>", the implied ends of p, li, td and the like) do not count.
int estimatedHtmlNesting(QByteArrayView html);

} // namespace quenfor
