#include "desktools/editorexplanation.h"

#include "common/pathsplit.h"
#include "common/programfolders.h"
#include "knowledge/explanation.h"
#include "knowledge/knowledgebase.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

QString editorKnowledgeBasePath() {
    return joinFolderAndName(QDir::toNativeSeparators(programDataFolder()), u"config_opts.txt");
}

EditorExplanation explainEditorLine(const QString& line, const QString& knowledgeBasePath,
                                    const EncodingChoice& choice) {
    EditorExplanation result;
    const Explanation::Kind kind = explanationKindOf(line);
    if (kind != Explanation::Kind::Option) {
        result.text = fixedExplanation(kind);
        return result;
    }
    const KnowledgeLookup lookup = lookupKnowledgeBase(knowledgeBasePath, optionNameOf(line), choice);
    if (!lookup.fileFound) {
        result.knowledgeBaseMissing = true;
        return result;
    }
    result.error = lookup.error;
    result.text = QString::fromUtf16(kEditorExplanationHeading);
    if (!lookup.blocks.isEmpty()) {
        for (const QString& blockLine : lookup.blocks.first())
            result.text += u'\n' + blockLine;
        result.text += u"\n ..."_s;
    }
    return result;
}

} // namespace quenfor
