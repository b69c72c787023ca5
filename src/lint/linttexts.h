#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

// The texts of the "Prüfen" view and of the command that share them.
inline constexpr char16_t kLintCaption[] = u"Prüfen";
inline constexpr char16_t kLintButtonHint[] =
    u"Prüfen: unbekannte Optionen, nicht erlaubte Werte, unterbrochene Mapkeys, zu lange Zeilen, "
    u"widersprüchliche Werte, Pfade der search.pro und, mit einer Zielversion, Optionen, die diese Version "
    u"nicht kennt oder versteckt";
inline constexpr char16_t kLintRecheck[] = u"Neu prüfen";
inline constexpr char16_t kLintRecheckHint[] = u"Prüft die Liste noch einmal.";
inline constexpr char16_t kLintCancel[] = u"Abbrechen";
inline constexpr char16_t kLintListHint[] = u"Ein Klick auf einen Befund wählt seine Zeile in der Liste aus.";
inline constexpr char16_t kLintLineColumn[] = u"Zeile";
inline constexpr char16_t kLintFindingColumn[] = u"Befund";
inline constexpr char16_t kNoFindings[] = u"Keine Befunde.";
inline constexpr char16_t kLintCancelled[] = u"Die Prüfung wurde abgebrochen.";
inline constexpr char16_t kLintStale[] = u"Die Liste wurde seitdem geändert: \"Neu prüfen\" zeigt den neuen Stand.";

// "1 Befund", "12 Befunde", "1.194.289 Befunde"; kNoFindings for none.
QString findingCountText(qsizetype count);

// "Prüfe ... 40 %"
QString lintProgressText(int percent);

// Text from a file as a message shows it: control characters in caret notation (^I for a tab)
// so they cannot break a line of output, and a very long text cut with "...".
QString shownText(QStringView text, qsizetype maxLength = 60);
void appendShownText(QString& out, QStringView text, qsizetype maxLength = 60);

} // namespace quenfor
