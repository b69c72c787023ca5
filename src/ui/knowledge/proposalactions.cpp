#include "ui/knowledge/proposalactions.h"

#include "ui/knowledge/formopt.h"
#include "ui/widgets/dialogs.h"

#include "knowledge/proposal.h"

namespace quenfor {

namespace {

AskCallback askWith(QWidget* parent) {
    return [parent](const QString& question) { return Dialogs::question(parent, question) == Dialogs::Answer::Yes; };
}

} // namespace

FormOpt* proposeConfiguration(QWidget* parent, ConfigDocument* document, QPointer<FormOpt>& window) {
    if (!document)
        return nullptr;
    if (!runProposal(*document, askWith(parent)).appended)
        return nullptr; // "No": the user wants neither the lines nor the window
    if (!window) {
        window = new FormOpt(document, parent);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->show();
    window->raise();
    window->activateWindow();
    return window;
}

bool addGhostOptions(QWidget* parent, ConfigDocument& document) {
    return runGhostOptions(document, askWith(parent)).appended;
}

} // namespace quenfor
