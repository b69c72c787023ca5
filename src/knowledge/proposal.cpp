#include "knowledge/proposal.h"

#include "document/configdocument.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QStringList readBuiltInLines(const QString& resource) {
    QFile file(resource);
    // The resource is linked into the program; failing to open it is a build fault, not user input.
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("built-in proposal list is missing");
        return {};
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    // A checkout with CR LF line ends must not put a CR into the lines.
    for (QString& line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
    }
    return lines;
}

// The list shows where the new lines begin; the mark and selection stay where the user left them.
void appendAndShow(ConfigDocument& doc, const QStringList& lines) {
    const int first = doc.count();
    doc.appendLines(lines);
    if (!lines.isEmpty())
        emit doc.scrollRequested(first);
}

} // namespace

const QStringList& proposalLines() {
    static const QStringList lines = readBuiltInLines(u":/knowledge/proposal_lines.txt"_s);
    return lines;
}

const QStringList& ghostLines() {
    static const QStringList lines = {u"fail_ref_copy_when_missing_orig no"_s, u"cleanup_drawing_dependencies yes"_s,
                                      u"cleanup_layout_dependencies yes"_s};
    return lines;
}

ProposalOutcome runProposal(ConfigDocument& doc, const AskCallback& ask) {
    ProposalOutcome outcome;
    if (!doc.isEmpty()) {
        outcome.asked = true;
        if (!ask(QString::fromUtf16(kProposalQuestion)))
            return outcome;
    }
    appendAndShow(doc, proposalLines());
    outcome.appended = true;
    return outcome;
}

ProposalOutcome runGhostOptions(ConfigDocument& doc, const AskCallback& ask) {
    ProposalOutcome outcome;
    outcome.asked = true;
    if (!ask(QString::fromUtf16(kGhostQuestion)))
        return outcome;
    appendAndShow(doc, ghostLines());
    outcome.appended = true;
    return outcome;
}

} // namespace quenfor
