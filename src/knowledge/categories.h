#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

// The 31 subjects that group configuration options, with "Alles" in front for the picker's
// category box. Each category has a list of strings: a comment header, then option names in
// alphabetical order. The lists are built into the program.
class CategoryTable {
public:
    // The box's items, "Alles" first (index 0), then the 31 categories.
    static const QStringList& names();
    static constexpr int kCategoryCount = 31;

    // The table built into the program.
    static const CategoryTable& builtIn();
    // Reads a table file ("[Name]" lines, each followed by its strings); nullopt with an error
    // text when a category of names() is missing or the file cannot be read.
    static std::optional<CategoryTable> fromText(const QString& text, QString* error);

    // Strings of category `index` (1..31), header first; empty for 0 or out of range.
    const QStringList& strings(int index) const;

private:
    QList<QStringList> m_lists; // index 0 ("Alles") stays empty
};

} // namespace quenfor
