#include "desktools/htmlinnertext.h"

#include <gumbo.h>

#include <QByteArray>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// ---- nesting estimate -------------------------------------------------------------------------

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

// Elements that never hold others open: void elements and those whose end the parser implies
// when the next one of their kind begins.
bool nestsNothing(std::string_view name) {
    static constexpr std::array<std::string_view, 27> names = {
        "area", "base",  "br",     "col",    "embed",    "hr", "img", "input", "link",
        "meta", "param", "source", "track",  "wbr",      "p",  "li",  "dt",    "dd",
        "td",   "th",    "tr",     "option", "optgroup", "rb", "rt",  "rp",    "colgroup"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Elements whose content is text up to their end tag.
bool holdsRawText(std::string_view name) {
    return name == "script" || name == "style" || name == "textarea" || name == "title" || name == "xmp";
}

qsizetype findFrom(QByteArrayView text, QByteArrayView what, qsizetype from) {
    const qsizetype at = text.indexOf(what, from);
    return at < 0 ? text.size() : at;
}

qsizetype findEndTag(QByteArrayView html, std::string_view name, qsizetype from) {
    for (qsizetype at = html.indexOf("</", from); at >= 0; at = html.indexOf("</", at + 2)) {
        const qsizetype nameStart = at + 2;
        if (nameStart + qsizetype(name.size()) > html.size())
            break;
        bool same = true;
        for (size_t k = 0; k < name.size() && same; ++k)
            same = lower(html[nameStart + qsizetype(k)]) == name[k];
        if (same)
            return at;
    }
    return html.size();
}

// ---- finding the element ----------------------------------------------------------------------

const GumboNode* elementWithId(const GumboNode* root, const QByteArray& id) {
    // Document order, without recursion: the first element with the id wins, as in a browser.
    std::vector<const GumboNode*> pending{root};
    while (!pending.empty()) {
        const GumboNode* node = pending.back();
        pending.pop_back();
        if (node->type != GUMBO_NODE_ELEMENT && node->type != GUMBO_NODE_TEMPLATE && node->type != GUMBO_NODE_DOCUMENT)
            continue;
        const GumboVector& children =
            node->type == GUMBO_NODE_DOCUMENT ? node->v.document.children : node->v.element.children;
        if (node->type != GUMBO_NODE_DOCUMENT) {
            const GumboAttribute* attribute = gumbo_get_attribute(&node->v.element.attributes, "id");
            if (attribute && id == attribute->value)
                return node;
        }
        for (unsigned i = children.length; i > 0; --i)
            pending.push_back(static_cast<const GumboNode*>(children.data[i - 1]));
    }
    return nullptr;
}

// ---- inner text -------------------------------------------------------------------------------

bool isCollapsibleSpace(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

bool isNotRendered(const GumboNode* node) {
    switch (node->v.element.tag) {
    case GUMBO_TAG_SCRIPT:
    case GUMBO_TAG_STYLE:
    case GUMBO_TAG_NOSCRIPT:
    case GUMBO_TAG_TEMPLATE:
    case GUMBO_TAG_HEAD:
    case GUMBO_TAG_TITLE:
    case GUMBO_TAG_TEXTAREA:
    case GUMBO_TAG_INPUT:
    case GUMBO_TAG_SELECT:
    case GUMBO_TAG_IFRAME:
        return true;
    default:
        return gumbo_get_attribute(&node->v.element.attributes, "hidden") != nullptr;
    }
}

// Line breaks a browser requires around the element: 2 for a paragraph, 1 for other blocks.
int breaksAround(GumboTag tag) {
    switch (tag) {
    case GUMBO_TAG_P:
        return 2;
    case GUMBO_TAG_ADDRESS:
    case GUMBO_TAG_ARTICLE:
    case GUMBO_TAG_ASIDE:
    case GUMBO_TAG_BLOCKQUOTE:
    case GUMBO_TAG_CAPTION:
    case GUMBO_TAG_CENTER:
    case GUMBO_TAG_DD:
    case GUMBO_TAG_DETAILS:
    case GUMBO_TAG_DIR:
    case GUMBO_TAG_DIV:
    case GUMBO_TAG_DL:
    case GUMBO_TAG_DT:
    case GUMBO_TAG_FIELDSET:
    case GUMBO_TAG_FIGCAPTION:
    case GUMBO_TAG_FIGURE:
    case GUMBO_TAG_FOOTER:
    case GUMBO_TAG_FORM:
    case GUMBO_TAG_H1:
    case GUMBO_TAG_H2:
    case GUMBO_TAG_H3:
    case GUMBO_TAG_H4:
    case GUMBO_TAG_H5:
    case GUMBO_TAG_H6:
    case GUMBO_TAG_HEADER:
    case GUMBO_TAG_HGROUP:
    case GUMBO_TAG_HR:
    case GUMBO_TAG_LEGEND:
    case GUMBO_TAG_LI:
    case GUMBO_TAG_LISTING:
    case GUMBO_TAG_MAIN:
    case GUMBO_TAG_MENU:
    case GUMBO_TAG_NAV:
    case GUMBO_TAG_OL:
    case GUMBO_TAG_PLAINTEXT:
    case GUMBO_TAG_PRE:
    case GUMBO_TAG_SECTION:
    case GUMBO_TAG_SUMMARY:
    case GUMBO_TAG_TABLE:
    case GUMBO_TAG_TR:
    case GUMBO_TAG_UL:
    case GUMBO_TAG_XMP:
        return 1;
    default:
        return 0;
    }
}

bool keepsWhitespace(GumboTag tag) {
    return tag == GUMBO_TAG_PRE || tag == GUMBO_TAG_LISTING || tag == GUMBO_TAG_PLAINTEXT || tag == GUMBO_TAG_XMP;
}

class InnerText {
public:
    QString of(const GumboNode* element) {
        struct Frame {
            const GumboNode* node;
            unsigned next;
            bool keepsWhitespace;
        };
        std::vector<Frame> stack{{element, 0, keepsWhitespace(element->v.element.tag)}};
        while (!stack.empty()) {
            Frame& frame = stack.back();
            const GumboVector& children = frame.node->v.element.children;
            if (frame.next == children.length) {
                if (stack.size() > 1)
                    requireBreaks(breaksAround(frame.node->v.element.tag));
                stack.pop_back();
                continue;
            }
            const auto* child = static_cast<const GumboNode*>(children.data[frame.next++]);
            const bool keep = frame.keepsWhitespace;
            switch (child->type) {
            case GUMBO_NODE_TEXT:
            case GUMBO_NODE_WHITESPACE:
            case GUMBO_NODE_CDATA:
                addText(QString::fromUtf8(child->v.text.text), keep);
                break;
            case GUMBO_NODE_ELEMENT:
                if (isNotRendered(child))
                    break;
                if (child->v.element.tag == GUMBO_TAG_BR) {
                    addLineBreak();
                    break;
                }
                if ((child->v.element.tag == GUMBO_TAG_TD || child->v.element.tag == GUMBO_TAG_TH) && !m_lineStart)
                    addTab();
                requireBreaks(breaksAround(child->v.element.tag));
                stack.push_back({child, 0, keep || keepsWhitespace(child->v.element.tag)});
                break;
            default:
                break; // comments, templates
            }
        }
        return m_out;
    }

private:
    void addText(const QString& text, bool keep) {
        for (const QChar c : text) {
            if (!keep && isCollapsibleSpace(c)) {
                if (!m_lineStart)
                    m_space = true;
                continue;
            }
            flush();
            m_out += c;
            m_lineStart = c == u'\n';
        }
    }

    void addLineBreak() {
        m_space = false;
        flush();
        m_out += u'\n';
        m_lineStart = true;
    }

    void addTab() {
        m_space = false;
        flush();
        m_out += u'\t';
    }

    void requireBreaks(int count) {
        if (count == 0)
            return;
        m_breaks = std::max(m_breaks, count);
        m_space = false;
    }

    // Pending breaks only stand between two pieces of text: none at the start or the end.
    void flush() {
        if (m_breaks > 0) {
            if (!m_out.isEmpty())
                m_out += QString(m_breaks, u'\n');
            m_breaks = 0;
            m_lineStart = true;
        } else if (m_space) {
            m_out += u' ';
        }
        m_space = false;
    }

    QString m_out;
    int m_breaks = 0;
    bool m_space = false;
    bool m_lineStart = true;
};

} // namespace

int estimatedHtmlNesting(QByteArrayView html) {
    int depth = 0;
    int deepest = 0;
    qsizetype i = 0;
    const qsizetype size = html.size();
    while (i < size) {
        if (html[i] != '<' || i + 1 >= size) {
            ++i;
            continue;
        }
        const char next = html[i + 1];
        if (html.sliced(i).startsWith("<!--")) {
            i = findFrom(html, "-->", i + 4) + 3;
        } else if (next == '!' || next == '?') {
            i = findFrom(html, ">", i) + 1;
        } else if (next == '/') {
            depth = std::max(0, depth - 1);
            i = findFrom(html, ">", i) + 1;
        } else if (isAsciiLetter(next)) {
            std::string name;
            qsizetype at = i + 1;
            while (at < size && html[at] != '>' && html[at] != '/' && html[at] != ' ' && html[at] != '\t' &&
                   html[at] != '\n' && html[at] != '\r' && html[at] != '\f')
                name += lower(html[at++]);
            const qsizetype end = findFrom(html, ">", at);
            const bool selfClosing = end < size && html[end - 1] == '/';
            if (!selfClosing && !nestsNothing(name))
                deepest = std::max(deepest, ++depth);
            i = end + 1;
            if (holdsRawText(name) && !selfClosing)
                i = findEndTag(html, name, i);
        } else {
            ++i;
        }
    }
    return deepest;
}

std::optional<QString> innerTextOfElement(QByteArrayView utf8Html, const QString& id) {
    if (estimatedHtmlNesting(utf8Html) > kMaxHtmlNesting)
        return std::nullopt;
    GumboOutput* output = gumbo_parse_with_options(&kGumboDefaultOptions, utf8Html.data(), size_t(utf8Html.size()));
    if (!output)
        return std::nullopt;
    std::optional<QString> text;
    if (const GumboNode* element = elementWithId(output->document, id.toUtf8()))
        text = InnerText().of(element);
    gumbo_destroy_output(&kGumboDefaultOptions, output);
    return text;
}

} // namespace quenfor
