#include "ui/main/documentundo.h"

#include "document/configdocument.h"

#include <QTimer>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace quenfor {

class DocumentUndo::Step : public QUndoCommand {
public:
    Step(DocumentUndo* owner, QStringList before, QStringList after)
        : m_owner(owner), m_before(std::move(before)), m_after(std::move(after)) {}

    void undo() override { m_owner->restore(m_before); }
    void redo() override {
        // The change is already made when the step is recorded.
        if (m_recorded)
            m_owner->restore(m_after);
        m_recorded = true;
    }

private:
    DocumentUndo* m_owner;
    QStringList m_before;
    QStringList m_after;
    bool m_recorded = false;
};

DocumentUndo::DocumentUndo(ConfigDocument* document, QObject* parent)
    : QObject(parent), m_document(document), m_stack(new QUndoStack(this)) {
    connect(document, &ConfigDocument::aboutToChange, this, &DocumentUndo::changeStarts);
}

int DocumentUndo::stepsKeptFor(qsizetype lines) {
    // A step costs a reference (24 bytes) per line: at most about 250 MB of them.
    if (lines <= 100'000)
        return 100;
    if (lines <= 1'000'000)
        return 10;
    return 3;
}

void DocumentUndo::forgetHistory() {
    m_pending = false;
    m_before.clear();
    m_stack->clear();
}

void DocumentUndo::changeStarts() {
    if (m_restoring || m_pending)
        return;
    m_pending = true;
    m_before = m_document->lines(); // shares the texts; the document detaches when it changes
    // Everything up to the return to the event loop belongs to the same user action.
    QTimer::singleShot(0, this, &DocumentUndo::changeEnds);
}

void DocumentUndo::changeEnds() {
    if (!m_pending)
        return;
    m_pending = false;
    QStringList before = std::move(m_before);
    m_before = {};
    if (before == m_document->lines())
        return;
    const int steps = stepsKeptFor(std::max(before.size(), m_document->lines().size()));
    if (m_stack->count() == 0 || steps < m_stack->undoLimit()) {
        // The limit can only be set on an empty stack: a document that grew past its size class
        // starts a new, shorter history rather than keep too many large steps.
        m_stack->clear();
        m_stack->setUndoLimit(steps);
    }
    m_stack->push(new Step(this, std::move(before), m_document->lines()));
}

void DocumentUndo::restore(const QStringList& lines) {
    m_restoring = true;
    m_document->replaceAll(lines);
    m_restoring = false;
}

} // namespace quenfor
