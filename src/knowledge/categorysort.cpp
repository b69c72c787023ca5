#include "knowledge/categorysort.h"

#include "document/cleanuptools.h"
#include "document/filefamily.h"
#include "document/linekind.h"
#include "knowledge/categories.h"

#include <QHash>

#include <set>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// A line the sort may put into a category section.
bool claimable(QStringView line) {
    return !line.isEmpty() && !startsWithMapkey(line) && !line.startsWith(u"browser_favorite") &&
           !line.startsWith(u'!');
}

} // namespace

QString categoryHeader(int index) {
    return u"! "_s + CategoryTable::names().value(index) + u" -----------------------"_s;
}

bool categorySortRefuses(const QString& fileName) {
    const FamilyKind kind = fileFamilyOf(fileName).kind;
    return kind == FamilyKind::SearchPro || kind == FamilyKind::Dtl || kind == FamilyKind::Pcf;
}

QString categoryProgressText(int index) {
    return u"Kategorie "_s + CategoryTable::names().value(index);
}

QStringList sortByCategory(const QStringList& lines, const CategoryTable& table,
                           const std::function<void(int index)>& onCategory) {
    // Every string of every list is a slot; a line belongs to each slot whose string begins it.
    // Instead of testing every string against every line, look up each prefix of a line whose
    // length some string has.
    QHash<QStringView, std::vector<int>> slotsOfString; // views into the table, which outlives the call
    std::vector<int> slotStart(CategoryTable::kCategoryCount + 2, 0);
    std::set<qsizetype> lengths;
    int slotCount = 0;
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        slotStart[k] = slotCount;
        for (const QString& s : table.strings(k)) {
            slotsOfString[QStringView(s)].push_back(slotCount++);
            lengths.insert(s.size());
        }
    }
    slotStart[CategoryTable::kCategoryCount + 1] = slotCount;

    std::vector<std::vector<int>> claimed(static_cast<size_t>(slotCount));
    for (int i = 0; i < lines.size(); ++i) {
        const QString& line = lines[i];
        if (!claimable(line))
            continue;
        for (qsizetype length : lengths) {
            if (length > line.size())
                break;
            const auto it = slotsOfString.constFind(QStringView(line).left(length));
            if (it == slotsOfString.constEnd())
                continue;
            for (int slot : *it)
                claimed[size_t(slot)].push_back(i);
        }
    }

    QStringList result;
    result.reserve(lines.size() * 2 + CategoryTable::kCategoryCount + 1);
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        if (onCategory)
            onCategory(k);
        result.append(categoryHeader(k));
        for (int slot = slotStart[k]; slot < slotStart[k + 1]; ++slot) {
            for (int i : claimed[size_t(slot)])
                result.append(lines[i]);
        }
    }
    result.append(QString::fromUtf16(kCategorySortLastHeader));
    result.append(lines);
    return removeDuplicateLines(std::move(result));
}

} // namespace quenfor
