#pragma once

#include "common/safefilewrite.h"
#include "document/textencoding.h"

#include <QObject>
#include <QStringList>

#include <vector>

namespace quenfor {

// The open configuration file as an ordered list of lines, with the marked line (the one whose
// number the window shows, -1 when none) and the set of selected lines. Every change is
// announced by signals shaped like a list model's, so a view can follow without copying.
class ConfigDocument : public QObject {
    Q_OBJECT

public:
    explicit ConfigDocument(QObject* parent = nullptr);

    int count() const { return int(m_lines.size()); }
    bool isEmpty() const { return m_lines.isEmpty(); }
    const QString& line(int index) const { return m_lines.at(index); }
    const QStringList& lines() const { return m_lines; }

    void setLine(int index, const QString& text);
    // Changes line `index` in place through edit(QString&), announced as setLine announces it,
    // so a line of hundreds of megabytes that nothing else holds is not copied.
    template <typename Edit> void editLine(int index, Edit&& edit) {
        emit aboutToChange();
        edit(m_lines[index]);
        emit linesChanged(index, index);
    }
    void insertLine(int index, const QString& text);
    void appendLine(const QString& text);
    void appendLines(const QStringList& lines);
    void removeLine(int index);
    void clear();
    // Rebuilds the document as a whole (clean-up tools, open): the mark and selection go.
    void replaceAll(QStringList lines);
    // Exchanges the texts of two lines; selection stays with the rows.
    void swapLines(int a, int b);
    // Moves the line at `from` to `to`, the lines between shift by one.
    void moveLine(int from, int to);

    // The marked line; -1 means none ("Nr." in the window).
    int marked() const { return m_marked; }
    void setMarked(int index);

    bool isSelected(int index) const;
    void setSelected(int index, bool selected);
    void clearSelection();
    // Selects or deselects the rows first..last with a single notification (a view's "select all").
    void setRangeSelected(int first, int last, bool selected);
    // Clears the selection and selects this one line.
    void selectOnly(int index);
    QList<int> selectedRows() const;
    bool hasSelection() const { return m_selectedCount > 0; }

    // The file this document belongs to (the window's Label1) and how it is encoded.
    const QString& fileName() const { return m_fileName; }
    void setFileName(const QString& name) {
        if (name != m_fileName)
            m_diskStamp.reset(); // the stamp belongs to the old file
        m_fileName = name;
    }
    const TextEncoding& encoding() const { return m_encoding; }
    void setEncoding(const TextEncoding& encoding) { m_encoding = encoding; }
    // The file as it was read or last saved, so a save notices another program's change.
    const std::optional<FileStamp>& diskStamp() const { return m_diskStamp; }
    void setDiskStamp(const std::optional<FileStamp>& stamp) { m_diskStamp = stamp; }

signals:
    // Before any change of the lines (not of mark or selection): an undo history takes its copy.
    void aboutToChange();
    void aboutToBeReset();
    void resetDone();
    void aboutToInsertLines(int first, int last);
    void linesInserted(int first, int last);
    void aboutToRemoveLines(int first, int last);
    void linesRemoved(int first, int last);
    void linesChanged(int first, int last);
    void markedChanged(int index);
    void selectionChanged();
    // An operation wants this line brought into view (append, paste).
    void scrollRequested(int index);

private:
    void resetState();

    QStringList m_lines;
    std::vector<char> m_selected; // parallel to m_lines; a vector of char, not bool, for speed
    qsizetype m_selectedCount = 0;
    int m_marked = -1;
    QString m_fileName;
    TextEncoding m_encoding;
    std::optional<FileStamp> m_diskStamp;
};

} // namespace quenfor
