#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quenfor {

class ConfigDocument;

// The built-in starting point for a new config.pro: 280 option lines in alphabetical order,
// followed by 76 lines of sample mapkeys (first lines and continuations), 356 in all.
const QStringList& proposalLines();
inline constexpr int kProposalOptionLineCount = 280;
inline constexpr int kProposalMapkeyLineCount = 76;

// The three "Ghost" options, in the order they are appended.
const QStringList& ghostLines();

inline constexpr char16_t kProposalQuestion[] = u"Wollen Sie die Liste für den config.pro -Vorschlag jetzt einfügen ?";
inline constexpr char16_t kGhostQuestion[] = u"Wollen Sie die Ghost Optionen jetzt hinzufügen ?";

// Asks the user a Yes/No question; true means Yes.
using AskCallback = std::function<bool(const QString& question)>;

struct ProposalOutcome {
    bool asked = false;    // the document had lines, so the user was asked first
    bool appended = false; // the lines were appended to the end of the document
};

// Appends the proposal to the document. An empty document gets it without a question; otherwise
// `ask` gets kProposalQuestion and only Yes appends. Options already present are not looked for:
// duplicates are left to the clean-up tools. The path options window opens only when it appended.
ProposalOutcome runProposal(ConfigDocument& doc, const AskCallback& ask);

// Always asks kGhostQuestion (an empty document too); Yes appends the three ghost lines.
ProposalOutcome runGhostOptions(ConfigDocument& doc, const AskCallback& ask);

} // namespace quenfor
