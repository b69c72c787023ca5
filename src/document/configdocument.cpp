#include "document/configdocument.h"

namespace quenfor {

ConfigDocument::ConfigDocument(QObject* parent) : QObject(parent) {}

void ConfigDocument::setLine(int index, const QString& text) {
    emit aboutToChange();
    m_lines[index] = text;
    emit linesChanged(index, index);
}

void ConfigDocument::insertLine(int index, const QString& text) {
    emit aboutToChange();
    emit aboutToInsertLines(index, index);
    m_lines.insert(index, text);
    m_selected.insert(m_selected.begin() + index, 0);
    const bool markMoved = m_marked >= index;
    if (markMoved)
        ++m_marked;
    emit linesInserted(index, index);
    if (markMoved)
        emit markedChanged(m_marked);
}

void ConfigDocument::appendLine(const QString& text) {
    insertLine(count(), text);
}

void ConfigDocument::appendLines(const QStringList& lines) {
    if (lines.isEmpty())
        return;
    emit aboutToChange();
    const int first = count();
    const int last = first + int(lines.size()) - 1;
    emit aboutToInsertLines(first, last);
    m_lines.append(lines);
    m_selected.resize(m_lines.size(), 0);
    emit linesInserted(first, last);
}

void ConfigDocument::removeLine(int index) {
    emit aboutToChange();
    emit aboutToRemoveLines(index, index);
    m_lines.removeAt(index);
    if (m_selected[index])
        --m_selectedCount;
    m_selected.erase(m_selected.begin() + index);
    const int markedBefore = m_marked;
    if (m_marked == index)
        m_marked = -1;
    else if (m_marked > index)
        --m_marked;
    emit linesRemoved(index, index);
    if (m_marked != markedBefore)
        emit markedChanged(m_marked);
}

void ConfigDocument::resetState() {
    m_selected.assign(m_lines.size(), 0);
    m_selectedCount = 0;
    m_marked = -1;
}

void ConfigDocument::clear() {
    replaceAll({});
}

void ConfigDocument::replaceAll(QStringList lines) {
    emit aboutToChange();
    emit aboutToBeReset();
    m_lines = std::move(lines);
    resetState();
    emit resetDone();
    emit markedChanged(-1);
    emit selectionChanged();
}

void ConfigDocument::swapLines(int a, int b) {
    if (a == b)
        return;
    emit aboutToChange();
    m_lines.swapItemsAt(a, b);
    emit linesChanged(a, a);
    emit linesChanged(b, b);
}

void ConfigDocument::moveLine(int from, int to) {
    if (from == to)
        return;
    emit aboutToChange();
    m_lines.move(from, to);
    const char flag = m_selected[from];
    m_selected.erase(m_selected.begin() + from);
    m_selected.insert(m_selected.begin() + to, flag);
    emit linesChanged(qMin(from, to), qMax(from, to));
}

void ConfigDocument::setMarked(int index) {
    if (index < -1 || index >= count())
        index = -1;
    if (m_marked == index)
        return;
    m_marked = index;
    emit markedChanged(index);
}

bool ConfigDocument::isSelected(int index) const {
    return index >= 0 && index < count() && m_selected[index];
}

void ConfigDocument::setSelected(int index, bool selected) {
    if (index < 0 || index >= count() || bool(m_selected[index]) == selected)
        return;
    m_selected[index] = selected ? 1 : 0;
    m_selectedCount += selected ? 1 : -1;
    emit selectionChanged();
}

void ConfigDocument::clearSelection() {
    if (m_selectedCount == 0)
        return;
    std::fill(m_selected.begin(), m_selected.end(), 0);
    m_selectedCount = 0;
    emit selectionChanged();
}

void ConfigDocument::setRangeSelected(int first, int last, bool selected) {
    first = qMax(first, 0);
    last = qMin(last, count() - 1);
    bool changed = false;
    for (int i = first; i <= last; ++i) {
        if (bool(m_selected[i]) != selected) {
            m_selected[i] = selected ? 1 : 0;
            m_selectedCount += selected ? 1 : -1;
            changed = true;
        }
    }
    if (changed)
        emit selectionChanged();
}

void ConfigDocument::selectOnly(int index) {
    std::fill(m_selected.begin(), m_selected.end(), 0);
    m_selectedCount = 0;
    if (index >= 0 && index < count()) {
        m_selected[index] = 1;
        m_selectedCount = 1;
    }
    emit selectionChanged();
}

QList<int> ConfigDocument::selectedRows() const {
    QList<int> rows;
    rows.reserve(m_selectedCount);
    for (int i = 0; i < count() && rows.size() < m_selectedCount; ++i) {
        if (m_selected[i])
            rows.append(i);
    }
    return rows;
}

} // namespace quenfor
