#pragma once

#include <QObject>
#include <QStringList>

class QUndoStack;

namespace quenfor {

class ConfigDocument;

// "Rückgängig" and "Wiederholen" for every change of the document, whatever made it (the entry
// line, a tool over the whole document, a generator, the editor's hand-back). All changes of one
// user action become one step. A step keeps the lines before and after it as lists that share
// their texts with the document, so a whole-document change costs one list of references, not a
// copy of every line; the number of steps kept shrinks as the document grows, which bounds the
// memory for a file of a million lines.
class DocumentUndo : public QObject {
    Q_OBJECT

public:
    explicit DocumentUndo(ConfigDocument* document, QObject* parent = nullptr);

    QUndoStack* stack() const { return m_stack; }
    // A newly opened file starts without history.
    void forgetHistory();
    // How many steps are kept for a document of this many lines.
    static int stepsKeptFor(qsizetype lines);

private:
    class Step;
    void changeStarts();
    void changeEnds();
    void restore(const QStringList& lines);

    ConfigDocument* m_document;
    QUndoStack* m_stack;
    QStringList m_before;
    bool m_pending = false;
    bool m_restoring = false;
};

} // namespace quenfor
