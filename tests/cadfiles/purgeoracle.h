#pragma once

// The purge analysis exactly as the window has always run it: neighbours with equal keys into the
// purge list, then every pair of that list compared. Quadratic; only the tests use it, as the
// yardstick for the grouped analysis.
#include "common/pathsplit.h"

#include <QStringList>

#include <cmath>
#include <optional>

namespace quenfor::testing {

inline std::optional<float> oracleNumber(const QString& text) {
    bool ok = false;
    const float value = text.toFloat(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

inline QStringList literalPurgeAnalysis(const QString& folder, const QStringList& file1) {
    QStringList list1, list2, list4, listTmp;
    for (const QString& name : file1) {
        const PathParts parts = splitPath(name, Separators::Native);
        list1.append(parts.name);
        list2.append(parts.extension);
    }
    for (qsizetype i = 0; i + 1 < file1.size(); ++i) {
        const QString key = list1[i] + QStringLiteral(".") + list2[i];
        const QString next = list1[i + 1] + QStringLiteral(".") + list2[i + 1];
        if (key == next) {
            list4.append(joinFolderAndName(folder, file1[i]));
            list4.append(joinFolderAndName(folder, file1[i + 1]));
        }
    }
    if (list4.size() < 2)
        return list4;
    list4.removeDuplicates();
    const QString prefix = joinFolderAndName(folder, QString());
    auto base = [&](const QString& entry) {
        const PathParts parts = splitPath(entry, Separators::Native);
        return prefix + parts.name + parts.extension;
    };
    auto version = [&](const QString& entry) {
        QString text = entry.mid(base(entry).size() + 1);
        return text.isEmpty() ? QStringLiteral("0") : text;
    };
    for (qsizetype i = 0; i < list4.size(); ++i) {
        for (qsizetype j = 0; j < list4.size(); ++j) {
            const auto vi = oracleNumber(version(list4[i]));
            const auto vj = oracleNumber(version(list4[j]));
            if (!vi || !vj) // the comparison is skipped for a version that is no number
                continue;
            if (base(list4[j]) == base(list4[i]) && *vj > *vi)
                listTmp.append(list4[i]);
        }
    }
    listTmp.removeDuplicates();
    return listTmp;
}

} // namespace quenfor::testing
