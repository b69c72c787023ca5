#include "knowledge/explanation.h"

#include "knowledge/knowledgebase.h"
#include "knowledge/optionfacts.h"

using namespace Qt::StringLiterals;

namespace quenfor {

Explanation::Kind explanationKindOf(QStringView line) {
    if (line.startsWith(u"mapkey"))
        return line.mid(6, 11) == u"(continued)" ? Explanation::Kind::MapkeyContinuation
                                                 : Explanation::Kind::MapkeyHead;
    if (line.isEmpty())
        return Explanation::Kind::Blank;
    if (line.startsWith(u"browser_favorite"))
        return Explanation::Kind::Favorite;
    if (line.startsWith(u'!'))
        return Explanation::Kind::Comment;
    return Explanation::Kind::Option;
}

QString fixedExplanation(Explanation::Kind kind) {
    switch (kind) {
    case Explanation::Kind::MapkeyHead:
        return u"Diese Zeile beschreibt die erste Zeile eines Mapkeys. Ein Mapkey ist ein in Pro/E verwendetes "
               "Tastaturmakro, mit dem häufig ausgeführte Befehlsfolgen bestimmten Tasten oder Tastenkombinationen "
               "zugeordnet werden."_s;
    case Explanation::Kind::MapkeyContinuation:
        return u"Diese Zeile ist ein Teil eines Mapkeys. Ein Mapkey ist ein in Pro/E verwendetes Tastaturmakro, mit "
               "dem häufig ausgeführte Befehlsfolgen bestimmten Tasten oder Tastenkombinationen zugeordnet werden."_s;
    case Explanation::Kind::Blank:
        return u"Leerzeile. Diese Zeile hat keine Bedeutung für die Konfiguration."_s;
    case Explanation::Kind::Favorite:
        return u"browser_favorite : Angabe von Favoritenverzeichnissen für den Dateibrowser in Pro/E. Legt fest, "
               "welche Verzeichnisse im Datei-Browser zum schnellen Navigieren sichtbar sind."_s;
    case Explanation::Kind::Comment:
        return u"Diese Zeile ist eine Kommentarzeile. Jeder Text, der sich hinter einem Ausrufungszeichen befindet "
               "wird ignoriert."_s;
    case Explanation::Kind::Option:
        break;
    }
    return {};
}

Explanation explainEntryLine(const QString& entryLine, const QString& knowledgeBasePath, const EncodingChoice& choice) {
    Explanation result;
    result.kind = explanationKindOf(entryLine);
    if (result.kind != Explanation::Kind::Option) {
        result.text = fixedExplanation(result.kind);
        return result;
    }
    const QString name = optionNameOf(entryLine);
    const KnowledgeLookup lookup = lookupKnowledgeBase(knowledgeBasePath, name, choice);
    if (!lookup.fileFound) {
        result.knowledgeBaseMissing = true;
        return result;
    }
    result.error = lookup.error;
    result.text = QString::fromUtf16(kExplanationHeading);
    for (const QStringList& block : lookup.blocks) {
        for (const QString& line : block)
            result.text += u'\n' + line;
        result.text += u"\n ..."_s;
    }
    // Below the explanation, or alone for options nobody has described yet.
    if (const OptionFact* fact = optionFactsApplyTo(knowledgeBasePath) ? OptionFacts::builtIn().find(name) : nullptr) {
        for (const QString& line : optionFactLines(*fact))
            result.text += u'\n' + line;
    }
    return result;
}

} // namespace quenfor
