#include "ui/main/documentlistmodel.h"

#include "common/textslice.h"
#include "document/configdocument.h"

#include <QPainter>
#include <QPixmap>

namespace quenfor {

namespace {

// A small round sign: red with a bar for a locked line, amber with a stroke for a replaced one.
QIcon markIcon(const QColor& fill, bool bar) {
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::transparent);
    if (fill.isValid()) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(fill.darker(140));
        painter.setBrush(fill);
        painter.drawEllipse(QRectF(0.5, 0.5, 11, 11));
        painter.setPen(QPen(Qt::white, 2));
        if (bar)
            painter.drawLine(QPointF(3, 6), QPointF(9, 6));
        else
            painter.drawLine(QPointF(3.5, 8.5), QPointF(8.5, 3.5));
    }
    return QIcon(pixmap);
}

} // namespace

DocumentListModel::DocumentListModel(ConfigDocument* document, QObject* parent)
    : QAbstractListModel(parent), m_document(document) {
    connect(document, &ConfigDocument::aboutToBeReset, this, [this] { beginResetModel(); });
    connect(document, &ConfigDocument::resetDone, this, [this] { endResetModel(); });
    connect(document, &ConfigDocument::aboutToInsertLines, this,
            [this](int first, int last) { beginInsertRows({}, first, last); });
    connect(document, &ConfigDocument::linesInserted, this, [this] { endInsertRows(); });
    connect(document, &ConfigDocument::aboutToRemoveLines, this,
            [this](int first, int last) { beginRemoveRows({}, first, last); });
    connect(document, &ConfigDocument::linesRemoved, this, [this] { endRemoveRows(); });
    connect(document, &ConfigDocument::linesChanged, this,
            [this](int first, int last) { emit dataChanged(index(first), index(last), {Qt::DisplayRole}); });
}

int DocumentListModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid() || !m_document)
        return 0;
    return m_document->count();
}

QVariant DocumentListModel::data(const QModelIndex& index, int role) const {
    if (!m_document || !index.isValid() || index.row() >= m_document->count())
        return {};
    if (role == Qt::EditRole)
        return m_document->line(index.row());
    if (role == Qt::DisplayRole) {
        const QString& line = m_document->line(index.row());
        if (line.size() <= kListShownLength)
            return line;
        return line.first(sliceEnd(line, kListShownLength));
    }
    if (!m_showMarks || (role != Qt::DecorationRole && role != Qt::ToolTipRole))
        return {};
    const auto mark = m_marks.constFind(index.row());
    if (role == Qt::ToolTipRole)
        return mark == m_marks.cend() ? QVariant() : QVariant(mark->explanation);
    // Painted on first use: the model also serves where no screen exists (tests, benchmarks).
    if (m_noIcon.isNull()) {
        m_lockedIcon = markIcon(QColor(0xd0, 0x20, 0x20), true);
        m_overriddenIcon = markIcon(QColor(0xe0, 0x90, 0x00), false);
        m_noIcon = markIcon(QColor(), false);
    }
    if (mark == m_marks.cend())
        return m_noIcon;
    return mark->kind == LineMark::Kind::Locked ? m_lockedIcon : m_overriddenIcon;
}

void DocumentListModel::setLineMarks(QHash<int, LineMark> marks) {
    m_marks = std::move(marks);
    m_showMarks = true;
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole, Qt::ToolTipRole});
}

void DocumentListModel::clearLineMarks() {
    m_marks.clear();
    m_showMarks = false;
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole, Qt::ToolTipRole});
}

} // namespace quenfor
