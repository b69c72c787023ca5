#include "cadfiles/cleanpatterns.h"

#include "common/rawfilenames.h"

using namespace Qt::StringLiterals;

namespace quenfor {

QString defaultCleaningPatterns() {
    return u"*.bom*;*.inf*;*.m_p*;*.log*;*.ptd*;*.idx*;*.pls*;*.crc*;*.out*;*.tst*;*.err*;*.lst*;*.als*"_s;
}

QStringList extensionsFromPatterns(const QString& patternText) {
    QStringList extensions;
    // Positions counted from 1 as the options frame always has: 3, 10, 17, ...
    for (qsizetype position = 3; position < patternText.size(); position += 7)
        extensions.append(patternText.mid(position - 1, 3));
    return extensions;
}

QString patternsFromExtensions(const QStringList& extensions) {
    QString text;
    for (const QString& extension : extensions) {
        if (!text.isEmpty())
            text += u';';
        text += u"*."_s + extension + u'*';
    }
    return text;
}

CleaningPatterns::CleaningPatterns(const QString& patternText) {
    for (const QString& pattern : patternText.split(u';', Qt::SkipEmptyParts)) {
        const QString trimmed = pattern.trimmed();
        if (trimmed.isEmpty())
            continue;
        m_patterns.emplace_back(trimmed);
    }
}

bool CleaningPatterns::matches(const QString& fileName) const {
    for (const FindPattern& pattern : m_patterns) {
        // Kept bytes of a Latin-1 name are matched as the characters they stand for.
        if (pattern.matches(readableFileName(fileName)))
            return true;
    }
    return false;
}

QStringList CleaningPatterns::filter(const QStringList& fileNames) const {
    QStringList matching;
    for (const QString& name : fileNames) {
        if (matches(name))
            matching.append(name);
    }
    return matching;
}

} // namespace quenfor
