#include "ui/main/searchhitmodel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// A list row need not carry a line of megabytes, and a line feed inside a line (only CR ends a
// line) would make the row two rows high.
constexpr qsizetype kShownCharacters = 400;

QString rowText(const QString& line) {
    QString text = line.left(kShownCharacters);
    text.replace(u'\n', u' ');
    if (line.size() > kShownCharacters)
        text += u'…';
    return text;
}

} // namespace

void SearchHitModel::setHits(const QStringList* source, QList<int> lines, int numberBase) {
    beginResetModel();
    m_source = source;
    m_lines = std::move(lines);
    m_numberBase = numberBase;
    endResetModel();
}

void SearchHitModel::clear() {
    setHits(nullptr, {}, 0);
}

int SearchHitModel::rowOf(int line) const {
    const auto it = std::lower_bound(m_lines.cbegin(), m_lines.cend(), line);
    return it != m_lines.cend() && *it == line ? int(it - m_lines.cbegin()) : -1;
}

int SearchHitModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_lines.size());
}

QVariant SearchHitModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= m_lines.size() || !m_source)
        return {};
    const int line = m_lines.at(index.row());
    // Between a change of the searched lines and the refresh that follows it, a hit may point
    // past the end.
    const QString text = line < m_source->size() ? rowText(m_source->at(line)) : QString();
    return u"%1: %2"_s.arg(QString::number(line + m_numberBase), text);
}

} // namespace quenfor
